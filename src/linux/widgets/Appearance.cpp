#include "linux/widgets/Appearance.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>
#include <cstring>

namespace dayvane::widgets {

namespace {

constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr BusObject::Address kPortal{"org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", kInterface};
constexpr const char* kNamespace = "org.freedesktop.appearance";
constexpr const char* kKey = "color-scheme";
constexpr guint32 kPreferDark = 1;

/// What is inside any number of variants in one another; the portal's Read wraps twice, its signal once.
glib::Variant Unwrap(GVariant* boxed) {
  glib::Variant value(g_variant_ref(boxed));
  while (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_VARIANT)) value.reset(g_variant_get_variant(value.get()));
  return value;
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

}  // namespace

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
      m_settings(kPortal, BusObject::Start::StartProgram,
                 {[this] { Ask(); }, [] {},
                  [this](const char* signal, GVariant* arguments) {
                    if (std::strcmp(signal, "SettingChanged") != 0) return;
                    if (!g_variant_is_of_type(arguments, G_VARIANT_TYPE("(ssv)"))) return;
                    const char* space = nullptr;
                    const char* key = nullptr;
                    GVariant* value = nullptr;
                    g_variant_get(arguments, "(&s&sv)", &space, &key, &value);
                    const glib::Variant held(value);
                    if (std::strcmp(space, kNamespace) == 0 && std::strcmp(key, kKey) == 0) Read(value);
                  }}) {}

void Appearance::SetDark(bool dark) {
  if (dark == m_dark || IsDark(m_usualPalette)) return;
  m_dark = dark;
  // Other styles draw parts of their own and would mix light and dark.
  QApplication::setStyle(QStyleFactory::create(dark ? QStringLiteral("Fusion") : m_usualStyle));
  QApplication::setPalette(dark ? DarkPalette() : m_usualPalette);
}

void Appearance::Ask() {
  m_settings.Call(kInterface, "Read", g_variant_new("(ss)", kNamespace, kKey), [this](GVariant* answer) {
    if (answer == nullptr || !g_variant_is_of_type(answer, G_VARIANT_TYPE("(v)"))) return;
    const glib::Variant boxed(g_variant_get_child_value(answer, 0));
    Read(boxed.get());
  });
}

void Appearance::Read(GVariant* setting) {
  const glib::Variant value = Unwrap(setting);
  if (g_variant_is_of_type(value.get(), G_VARIANT_TYPE_UINT32))
    SetDark(g_variant_get_uint32(value.get()) == kPreferDark);
}

}  // namespace dayvane::widgets
