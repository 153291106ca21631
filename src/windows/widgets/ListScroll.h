// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "windows/files/Win32.h"

namespace dayvane::widgets {

/// Where the user had scrolled a list to, kept while its control is emptied and filled again.
class ListScroll {
 public:
  /// `known` is the key of a row by which the same contents are known again; `selected` the selected row or -1.
  void Remember(HWND list, std::string known, std::string selectedKey, int selected);

  const std::string& KnownKey() const { return m_knownKey; }

  /// Scrolls the list back; to its start when the contents are others.
  void Restore(HWND list, bool sameContents) const;

  /// A selection that comes back is not brought into view when the user had scrolled away from it.
  bool ScrolledAwayFrom(const std::string& key) const { return key == m_selectedKey && !m_selectionInView; }
  void ForgetSelection() { m_selectedKey.clear(); }

 private:
  std::string m_knownKey;
  std::string m_selectedKey;
  bool m_selectionInView = false;
  int m_top = 0;       ///< the first row in view, of a list or of the details
  POINT m_origin{};    ///< of icons, in pixels
  int m_sideways = 0;  ///< of the details, in pixels
};

}  // namespace dayvane::widgets
