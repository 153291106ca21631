// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "help/HelpFile.h"
#include "windows/forms/TopWindow.h"
#include "windows/help/HelpBrowser.h"
#include "windows/help/HelpFindBar.h"
#include "windows/help/HelpNavigation.h"
#include "windows/help/HelpPopup.h"
#include "windows/help/HelpToolbar.h"

namespace dayvane::help {

/// The help window: contents and search on the left, a page on the right. It reads the help file when it is first asked
/// for something, and tells the user, in its own pages, when that cannot be read. Closing hides it.
class HelpViewer : public widgets::TopWindow {
 public:
  explicit HelpViewer(std::string helpFile);

  /// Opens the window on its first page.
  void ShowContents();

  /// Opens the window on the topic of a context id.
  void ShowTopic(int contextId);

  /// Explains a control in a small window at a point of the screen. What cannot be explained there opens the window.
  void ShowPopup(int contextId, POINT at);

  bool IsOpen() const { return IsWindowVisible(Handle()) != 0; }
  void BringToFront() const;

 protected:
  void LookChanged() override;
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool Load();
  void Connect();
  void PageChanged(const std::string& topic, const std::string& title);
  void ShowHome();
  void Present();
  void Hide();
  void LayOut();
  void Do(HelpCommand command);
  std::optional<LRESULT> OnMouse(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> OnKeyboard(UINT message, WPARAM wParam, LPARAM lParam);
  bool TakeKey(WPARAM key);
  bool TakeAltKey(WPARAM key);
  bool TakeControlKey(WPARAM key);
  bool TakePlainKey(WPARAM key, bool shift);
  void GoToNextPart(bool backward);
  void TakeFocus();
  void SetDragged(bool dragged);
  bool DragSplitter(UINT message, LPARAM lParam);
  RECT Splitter() const;

  std::string m_path;
  std::optional<HelpFile> m_file;
  int m_contentsWidth = 260;  ///< pixels at 96 dots per inch
  bool m_isDragged = false;   ///< the window's edge or the splitter, before it is let go
  HWND m_lastFocus = nullptr;
  HelpToolbar m_toolbar;
  HelpNavigation m_navigation;
  HelpBrowser m_browser;
  HelpFindBar m_findBar;
  std::unique_ptr<HelpPopup> m_popup;
};

}  // namespace dayvane::help
