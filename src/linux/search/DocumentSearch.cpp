// SPDX-License-Identifier: MIT
#include "linux/search/DocumentSearch.h"

#include <algorithm>

#include "base/Text.h"
#include "linux/LinuxClock.h"
#include "views/Keys.h"

namespace dayvane::search {

namespace {

constexpr std::size_t kMostFound = 20;      ///< no search shows more of one program
constexpr std::size_t kMostTexts = 100;     ///< words of a search, identifiers to describe
constexpr std::size_t kLongestText = 4096;  ///< bytes; a path's length

constexpr const char* kGnomesPath = "/example/dayvane/Dayvane/SearchProvider";
constexpr const char* kGnomesInterface = R"xml(<node><interface name="org.gnome.Shell.SearchProvider2">
<method name="GetInitialResultSet"><arg type="as" direction="in"/><arg type="as" direction="out"/></method>
<method name="GetSubsearchResultSet"><arg type="as" direction="in"/><arg type="as" direction="in"/>
<arg type="as" direction="out"/></method>
<method name="GetResultMetas"><arg type="as" direction="in"/><arg type="aa{sv}" direction="out"/></method>
<method name="ActivateResult"><arg type="s" direction="in"/><arg type="as" direction="in"/>
<arg type="u" direction="in"/></method>
<method name="LaunchSearch"><arg type="as" direction="in"/><arg type="u" direction="in"/></method>
</interface></node>)xml";

constexpr const char* kKdesPath = "/example/dayvane/Dayvane/Runner";
constexpr const char* kKdesInterface = R"xml(<node><interface name="org.kde.krunner1">
<method name="Actions"><arg type="a(sss)" direction="out"/></method>
<method name="Match"><arg type="s" direction="in"/><arg type="a(sssuda{sv})" direction="out"/></method>
<method name="Run"><arg type="s" direction="in"/><arg type="s" direction="in"/></method>
</interface></node>)xml";

/// What KRunner calls a match that may be what the user means, and not the text of the query itself.
constexpr guint kPossibleMatch = 30;

std::string TextAt(GVariant* arguments, gsize index) {
  const glib::Variant child(g_variant_get_child_value(arguments, index));
  gsize length = 0;
  const char* text = g_variant_get_string(child.get(), &length);
  return {text, std::min(length, kLongestText)};
}

std::vector<std::string> TextsAt(GVariant* arguments, gsize index) {
  const glib::Variant array(g_variant_get_child_value(arguments, index));
  std::vector<std::string> texts;
  const gsize count = std::min(g_variant_n_children(array.get()), kMostTexts);
  for (gsize i = 0; i < count; ++i) texts.push_back(TextAt(array.get(), i));
  return texts;
}

/// The words of a text, or of several that were split by someone else's rules.
std::vector<std::string> Words(const std::vector<std::string>& texts) {
  std::vector<std::string> words;
  for (const std::string& text : texts)
    for (const std::string_view word : text::Split(text, ' '))
      if (!word.empty() && words.size() < kMostTexts) words.emplace_back(word);
  return words;
}

glib::Object<GIcon> IconOf(const std::string& name) {
  const glib::Text type(g_content_type_guess(name.c_str(), nullptr, 0, nullptr));
  return glib::Object<GIcon>(g_content_type_get_icon(type.get()));
}

std::string IconNameOf(const std::string& name) {
  const auto icon = IconOf(name);
  const char* const* names =
      G_IS_THEMED_ICON(icon.get()) ? g_themed_icon_get_names(G_THEMED_ICON(icon.get())) : nullptr;
  return names != nullptr && names[0] != nullptr ? names[0] : "";
}

}  // namespace

DocumentSearch::DocumentSearch(activation::BusApplication& bus, activation::Activation& activation, FMain& window,
                               Application& application, const CRepository& repository)
    : m_bus(bus),
      m_activation(activation),
      m_window(window),
      m_application(application),
      m_index(application, repository.DailyPath(), LinuxClock::CoarseTime) {
  if (!bus.IsOnBus()) return;
  // The tree is filled anew when something was filed, and when days went.
  m_connections.push_back(window.tvwMain.ContentsChanged.ConnectScoped([this] { m_index.Outdate(); }));
  m_gnome.emplace(bus.Connection(), kGnomesPath, kGnomesInterface,
                  [this](const std::string& method, GVariant* arguments) { return CallOfGnome(method, arguments); });
  m_kde.emplace(bus.Connection(), kKdesPath, kKdesInterface,
                [this](const std::string& method, GVariant* arguments) { return CallOfKde(method, arguments); });
}

GVariant* DocumentSearch::CallOfGnome(const std::string& method, GVariant* arguments) {
  if (method == "GetInitialResultSet") return Identifiers(arguments);
  if (method == "GetSubsearchResultSet") {
    const glib::Variant words(g_variant_get_child_value(arguments, 1));
    GVariant* const child = words.get();
    const glib::Variant all(g_variant_ref_sink(g_variant_new_tuple(&child, 1)));
    return Identifiers(all.get());
  }
  if (method == "GetResultMetas") return Descriptions(arguments);
  if (method == "ActivateResult") Open(TextAt(arguments, 0));
  if (method == "LaunchSearch") m_bus.Activated.Raise(std::string());
  return nullptr;
}

GVariant* DocumentSearch::CallOfKde(const std::string& method, GVariant* arguments) {
  if (method == "Match") return Matches(TextAt(arguments, 0));
  if (method == "Run") Open(TextAt(arguments, 0));
  return method == "Actions" ? g_variant_new("(a(sss))", nullptr) : nullptr;
}

GVariant* DocumentSearch::Identifiers(GVariant* words) {
  GVariantBuilder identifiers;
  g_variant_builder_init(&identifiers, G_VARIANT_TYPE_STRING_ARRAY);
  for (const Document& found : m_index.Find(Words(TextsAt(words, 0)), kMostFound))
    g_variant_builder_add(&identifiers, "s", found.id.c_str());
  return g_variant_new("(as)", &identifiers);
}

GVariant* DocumentSearch::Descriptions(GVariant* identifiers) {
  GVariantBuilder all;
  g_variant_builder_init(&all, G_VARIANT_TYPE("aa{sv}"));
  for (const std::string& id : TextsAt(identifiers, 0)) {
    const auto document = m_index.Describe(id);
    if (!document) continue;
    g_variant_builder_open(&all, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&all, "{sv}", "id", g_variant_new_string(id.c_str()));
    g_variant_builder_add(&all, "{sv}", "name", g_variant_new_string(document->name.c_str()));
    g_variant_builder_add(&all, "{sv}", "description", g_variant_new_string(DayText(document->day).c_str()));
    const glib::Variant icon(g_icon_serialize(IconOf(document->name).get()));
    if (icon) g_variant_builder_add(&all, "{sv}", "icon", icon.get());
    g_variant_builder_close(&all);
  }
  return g_variant_new("(aa{sv})", &all);
}

GVariant* DocumentSearch::Matches(const std::string& query) {
  GVariantBuilder matches;
  g_variant_builder_init(&matches, G_VARIANT_TYPE("a(sssuda{sv})"));
  double relevance = 1;
  for (const Document& found : m_index.Find(Words({query}), kMostFound)) {
    GVariantBuilder properties;
    g_variant_builder_init(&properties, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&properties, "{sv}", "subtext", g_variant_new_string(DayText(found.day).c_str()));
    g_variant_builder_add(&matches, "(sssuda{sv})", found.id.c_str(), found.name.c_str(),
                          IconNameOf(found.name).c_str(), kPossibleMatch, relevance, &properties);
    // The order of the days is kept by what each is worth.
    relevance -= 1.0 / (2 * kMostFound);
  }
  return g_variant_new("(a(sssuda{sv}))", &matches);
}

void DocumentSearch::Open(const std::string& id) {
  if (!m_index.Describe(id)) return;
  m_activation.Ask("open a document", [this, id] {
    controls::ListItem row;
    row.key = views::KeyOf(id);
    m_window.OpenDocument(&row);
  });
}

std::string DocumentSearch::DayText(const Date& day) const {
  return Format(day, "Short Date", m_application.desktop.dates);
}

}  // namespace dayvane::search
