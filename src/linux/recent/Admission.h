// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "linux/files/XdgFolders.h"
#include "linux/recent/DocumentPortal.h"
#include "linux/recent/LocalDrives.h"
#include "linux/recent/RecentShortcuts.h"

namespace dayvane::recent {

/// What decides whether a document that was opened may be recorded. Paths are native; an empty one is that of nothing.
struct Rules {
  std::string home;
  std::string dataHome;                 ///< has the trash
  std::vector<std::string> ownFolders;  ///< of programs, not of the user: caches, temporary and runtime files
  std::string portalFolder;             ///< see DocumentPortal
  MountTable drives;                    ///< without it no document is looked for
  std::function<bool(const Opening&)> isExcluded;  ///< by the user's wish; without it nothing is
  std::function<bool()> areWishesKnown;            ///< without it they are
};

/// The rules of a user's desktop, without the user's wishes.
Rules RulesOf(const xdg::Environment& environment);

/// Lets through what may be recorded of all that the list and the further sources tell, before anything of it is
/// remembered: not what lies in the trash or in a folder of the programs' own, and nothing that the user has excluded.
/// What the document portal shows gets the path that it has outside.
class Admission {
 public:
  explicit Admission(Rules rules) : m_rules(std::move(rules)), m_portal(m_rules.portalFolder) {}

  void Filter(Tidings& tidings);

  /// Whether it can be said what may be recorded. Until then everything must stay where it is told.
  bool IsOpen() const { return !m_rules.areWishesKnown || m_rules.areWishesKnown(); }

  /// Something new is told, which is worth asking a portal again that did not answer.
  void Wake() { m_portal.Wake(); }
  bool IsExcluded(const Opening& opening) const { return m_rules.isExcluded && m_rules.isExcluded(opening); }

 private:
  std::optional<std::string> PathOf(const std::string& told);
  bool LiesInOwnFolder(const std::string& path) const;
  bool Admits(Opening& opening);
  std::vector<ListedDocument> Admitted(std::vector<ListedDocument> documents);
  bool Admits(ListedDocument& document);

  Rules m_rules;
  DocumentPortal m_portal;
};

}  // namespace dayvane::recent
