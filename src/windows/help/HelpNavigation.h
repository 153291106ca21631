// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "help/HelpFile.h"
#include "windows/help/HelpPart.h"
#include "windows/widgets/Window.h"

namespace dayvane::help {

/// The left side of the help window: the table of contents, and above it a box that turns it into a list of the topics
/// that hold the words typed.
class HelpNavigation : public widgets::Window {
 public:
  HelpNavigation(HWND parent, const widgets::SharedLook& look);

  /// Shows the contents of a file, which must outlive the next call or this object.
  void SetHelpFile(const HelpFile& file);

  void SetEnabled(bool enabled);
  void SetLook(const widgets::SharedLook& look);

  /// Marks the topic shown beside the tree; raises nothing.
  void MarkTopic(const std::string& name);

  void FocusSearch();

  /// Shows the first topic found, when the words for it were just typed; false where the keyboard is elsewhere.
  bool ChooseFirstFound();

  std::function<void(const std::string& topic)> TopicChosen;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void BuildTree();
  void AddEntries();
  void LayOut();
  void SearchFor();
  void ShowFound(const std::string& words);
  void ChooseInTree(const NMHDR& notice);
  void ChooseFound();

  const HelpFile* m_file = nullptr;
  widgets::SharedLook m_look;
  std::unordered_map<std::string, HTREEITEM> m_items;
  HelpPart m_search;
  HelpPart m_tree;
  HelpPart m_found;
  std::vector<std::string> m_foundTopics;  ///< in the order of the list
  bool m_quiet = false;                    ///< what the tree tells is our own doing
};

}  // namespace dayvane::help
