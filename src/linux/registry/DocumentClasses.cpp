// SPDX-License-Identifier: MIT
#include "linux/registry/DocumentClasses.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "linux/files/NativePath.h"
#include "linux/launch/Applications.h"
#include "linux/registry/DefaultApplication.h"

namespace dayvane::registry {

namespace {

using Answer = std::optional<std::string>;

/// Endings are free text, so a folder of strange names must not fill the memory.
constexpr std::size_t kMostAnswers = 4096;

Answer TypeOfName(const std::string& name) {
  // When several types share the ending, GIO is "uncertain" and gives the likeliest, which is good enough.
  const glib::Text type(g_content_type_guess(name.c_str(), nullptr, 0, nullptr));
  if (!type || g_content_type_is_unknown(type.get())) return std::nullopt;
  return std::string(type.get());
}

/// The program asks with the ending in capitals, whatever it was. Few types tell ".c" and ".C" apart, and of those the
/// one in small letters is the common one.
Answer TypeOfExtension(std::string_view extension) {
  if (extension.size() < 2 || extension.find('/') != std::string_view::npos) return std::nullopt;
  const Answer small = TypeOfName("x" + text::ToLower(extension));
  return small ? small : TypeOfName("x" + std::string(extension));
}

Answer Description(const std::string& type) {
  const glib::Text description(g_content_type_get_description(type.c_str()));
  if (!description) return std::nullopt;
  return std::string(description.get());
}

Answer DefaultIcon(const std::string& type) {
  const glib::Object<GIcon> icon(g_content_type_get_icon(type.c_str()));
  if (!G_IS_THEMED_ICON(icon.get())) return std::nullopt;
  const char* const* names = g_themed_icon_get_names(G_THEMED_ICON(icon.get()));
  if (names == nullptr || names[0] == nullptr) return std::nullopt;
  return std::string(names[0]) + ",0";
}

Answer OpenCommand(const std::string& type, const DocumentClasses::LastProgram& lastProgram) {
  const auto application = ApplicationFor(type, lastProgram ? lastProgram(type) : std::nullopt);
  const auto program = application ? applications::ProgramOf(application.get()) : std::nullopt;
  const auto path = program ? files::FromNative(*program) : std::nullopt;
  if (!path) return std::nullopt;
  return "\"" + *path + "\" \"%1\"";
}

Answer AskDesktop(std::string_view path, const DocumentClasses::LastProgram& lastProgram) {
  const auto separator = std::min(path.find('\\'), path.size());
  const std::string_view first = path.substr(0, separator);
  const std::string_view rest = path.substr(std::min(separator + 1, path.size()));
  if (first.starts_with('.')) return rest.empty() ? TypeOfExtension(first) : std::nullopt;
  if (first.find('/') == std::string_view::npos || first.find('\0') != std::string_view::npos) return std::nullopt;
  const std::string type(first);
  if (rest.empty()) return Description(type);
  if (text::CompareIgnoringCase(rest, "DefaultIcon") == 0) return DefaultIcon(type);
  if (text::CompareIgnoringCase(rest, "shell\\open\\command") == 0) return OpenCommand(type, lastProgram);
  return std::nullopt;
}

}  // namespace

DocumentClasses::DocumentClasses(Clock clock)
    : m_clock(std::move(clock)),
      m_monitor(g_app_info_monitor_get()),
      m_connection(g_signal_connect(m_monitor.get(), "changed", G_CALLBACK(ApplicationsChanged), this)),
      m_keptSince(m_clock()) {
  // GIO looks for the folders of its content types when it is first asked for a description, and then forgets, without
  // freeing it, whatever it has read before. Asked for them first, it reads once.
  g_content_type_get_mime_dirs();
}

DocumentClasses::~DocumentClasses() {
  g_signal_handler_disconnect(m_monitor.get(), m_connection);
}

void DocumentClasses::ApplicationsChanged(GAppInfoMonitor* /*monitor*/, gpointer self) {
  static_cast<DocumentClasses*>(self)->m_answers.clear();
}

std::shared_ptr<const ClassKeyAnswer> DocumentClasses::Find(std::string_view path) {
  const auto now = m_clock();
  if (now - m_keptSince >= kLongestKept || m_answers.size() >= kMostAnswers) {
    m_answers.clear();
    m_keptSince = now;
  }
  const auto known = m_answers.find(path);
  if (known != m_answers.end()) return known->second;
  auto answer =
      std::make_shared<const ClassKeyAnswer>(ClassKeyAnswer{std::string(path), AskDesktop(path, m_lastProgram)});
  m_answers.emplace(answer->path, answer);
  return answer;
}

}  // namespace dayvane::registry
