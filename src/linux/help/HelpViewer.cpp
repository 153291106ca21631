// SPDX-License-Identifier: MIT
#include "linux/help/HelpViewer.h"

#include <QAction>
#include <QKeyEvent>
#include <QScreen>
#include <QToolBar>

#include "base/Error.h"
#include "linux/LinuxFileSystem.h"
#include "linux/files/NativePath.h"
#include "linux/widgets/Pictures.h"
#include "resources/MResourceConstants.h"

namespace dayvane::help {

namespace {

constexpr QSize kFirstSize(940, 660);
constexpr int kContentsWidth = 260;

QIcon ToolbarIcon(const char* name) {
  return QIcon(QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(name)));
}

template <class Act>
QAction* AddAction(QToolBar& bar, const char* icon, const char* text, const QList<QKeySequence>& keys, Act act) {
  QAction* action = bar.addAction(ToolbarIcon(icon), QLatin1String(text), &bar, act);
  action->setShortcuts(keys);
  action->setToolTip(QStringLiteral("%1 (%2)").arg(action->text(), keys.first().toString(QKeySequence::NativeText)));
  // A tool bar keeps its buttons out of the tab order; help has no menu bar to reach them by.
  bar.widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
  return action;
}

}  // namespace

HelpViewer::HelpViewer(QString nativeHelpFile) : m_path(std::move(nativeHelpFile)) {
  setWindowIcon(PictureIcon(kNormalIcon));
  setWindowTitle(QStringLiteral("Dayvane Help"));
  // The program lives in the tray; the help window's going must not end it.
  setAttribute(Qt::WA_QuitOnClose, false);
  BuildPages();
  BuildToolbar();
  ConnectPages();
  resize(kFirstSize.boundedTo(screen()->availableSize() * 0.9));
}

void HelpViewer::BuildPages() {
  m_pageLayout.setContentsMargins(0, 0, 0, 0);
  m_pageLayout.setSpacing(0);
  m_pageLayout.addWidget(&m_browser, 1);
  m_pageLayout.addWidget(&m_findBar);
  m_splitter.addWidget(&m_navigation);
  m_splitter.addWidget(&m_page);
  m_splitter.setStretchFactor(1, 1);
  m_splitter.setSizes({kContentsWidth, kFirstSize.width() - kContentsWidth});
  setCentralWidget(&m_splitter);
}

void HelpViewer::BuildToolbar() {
  QToolBar& bar = *addToolBar(QStringLiteral("Navigation"));
  bar.setMovable(false);
  bar.setContextMenuPolicy(Qt::PreventContextMenu);
  QAction* back = AddAction(bar, "help-back", "Back", {Qt::ALT | Qt::Key_Left, QKeySequence(Qt::Key_Back)},
                            [this] { m_browser.backward(); });
  QAction* forward = AddAction(bar, "help-forward", "Forward", {Qt::ALT | Qt::Key_Right, QKeySequence(Qt::Key_Forward)},
                               [this] { m_browser.forward(); });
  AddAction(bar, "help-contents", "First Page", {Qt::ALT | Qt::Key_Home}, [this] { ShowHome(); });
  bar.addSeparator();
  AddAction(bar, "help-zoom-in", "Larger Text", {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal},
            [this] { m_browser.Zoom(1); });
  AddAction(bar, "help-zoom-out", "Smaller Text", {Qt::CTRL | Qt::Key_Minus}, [this] { m_browser.Zoom(-1); });
  AddAction(bar, "help-zoom-normal", "Normal Text", {Qt::CTRL | Qt::Key_0}, [this] { m_browser.ResetZoom(); });
  bar.addSeparator();
  AddAction(bar, "help-search", "Search All Topics", {Qt::CTRL | Qt::Key_K}, [this] { m_navigation.FocusSearch(); });
  AddAction(bar, "toolbar-find", "Find in Page", {QKeySequence(QKeySequence::Find)}, [this] { m_findBar.Open(); });

  back->setEnabled(false);
  forward->setEnabled(false);
  connect(&m_browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(&m_browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
}

void HelpViewer::ConnectPages() {
  connect(&m_navigation, &HelpNavigation::TopicChosen, &m_browser, &HelpBrowser::ShowTopic);
  connect(&m_browser, &HelpBrowser::TopicShown, this, &HelpViewer::PageChanged);
}

/// Reads the help file unless it is read already: one that was missing may have been installed since.
bool HelpViewer::Load() {
  if (m_file) return true;
  try {
    files::LinuxFileSystem files;
    const std::string native = m_path.toStdString();
    m_file = HelpFile::Read(files, files::FromNative(native).value_or(native));
  } catch (const Error& error) {
    // Not an error to report: the window itself says where the help file should be.
    m_browser.SetProblem(QStringLiteral("%1 It should be here: %2. Installing Dayvane again brings it back.")
                             .arg(QString::fromStdString(error.Description()), m_path));
    m_navigation.setEnabled(false);
    return false;
  }
  m_browser.SetHelpFile(*m_file);
  m_navigation.SetHelpFile(*m_file);
  m_navigation.setEnabled(true);
  return true;
}

void HelpViewer::ShowContents() {
  Load();
  ShowHome();
  Present();
}

void HelpViewer::ShowTopic(int contextId) {
  const Topic* topic = Load() ? m_file->FindContext(contextId) : nullptr;
  if (topic) {
    m_browser.ShowTopic(QString::fromStdString(topic->name));
  } else {
    m_browser.ShowUnknownContext(contextId);
  }
  Present();
}

void HelpViewer::ShowPopup(int contextId, const QPoint& at) {
  const Topic* topic = Load() ? m_file->FindContext(contextId) : nullptr;
  if (!topic) {
    ShowTopic(contextId);
    return;
  }
  m_popup = std::make_unique<HelpPopup>(*m_file, *topic, this);
  connect(m_popup.get(), &HelpPopup::TopicChosen, this, [this](const QString& name) {
    m_browser.ShowTopic(name);
    Present();
  });
  m_popup->OpenAt(at);
}

void HelpViewer::ShowHome() {
  m_browser.ShowTopic(m_file ? QString::fromStdString(m_file->Contents().front().topic) : QString());
}

void HelpViewer::PageChanged(const QString& topic) {
  m_navigation.MarkTopic(topic);
  const QString program = QStringLiteral("Dayvane Help");
  const QString title = m_browser.documentTitle();
  setWindowTitle(title == program ? title : QStringLiteral("%1 - %2").arg(title, program));
}

void HelpViewer::Present() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  m_browser.setFocus();
}

void HelpViewer::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F3) {
    event->modifiers() & Qt::ShiftModifier ? m_findBar.FindPrevious() : m_findBar.FindNext();
  } else if (event->key() == Qt::Key_Escape && m_findBar.isVisible()) {
    m_findBar.hide();
    m_browser.setFocus();
  } else if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Close)) {
    close();
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

}  // namespace dayvane::help
