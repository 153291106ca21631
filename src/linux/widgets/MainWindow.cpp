#include "linux/widgets/MainWindow.h"

#include "linux/Pictures.h"
#include "linux/widgets/Lengths.h"
#include "linux/widgets/ScreenFit.h"
#include "shell/FMain.h"
#include "shell/MResourceConstants.h"

namespace dayvane::widgets {

namespace {

// Logical pixels.
constexpr int kMargin = 1;
constexpr int kGap = 4;
constexpr int kLeastTreeHeight = 80;
constexpr int kLeastListWidth = 220;
constexpr QSize kUsualSize{900, 600};

}  // namespace

MainWindow::MainWindow(FMain& main, const Icons& icons, const platform::DateConventions& dates)
    : m_main(main),
      m_daily(main.picDaily),
      m_favorites(main.picFavorites),
      m_calendar(main.calMain, static_cast<Qt::DayOfWeek>(dates.firstDayOfWeek)),
      m_tree(main.tvwMain, icons),
      m_dailyList(main.lvwDaily, icons),
      m_favoritesList(main.lvwFavorites, icons),
      m_statusBar(main.sbrMain),
      m_timer(main.tmrMain),
      m_form(main.form, *this, m_client) {
  setWindowIcon(PictureIcon(kNormalIcon));
  BuildClient();
  NameForScreenReaders();
  Design();
  m_connections.push_back(main.form.Resize.ConnectScoped([this] { StretchBars(); }));
}

void MainWindow::BuildClient() {
  setCentralWidget(&m_client);
  BuildDailyPane();
  BuildFavoritesPane();
  m_placement.Add(m_main.picDaily, m_daily);
  m_placement.Add(m_main.picFavorites, m_favorites);
  m_placement.Add(m_main.sbrMain, m_statusBar);
}

void MainWindow::BuildDailyPane() {
  m_daily.Add(m_main.calMain, m_calendar);
  m_daily.Add(m_main.tvwMain, m_tree);
  m_daily.Add(m_main.lvwDaily, m_dailyList);
}

void MainWindow::BuildFavoritesPane() {
  m_favorites.Add(m_main.lvwFavorites, m_favoritesList);
}

void MainWindow::NameForScreenReaders() {
  m_calendar.setAccessibleName(QStringLiteral("Calendar"));
  m_tree.setAccessibleName(QStringLiteral("Days"));
  m_dailyList.SetSpokenName(QStringLiteral("Documents of the day"));
  m_favoritesList.SetSpokenName(QStringLiteral("Favorites"));
}

void MainWindow::Design() {
  const int statusHeight = m_statusBar.sizeHint().height();
  MoveControl(m_main.sbrMain, {0, 0, 0, statusHeight}, *this);
  DesignDailyPane();
  DesignFavoritesPane();
  const QSize calendar = m_calendar.sizeHint();
  m_client.setMinimumSize(calendar.width() + kGap + kLeastListWidth,
                          calendar.height() + kGap + kLeastTreeHeight + statusHeight);
  DesignForm();
}

void MainWindow::DesignDailyPane() {
  const QSize calendar = m_calendar.sizeHint();
  MoveControl(m_main.picDaily, {kMargin, kMargin, 0, 0}, *this);
  MoveControl(m_main.calMain, {{0, 0}, calendar}, *this);
  MoveControl(m_main.tvwMain, {0, calendar.height() + kGap, calendar.width(), 0}, *this);
  MoveControl(m_main.lvwDaily, {calendar.width() + kGap, 0, 0, 0}, *this);
}

void MainWindow::DesignFavoritesPane() {
  MoveControl(m_main.picFavorites, {kMargin, kMargin, 0, 0}, *this);
  MoveControl(m_main.lvwFavorites, {}, *this);
}

void MainWindow::DesignForm() {
  const QRect screen = AvailableScreenFor({});
  QRect place({}, kUsualSize.expandedTo(m_client.minimumSize()));
  place.moveCenter(screen.center());
  MoveControl(m_main.form, place, *this);
}

void MainWindow::StretchBars() {
  const int statusHeight = m_statusBar.sizeHint().height();
  m_placement.PlaceAll();
  MoveControl(m_main.sbrMain, {0, m_client.height() - statusHeight, m_client.width(), statusHeight}, *this);
}

}  // namespace dayvane::widgets
