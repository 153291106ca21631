// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>

namespace dayvane::recent {

/// Where documents lie that a sandboxed program knows under a path of the document portal, such as
/// "/run/user/1000/doc/ec5a30d1/Report.odt". Only the portal knows that
/// (https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Documents.html).
class DocumentPortal {
 public:
  /// `folder` is where the portal shows its documents, native: "/run/user/1000/doc".
  explicit DocumentPortal(std::string folder) : m_folder(std::move(folder)) {}

  /// Whether it is the portal that shows something under this path.
  bool Shows(const std::string& path) const;

  /// The native path of what the portal shows under this one; nothing when the portal does not know it or does not
  /// answer. Answers are kept. One that does not answer soon is not asked again before the next Wake: the user waits.
  std::optional<std::string> Resolve(const std::string& path);

  /// Something new was told, which is worth another question.
  void Wake() { m_isSilent = false; }

 private:
  using HostPath = std::optional<std::string>;

  HostPath PathOf(const std::string& id);
  HostPath Ask(const std::string& id);

  std::string m_folder;
  std::map<std::string, HostPath> m_answers;  ///< by the portal's id
  bool m_isSilent = false;
};

}  // namespace dayvane::recent
