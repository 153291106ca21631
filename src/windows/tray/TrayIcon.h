// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "controls/Signal.h"
#include "windows/widgets/GdiHandles.h"
#include "windows/widgets/Window.h"

namespace dayvane::widgets {

/// The icon in the notification area, for as long as there is one: the task bar starts after programs, ends and starts
/// again.
class TrayIcon : public Window {
 public:
  /// Shell_NotifyIcon, or what a test has in its place.
  using Shell = std::function<bool(DWORD message, NOTIFYICONDATAW& data)>;

  explicit TrayIcon(Shell shell = {});
  ~TrayIcon() override;

  /// Shows the icon with a picture (PictureId) and a tip, also once a notification area comes.
  void Show(int picture, const std::string& tip);
  void Hide();

  bool IsThere() const { return m_isThere; }

  controls::Signal<int> MouseUp;  ///< button: 1 left, 2 right, 4 middle
  controls::Signal<> Changed;     ///< it has come or gone

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void Add();
  void SetThere(bool isThere);
  NOTIFYICONDATAW Data() const;

  bool m_isReady = false;
  Shell m_shell;
  Icon m_icon;
  int m_picture = 0;
  std::wstring m_tip;
  bool m_isWanted = false;
  bool m_isThere = false;
};

/// The beginning of a text that has no more UTF-16 units than a limit, and no half of a character.
std::wstring CutToUnits(const std::wstring& text, std::size_t most);

}  // namespace dayvane::widgets
