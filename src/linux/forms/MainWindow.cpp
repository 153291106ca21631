// SPDX-License-Identifier: MIT
#include "linux/forms/MainWindow.h"

#include <QEvent>
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "linux/forms/ScreenFit.h"
#include "linux/widgets/DayWords.h"
#include "linux/widgets/Keys.h"
#include "linux/widgets/Lengths.h"
#include "linux/widgets/Pictures.h"
#include "resources/MResourceConstants.h"
#include "shell/FMainControls.h"

namespace dayvane::widgets {

namespace {

// Logical pixels.
constexpr int kPaneMargin = 1;
constexpr int kRoom = 6;  ///< beside the margin of the panes
constexpr int kSplitterWidth = 7;
constexpr int kHeadingRoom = 4;  ///< above and below the heading, and before it
constexpr int kLeastTreeHeight = 80;
constexpr int kLeastListWidth = 220;
constexpr QSize kUsualSize{900, 600};

/// Gives a control a place, and leaves its size to the program, which lays it out.
void PutControl(controls::Control& control, QPoint place, const QWidget& on) {
  control.Move(ToTwips(place.x(), on), ToTwips(place.y(), on), control.Width(), control.Height());
}

}  // namespace

MainWindow::MainWindow(FMainControls& main, const Icons& icons, const platform::DateConventions& dates)
    : m_main(main),
      m_fileMenu(main.mnuFilePopup),
      m_viewMenu(main.mnuViewPopup),
      m_toolsMenu(main.mnuToolsPopup),
      m_helpMenu(main.mnuHelpPopup),
      m_toolbar(main.picMain[FMainControls::kToolbarStrip], main.sftToolbar, main.linToolbar),
      m_daily(main.picDaily),
      m_favorites(main.picFavorites),
      m_calendar(main.calMain, static_cast<Qt::DayOfWeek>(dates.firstDayOfWeek)),
      m_tree(main.tvwMain, icons),
      m_splitter([this](int left) { SplitDailyPane(left); }),
      m_dailyList(main.lvwDaily, icons),
      m_favoritesList(main.lvwFavorites, icons),
      m_statusBar(main.sbrMain),
      m_timer(main.tmrMain),
      m_form(main.form, *this, m_client) {
  BuildMenusAndToolbar();
  BuildClient();
  BuildStatus();
  NameForScreenReaders();
  Design();
  DesignForm();
  m_connections.push_back(main.form.Resize.ConnectScoped([this] { LayOut(); }));
  m_connections.push_back(main.picFavorites.Changed.ConnectScoped([this] { FocusWhenViewChanges(); }));
  m_connections.push_back(main.tvwMain.SelectionChanged.ConnectScoped([this] { ShowHeading(); }));
  m_connections.push_back(main.tvwMain.ContentsChanged.ConnectScoped([this] { ShowHeading(); }));
  m_connections.push_back(main.tryMain.Changed.ConnectScoped([this] { ShowSuspended(); }));
  ShowHeading();
  ShowSuspended();
}

void MainWindow::BuildClient() {
  setCentralWidget(&m_frame);
  auto* room = new QVBoxLayout(&m_frame);
  room->setContentsMargins(kRoom, kRoom, kRoom, 0);
  room->addWidget(&m_client);
  BuildDailyPane();
  m_favorites.Add(m_main.lvwFavorites, m_favoritesList);
  m_placement.Add(m_main.picDaily, m_daily);
  m_placement.Add(m_main.picFavorites, m_favorites);
  m_placement.Add(m_main.sbrMain, m_statusBar);
}

void MainWindow::BuildMenusAndToolbar() {
  for (MenuPresenter* menu : {&m_fileMenu, &m_viewMenu, &m_toolsMenu, &m_helpMenu}) menuBar()->addMenu(menu);
  QToolBar* strip = addToolBar(QStringLiteral("Toolbar"));
  strip->setMovable(false);
  strip->setContextMenuPolicy(Qt::PreventContextMenu);
  strip->addWidget(&m_toolbar);
  auto* help = new QShortcut(KeySequenceOf(kWindowHelpKey, 0), this);
  connect(help, &QShortcut::activated, this,
          [this] { m_deferred.AfterWorkAndQuestions([this] { m_main.sftToolbar[kHelpButton].Press(); }); });
}

void MainWindow::BuildStatus() {
  constexpr int kPictureSize = 16;
  const QString words = QStringLiteral("Suspended: nothing is recorded until you choose Resume.");
  m_suspended.setPixmap(PictureIcon(kSuspendedPicture).pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatioF()));
  m_suspended.setToolTip(words);
  m_suspended.setAccessibleName(words);
  m_statusBar.addPermanentWidget(&m_suspended);
}

void MainWindow::BuildDailyPane() {
  m_daily.Add(m_main.calMain, m_calendar);
  m_daily.Add(m_main.tvwMain, m_tree);
  m_daily.Add(m_main.lvwDaily, m_dailyList);
  m_splitter.setParent(&m_daily);
  m_heading.setParent(&m_daily);
  m_heading.setTextFormat(Qt::PlainText);
}

void MainWindow::NameForScreenReaders() {
  m_calendar.setAccessibleName(QStringLiteral("Calendar"));
  m_tree.setAccessibleName(QStringLiteral("Days"));
  m_dailyList.SetSpokenName(QStringLiteral("Documents of the day"));
  m_favoritesList.SetSpokenName(QStringLiteral("Favorites"));
}

void MainWindow::Design() {
  QFont bold = font();
  bold.setBold(true);
  m_heading.setFont(bold);
  const int statusHeight = m_statusBar.sizeHint().height();
  m_main.sbrMain.Move(m_main.sbrMain.Left(), m_main.sbrMain.Top(), m_main.sbrMain.Width(),
                      ToTwips(statusHeight, *this));
  DesignDailyPane();
  PutControl(m_main.picFavorites, {kPaneMargin, kPaneMargin}, *this);
  const QSize calendar = m_calendar.sizeHint();
  m_client.setMinimumSize(calendar.width() + kSplitterWidth + kLeastListWidth,
                          calendar.height() + kSplitterWidth + kLeastTreeHeight + statusHeight);
}

void MainWindow::DesignDailyPane() {
  const QSize calendar = m_calendar.sizeHint();
  const int left = std::max(calendar.width(), m_split);
  PutControl(m_main.picDaily, {kPaneMargin, kPaneMargin}, *this);
  MoveControl(m_main.calMain, {0, 0, left, calendar.height()}, *this);
  m_main.tvwMain.Move(0, ToTwips(calendar.height() + kSplitterWidth, *this), ToTwips(left, *this),
                      m_main.tvwMain.Height());
  PutControl(m_main.lvwDaily, {left + kSplitterWidth, HeadingHeight()}, *this);
}

int MainWindow::HeadingHeight() const {
  return m_heading.fontMetrics().height() + 2 * kHeadingRoom;
}

void MainWindow::ShowHeading() {
  const QString words = NodeWords(m_main.tvwMain.SelectedItem());
  m_heading.setText(words);
  m_dailyList.SetSpokenDetail(words);
}

void MainWindow::ShowSuspended() {
  const bool suspended = m_main.tryMain.Picture() == kSuspendedIcon;
  if (std::exchange(m_showsSuspended, suspended) == suspended) return;
  m_suspended.setVisible(suspended);
  setWindowIcon(PictureIcon(suspended ? kSuspendedIcon : kNormalIcon));
}

void MainWindow::SplitDailyPane(int left) {
  const int least = m_calendar.sizeHint().width();
  const int most = std::max(m_daily.width() - kSplitterWidth - kLeastListWidth, least);
  m_split = std::clamp(left, least, most);
  DesignDailyPane();
  FillDailyPane();
}

void MainWindow::FillDailyPane() {
  m_main.picDaily.Resize.Raise();  // the program gives tree and list what is left
  LayOut();
}

void MainWindow::DesignForm() {
  const QRect screen = AvailableScreenFor({});
  QRect place({}, kUsualSize.expandedTo(m_client.minimumSize()));
  place.moveCenter(screen.center());
  MoveControl(m_main.form, place, *this);
}

void MainWindow::LayOut() {
  const int statusHeight = m_statusBar.sizeHint().height();
  m_placement.PlaceAll();
  MoveControl(m_main.sbrMain, {0, m_client.height() - statusHeight, m_client.width(), statusHeight}, *this);
  m_splitter.setGeometry(ToPixels(m_main.lvwDaily.Left(), *this) - kSplitterWidth, 0, kSplitterWidth, m_daily.height());
  const int listLeft = ToPixels(m_main.lvwDaily.Left(), *this) + kHeadingRoom;
  m_heading.setGeometry(listLeft, 0, m_daily.width() - listLeft, HeadingHeight());
}

void MainWindow::FocusWhenViewChanges() {
  const bool showsFavorites = m_main.picFavorites.Visible();
  if (std::exchange(m_showsFavorites, showsFavorites) != showsFavorites) FocusList();
}

void MainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (focusWidget() == nullptr) FocusList();
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  // Later: the window gets the event before its children, which still have their old sizes.
  QMetaObject::invokeMethod(
      this, [this] { DesignAnew(); }, Qt::QueuedConnection);
}

void MainWindow::DesignAnew() {
  Design();
  m_main.form.Resize.Raise();
  FillDailyPane();  // also where the pane keeps its size
}

}  // namespace dayvane::widgets
