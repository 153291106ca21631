// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <unordered_map>

#include "linux/recent/Moment.h"

namespace dayvane::recent {

/// What is left of documents that are no longer remembered. Its size is bounded, and it is enough never to give a
/// shortcut's name to another document, and never to take an old opening for a new one.
struct Forgotten {
  Moment latest = 0;                 ///< no forgotten document was opened later than this
  int highestNumber = 0;             ///< no forgotten name has a higher number; 0 when nothing is forgotten
  std::set<std::uint16_t> families;  ///< hashes of the forgotten names without their numbers

  friend bool operator==(const Forgotten&, const Forgotten&) = default;
};

/// Gives each document's shortcut its file name, once and for all: "Report.odt.lnk", and "Report.odt (2).lnk" for the
/// next document called Report.odt. Names that differ only in letter case count as one. All names are native.
class ShortcutNames {
 public:
  explicit ShortcutNames(Forgotten& forgotten) : m_forgotten(forgotten) {}

  /// A free name for a document, given its file name; `isInFolder` says whether a foreign file has a name.
  std::string Choose(const std::string& documentName, const std::function<bool(const std::string&)>& isInFolder);

  void Take(const std::string& name, const std::string& owner);
  void Forget(const std::string& name, Moment lastOpening);

  /// The document whose shortcut has this name, in any letter case; null when no document owns it.
  const std::string* Owner(const std::string& name) const;

 private:
  bool IsForgotten(const std::string& name) const;

  std::unordered_map<std::string, std::string> m_owners;     ///< documents by lower-case name
  std::unordered_map<std::string, int> m_lowestFreeNumbers;  ///< by lower-case stem; saves trying all of them each time
  Forgotten& m_forgotten;
};

/// The name of the `number`th shortcut to documents of that file name, at most 255 bytes long as file systems want it.
/// A document whose name starts with a dot gets a shortcut that does not: the folder's hidden files are not captured.
std::string ShortcutName(const std::string& documentName, int number);

}  // namespace dayvane::recent
