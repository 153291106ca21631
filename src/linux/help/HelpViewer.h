// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <QSplitter>
#include <QVBoxLayout>
#include <memory>
#include <optional>

#include "help/HelpFile.h"
#include "linux/help/HelpBrowser.h"
#include "linux/help/HelpFindBar.h"
#include "linux/help/HelpNavigation.h"
#include "linux/help/HelpPopup.h"

namespace dayvane::help {

/// The help window: contents and search on the left, a page on the right. It reads the help file when it is first asked
/// for something, and tells the user, in its own pages, when that cannot be read. Closing hides it.
class HelpViewer : public QMainWindow {
  Q_OBJECT

 public:
  explicit HelpViewer(QString nativeHelpFile);

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
  QSplitter m_splitter;  // before what is shown in it, which it would delete
  HelpNavigation m_navigation;
  QWidget m_page;
  QVBoxLayout m_pageLayout{&m_page};
  HelpBrowser m_browser;
  HelpFindBar m_findBar{m_browser};
  std::unique_ptr<HelpPopup> m_popup;
};

}  // namespace dayvane::help
