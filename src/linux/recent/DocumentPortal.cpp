// SPDX-License-Identifier: MIT
#include "linux/recent/DocumentPortal.h"

#include <utility>

#include "linux/glib/GlibHandles.h"
#include "linux/launch/StartApplication.h"

namespace dayvane::recent {

namespace {

constexpr int kPatience = 300;  // milliseconds that the user does not notice

/// What a path of the portal says: the portal's id, and what follows the document itself, which may be a folder.
struct PortalPath {
  std::string id;
  std::string below;  ///< empty, or "/Report.odt"
};

std::string TakePart(std::string& rest) {
  const auto slash = rest.find('/');
  std::string part = rest.substr(0, slash);
  rest = slash == std::string::npos ? "" : rest.substr(slash + 1);
  return part;
}

/// Reads "ID/NAME", "ID/NAME/BELOW" and, as one program sees it, "by-app/PROGRAM/ID/NAME".
std::optional<PortalPath> ReadPath(std::string rest) {
  std::string id = TakePart(rest);
  if (id == "by-app") {
    TakePart(rest);
    id = TakePart(rest);
  }
  const std::string name = TakePart(rest);
  if (id.empty() || name.empty()) return std::nullopt;
  return PortalPath{id, rest.empty() ? "" : "/" + rest};
}

std::string BytesOf(GVariant* bytes) {
  gsize size = 0;
  const auto* text = static_cast<const char*>(g_variant_get_fixed_array(bytes, &size, 1));
  const std::string path(text, text == nullptr ? 0 : size);
  return path.substr(0, path.find('\0'));
}

bool IsRefusal(const GError* error) {
  const glib::Text name(error == nullptr ? nullptr : g_dbus_error_get_remote_error(error));
  return name && g_str_has_prefix(name.get(), "org.freedesktop.portal.Error.") != 0;
}

}  // namespace

bool DocumentPortal::Shows(const std::string& path) const {
  return !m_folder.empty() && path.starts_with(m_folder + "/");
}

std::optional<std::string> DocumentPortal::Resolve(const std::string& path) {
  const auto told = Shows(path) ? ReadPath(path.substr(m_folder.size() + 1)) : std::nullopt;
  const HostPath host = told ? PathOf(told->id) : std::nullopt;
  if (!host) return std::nullopt;
  return *host + told->below;
}

DocumentPortal::HostPath DocumentPortal::PathOf(const std::string& id) {
  const auto known = m_answers.find(id);
  if (known != m_answers.end()) return known->second;
  if (m_isSilent) return std::nullopt;
  HostPath answer = Ask(id);
  if (!m_isSilent) m_answers.emplace(id, answer);
  return answer;
}

/// A portal that nobody has started has shown nothing in this session: it is not started for the question.
DocumentPortal::HostPath DocumentPortal::Ask(const std::string& id) {
  glib::Failure failure;
  const auto bus = launch::SessionBus();
  const glib::Variant answer(
      bus && g_utf8_validate(id.c_str(), -1, nullptr)
          ? g_dbus_connection_call_sync(bus.get(), "org.freedesktop.portal.Documents",
                                        "/org/freedesktop/portal/documents", "org.freedesktop.portal.Documents", "Info",
                                        g_variant_new("(s)", id.c_str()), G_VARIANT_TYPE("(aya{sas})"),
                                        G_DBUS_CALL_FLAGS_NO_AUTO_START, kPatience, nullptr, failure.Slot())
          : nullptr);
  if (!answer) {
    // Its own refusal is an answer: there is no such document.
    m_isSilent = !IsRefusal(*failure.Slot());
    return std::nullopt;
  }
  const glib::Variant path(g_variant_get_child_value(answer.get(), 0));
  std::string host = BytesOf(path.get());
  return host.starts_with('/') ? HostPath(std::move(host)) : std::nullopt;
}

}  // namespace dayvane::recent
