// SPDX-License-Identifier: MIT
#include "linux/forms/Appearance.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>
#include <cstring>

#include "linux/forms/ContrastStyle.h"
#include "linux/widgets/Colours.h"

namespace dayvane::widgets {

namespace {

constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr glib::BusObject::Address kPortal{"org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                                           kInterface};
constexpr guint32 kPreferDark = 1;
constexpr guint32 kHigherContrast = 1;

/// Where desktops keep the user's wishes. GNOME has contrast in a setting of its own only.
constexpr const char* kAppearance = "org.freedesktop.appearance";
constexpr const char* kColorScheme = "color-scheme";
constexpr const char* kContrast = "contrast";
constexpr const char* kGnomeInterface = "org.gnome.desktop.a11y.interface";
constexpr const char* kGnomeContrast = "high-contrast";

/// What is inside any number of variants in one another; the portal's Read wraps twice, its signal once.
glib::Variant Unwrap(GVariant* boxed) {
  glib::Variant value(g_variant_ref(boxed));
  while (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_VARIANT)) value.reset(g_variant_get_variant(value.get()));
  return value;
}

}  // namespace

QPalette HighContrastPalette(bool dark) {
  constexpr QColor kNavy(0x00, 0x00, 0x80);
  const QColor paper = dark ? Qt::black : Qt::white;
  const QColor ink = dark ? Qt::white : Qt::black;
  const QColor accent = dark ? QColor(Qt::yellow) : kNavy;
  const QColor onAccent = dark ? Qt::black : Qt::white;
  QPalette palette(ink, paper, ink, ink, ink, ink, ink, paper, paper);
  palette.setColor(QPalette::AlternateBase, paper);
  palette.setColor(QPalette::ToolTipBase, paper);
  palette.setColor(QPalette::ToolTipText, ink);
  palette.setColor(QPalette::PlaceholderText, ink);
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, onAccent);
  palette.setColor(QPalette::Link, accent);
  palette.setColor(QPalette::LinkVisited, accent);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, dark ? Qt::lightGray : Qt::darkGray);
  return palette;
}

QPalette DarkPalette() {
  constexpr QColor kWindow(0x2d, 0x2d, 0x30);
  constexpr QColor kBase(0x1e, 0x1e, 0x20);
  constexpr QColor kRaised(0x3a, 0x3a, 0x3e);
  constexpr QColor kText(0xf0, 0xf0, 0xf0);
  constexpr QColor kFaded(0x8c, 0x8c, 0x90);
  constexpr QColor kAccent(0x2f, 0x7d, 0xd1);
  constexpr QColor kLink(0x7a, 0xb8, 0xff);
  QPalette palette(kText, kRaised, kRaised.lighter(), kBase.darker(), kWindow, kText, Qt::white, kBase, kWindow);
  palette.setColor(QPalette::AlternateBase, kWindow);
  palette.setColor(QPalette::ToolTipBase, kRaised);
  palette.setColor(QPalette::ToolTipText, kText);
  palette.setColor(QPalette::PlaceholderText, kFaded);
  palette.setColor(QPalette::Highlight, kAccent);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, kLink);
  palette.setColor(QPalette::LinkVisited, kLink);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
    palette.setColor(QPalette::Disabled, role, kFaded);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, kRaised);
  return palette;
}

Appearance::Appearance()
    : m_usualPalette(QApplication::palette()),
      m_usualStyle(QApplication::style()->name()),
      m_settings(kPortal, glib::BusObject::Start::StartProgram,
                 {[this] { Ask(); }, [] {},
                  [this](const char* signal, GVariant* arguments) {
                    if (std::strcmp(signal, "SettingChanged") != 0) return;
                    if (!g_variant_is_of_type(arguments, G_VARIANT_TYPE("(ssv)"))) return;
                    const char* space = nullptr;
                    const char* key = nullptr;
                    GVariant* value = nullptr;
                    g_variant_get(arguments, "(&s&sv)", &space, &key, &value);
                    const glib::Variant held(value);
                    Read(space, key, value);
                  }}) {}

void Appearance::Show() {
  const bool themeIsDark = IsDark(m_usualPalette.color(QPalette::Window), m_usualPalette.color(QPalette::WindowText));
  const bool usual = !m_highContrast && (!m_dark || themeIsDark);
  // Other styles draw parts of their own and would mix light and dark.
  QApplication::setStyle(m_highContrast ? new ContrastStyle
                                        : QStyleFactory::create(usual ? m_usualStyle : QStringLiteral("Fusion")));
  QApplication::setPalette(usual            ? m_usualPalette
                           : m_highContrast ? HighContrastPalette(m_dark || themeIsDark)
                                            : DarkPalette());
}

void Appearance::Ask() {
  AskFor(kAppearance, kColorScheme);
  AskFor(kAppearance, kContrast);
  AskFor(kGnomeInterface, kGnomeContrast);
}

void Appearance::AskFor(const char* space, const char* key) {
  m_settings.Call(kInterface, "Read", g_variant_new("(ss)", space, key), [this, space, key](GVariant* answer) {
    if (answer == nullptr || !g_variant_is_of_type(answer, G_VARIANT_TYPE("(v)"))) return;
    const glib::Variant boxed(g_variant_get_child_value(answer, 0));
    Read(space, key, boxed.get());
  });
}

void Appearance::Read(const std::string& space, const std::string& key, GVariant* setting) {
  const glib::Variant value = Unwrap(setting);
  const bool isNumber = g_variant_is_of_type(value.get(), G_VARIANT_TYPE_UINT32);
  const bool isFlag = g_variant_is_of_type(value.get(), G_VARIANT_TYPE_BOOLEAN);
  if (space == kAppearance && key == kColorScheme && isNumber)
    SetDark(g_variant_get_uint32(value.get()) == kPreferDark);
  else if (space == kAppearance && key == kContrast && isNumber)
    m_portalContrast = g_variant_get_uint32(value.get()) == kHigherContrast;
  else if (space == kGnomeInterface && key == kGnomeContrast && isFlag)
    m_gnomeContrast = g_variant_get_boolean(value.get()) != FALSE;
  SetHighContrast(m_portalContrast || m_gnomeContrast);
}

}  // namespace dayvane::widgets
