// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <optional>

#include "help/HelpFile.h"

namespace dayvane::help {

class HelpBrowser;
class HelpFindBar;
class HelpNavigation;

/// The help window: contents and search on the left, a page on the right. It reads the help file when it is first asked
/// for something, and tells the user, in its own pages, when that cannot be read. Closing hides it.
class HelpViewer : public QMainWindow {
  Q_OBJECT

 public:
  explicit HelpViewer(QString nativeHelpFile, QWidget* parent = nullptr);

  /// Opens the window on its first page.
  void ShowContents();

  /// Opens the window on the topic of a context id.
  void ShowTopic(int contextId);

  /// Explains a control in a small window at a point of the screen. What cannot be explained there opens the window.
  void ShowPopup(int contextId, const QPoint& at);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool Load();
  void BuildPages();
  void BuildToolbar();
  void ConnectPages();
  void PageChanged(const QString& topic);
  void ShowHome();
  void Present();

  QString m_path;
  std::optional<HelpFile> m_file;
  HelpNavigation* m_navigation;
  HelpBrowser* m_browser;
  HelpFindBar* m_findBar;
};

}  // namespace dayvane::help
