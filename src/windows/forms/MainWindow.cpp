// SPDX-License-Identifier: MIT
#include "windows/forms/MainWindow.h"

#include <algorithm>
#include <utility>

#include "resources/MResourceConstants.h"
#include "shell/FMainControls.h"
#include "windows/forms/ScreenFit.h"
#include "windows/widgets/DayWords.h"
#include "windows/widgets/Lengths.h"

namespace dayvane::widgets {

namespace {

// At 96 dots per inch.
constexpr int kPaneMargin = 1;
constexpr int kRoom = 6;  ///< beside the margin of the panes
constexpr int kSplitterWidth = 7;
constexpr int kHeadingRoom = 4;  ///< above and below the heading, and before it
constexpr int kLeastTreeHeight = 80;
constexpr int kLeastListWidth = 220;
constexpr SIZE kUsualSize{900, 600};

HWND CreateHeading(HWND parent) {
  return CreateWindowExW(
      0, WC_STATICW, L"",
      WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | SS_LEFT | SS_NOPREFIX | SS_CENTERIMAGE | SS_ENDELLIPSIS, 0, 0, 0, 0,
      parent, nullptr, ThisModule(), nullptr);
}

SIZE SizeOf(HWND window) {
  RECT room{};
  GetClientRect(window, &room);
  return {room.right, room.bottom};
}

void Put(HWND window, int left, int top, int width, int height) {
  SetWindowPos(window, nullptr, left, top, std::max(width, 0), std::max(height, 0), SWP_NOZORDER | SWP_NOACTIVATE);
}

/// Gives a control a place, and leaves its size to the program, which lays it out.
void PutControl(controls::Control& control, POINT place, UINT dpi) {
  control.Move(ToTwips(place.x, dpi), ToTwips(place.y, dpi), control.Width(), control.Height());
}

}  // namespace

MainWindow::MainWindow(FMainControls& main, Icons& icons, const platform::DateConventions& dates)
    : TopWindow({.className = L"Dayvane.Main", .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, .icon = kNormalIcon}),
      m_main(main),
      m_menu(main),
      m_statusBar(main.sbrMain, Handle(), CurrentLook()),
      m_client(Handle()),
      m_daily(main.picDaily, m_client.Handle(), CurrentLook()),
      m_favorites(main.picFavorites, m_client.Handle(), CurrentLook()),
      m_calendar(main.calMain, dates.firstDayOfWeek, m_daily.Handle(), CurrentLook()),
      m_tree(main.tvwMain, icons, m_daily.Handle(), CurrentLook()),
      m_splitter(m_daily.Handle(), [this](int left) { SplitDailyPane(left); }),
      m_splitDpi(CurrentLook()->Dpi()),
      m_heading(CreateHeading(m_daily.Handle())),
      m_dailyList(main.lvwDaily, icons, m_daily.Handle(), CurrentLook()),
      m_favoritesList(main.lvwFavorites, icons, m_favorites.Handle(), CurrentLook()),
      m_toolbar(main.picMain[FMainControls::kToolbarStrip], main.sftToolbar, main.linToolbar, Handle(), CurrentLook()),
      m_placement(m_client.Handle(), CurrentLook()),
      m_timer(main.tmrMain),
      m_form(main.form, *this, m_client.Handle()) {
  SetMenu(Handle(), m_menu.Bar());
  m_form.SetAccelerators(m_menu.Keys());
  m_daily.Add(main.calMain, m_calendar.Handle());
  m_daily.Add(main.tvwMain, m_tree.Handle());
  m_daily.Add(main.lvwDaily, m_dailyList.Handle());
  m_favorites.Add(main.lvwFavorites, m_favoritesList.Handle());
  m_placement.Add(main.picDaily, m_daily.Handle());
  m_placement.Add(main.picFavorites, m_favorites.Handle());
  NameForScreenReaders();
  m_isReady = true;
  SetLooks();
  Design();
  DesignForm();
  Connect();
  LayOutFrame();
  m_form.SetFirstFocus(ShownList());
  ShowHeading();
  ShowSuspended();
}

MainWindow::~MainWindow() {
  m_isReady = false;
  SetMenu(Handle(), nullptr);  // a window that ends would end it
}

void MainWindow::Connect() {
  m_connections.push_back(m_main.form.Resize.ConnectScoped([this] { LayOut(); }));
  m_connections.push_back(m_main.picFavorites.Changed.ConnectScoped([this] { FocusWhenViewChanges(); }));
  m_connections.push_back(m_main.tvwMain.SelectionChanged.ConnectScoped([this] { ShowHeading(); }));
  m_connections.push_back(m_main.tvwMain.ContentsChanged.ConnectScoped([this] { ShowHeading(); }));
  m_connections.push_back(m_main.tryMain.Changed.ConnectScoped([this] { ShowSuspended(); }));
}

void MainWindow::NameForScreenReaders() {
  m_tree.SetSpokenName("Days");
  m_dailyList.SetListName("Documents of the day");
  m_favoritesList.SetListName("Favorites");
}

void MainWindow::Design() {
  const UINT dpi = CurrentLook()->Dpi();
  m_main.sbrMain.Move(m_main.sbrMain.Left(), m_main.sbrMain.Top(), m_main.sbrMain.Width(),
                      ToTwips(m_statusBar.IdealHeight(), dpi));
  DesignDailyPane();
  PutControl(m_main.picFavorites, {Pixels(kPaneMargin), Pixels(kPaneMargin)}, dpi);
}

void MainWindow::DesignDailyPane() {
  const UINT dpi = CurrentLook()->Dpi();
  const SIZE calendar = m_calendar.IdealSize();
  const int left = std::max<int>(calendar.cx, m_split);
  PutControl(m_main.picDaily, {Pixels(kPaneMargin), Pixels(kPaneMargin)}, dpi);
  MoveControl(m_main.calMain, {0, 0, left, calendar.cy}, dpi);
  m_main.tvwMain.Move(0, ToTwips(calendar.cy + Pixels(kSplitterWidth), dpi), ToTwips(left, dpi),
                      m_main.tvwMain.Height());
  PutControl(m_main.lvwDaily, {left + Pixels(kSplitterWidth), HeadingHeight()}, dpi);
}

int MainWindow::HeadingHeight() const {
  return CurrentLook()->TextHeight() + 2 * Pixels(kHeadingRoom);
}

SIZE MainWindow::LeastSize() const {
  const SIZE calendar = m_calendar.IdealSize();
  RECT frame{0, 0, calendar.cx + Pixels(kSplitterWidth + kLeastListWidth + 2 * kRoom),
             calendar.cy + Pixels(kSplitterWidth + kLeastTreeHeight + kRoom) + m_statusBar.IdealHeight() +
                 m_toolbar.IdealHeight()};
  AdjustWindowRectExForDpi(&frame, WS_OVERLAPPEDWINDOW, TRUE, 0, CurrentLook()->Dpi());
  return {frame.right - frame.left, frame.bottom - frame.top};
}

void MainWindow::DesignForm() {
  const SIZE least = LeastSize();
  m_form.MoveTo(CentredIn(AvailableScreenFor({}), {std::max<LONG>(Pixels(kUsualSize.cx), least.cx),
                                                   std::max<LONG>(Pixels(kUsualSize.cy), least.cy)}));
}

void MainWindow::ShowHeading() {
  const std::string words = NodeWords(m_main.tvwMain.SelectedItem());
  SetText(m_heading, words);
  m_dailyList.SetSpokenDetail(words);
}

void MainWindow::ShowSuspended() {
  const bool suspended = m_main.tryMain.Picture() == kSuspendedIcon;
  if (std::exchange(m_showsSuspended, suspended) == suspended) return;
  m_statusBar.ShowPicture(suspended ? kSuspendedPicture : kNoPicture,
                          "Suspended: nothing is recorded until you choose Resume.");
  ShowIcon();
}

void MainWindow::ShowIcon() {
  const int picture = m_showsSuspended.value_or(false) ? kSuspendedIcon : kNormalIcon;
  m_icons.Show(Handle(), picture, CurrentLook()->Dpi());
}

void MainWindow::SplitDailyPane(int left) {
  const int least = m_calendar.IdealSize().cx;
  const int most = SizeOf(m_daily.Handle()).cx - Pixels(kSplitterWidth + kLeastListWidth);
  m_split = std::clamp(left, least, std::max(most, least));
  DesignDailyPane();
  FillDailyPane();
}

void MainWindow::FillDailyPane() {
  m_main.picDaily.Resize.Raise();  // the program gives tree and list what is left
  LayOut();
}

void MainWindow::LayOutFrame() {
  const SIZE room = SizeOf(Handle());
  const int strip = m_toolbar.IdealHeight();
  const int status = m_statusBar.IdealHeight();
  const int margin = Pixels(kRoom);
  const UINT dpi = CurrentLook()->Dpi();
  MoveControl(m_main.picMain[FMainControls::kToolbarStrip], {0, 0, room.cx, strip}, dpi);
  Put(m_toolbar.Handle(), 0, 0, room.cx, strip);
  MoveControl(m_main.sbrMain, {0, room.cy - status, room.cx, room.cy}, dpi);
  Put(m_statusBar.Handle(), 0, room.cy - status, room.cx, status);
  // Last: the form is told of its size, and lays out what is inside.
  Put(m_client.Handle(), margin, strip + margin, room.cx - 2 * margin, room.cy - strip - margin);
}

void MainWindow::LayOut() {
  m_placement.PlaceAll();
  const UINT dpi = CurrentLook()->Dpi();
  const SIZE pane = SizeOf(m_daily.Handle());
  const int list = ToPixels(m_main.lvwDaily.Left(), dpi);
  Put(m_splitter.Handle(), list - Pixels(kSplitterWidth), 0, Pixels(kSplitterWidth), pane.cy);
  const int heading = list + Pixels(kHeadingRoom);
  Put(m_heading, heading, 0, pane.cx - heading, HeadingHeight());
}

void MainWindow::FocusWhenViewChanges() {
  const bool showsFavorites = m_main.picFavorites.Visible();
  if (std::exchange(m_showsFavorites, showsFavorites) == showsFavorites) return;
  // A window that is not in front must not come there.
  if (GetActiveWindow() == Handle() && IsWindowVisible(Handle()) != 0)
    SetFocus(ShownList());
  else
    m_form.SetFirstFocus(ShownList());
}

void MainWindow::SetLooks() {
  const SharedLook& look = CurrentLook();
  for (ChildWindow* child : {static_cast<ChildWindow*>(&m_statusBar), static_cast<ChildWindow*>(&m_calendar),
                             static_cast<ChildWindow*>(&m_tree), static_cast<ChildWindow*>(&m_dailyList),
                             static_cast<ChildWindow*>(&m_favoritesList)})
    child->SetLook(look);
  m_toolbar.SetLook(look);
  m_daily.SetLook(look);
  m_favorites.SetLook(look);
  m_placement.SetLook(look);
  SendMessageW(m_heading, WM_SETFONT, reinterpret_cast<WPARAM>(look->BoldFont()), TRUE);
  ShowIcon();
}

void MainWindow::LookChanged() {
  if (!m_isReady) return;
  const UINT dpi = CurrentLook()->Dpi();
  m_split = MulDiv(m_split, static_cast<int>(dpi), static_cast<int>(std::exchange(m_splitDpi, dpi)));
  SetLooks();
  Design();
  LayOutFrame();
  m_main.form.Resize.Raise();
  FillDailyPane();  // also where the pane keeps its size
  RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

LRESULT MainWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!m_isReady) return TopWindow::OnMessage(message, wParam, lParam);
  if (const auto answer = m_form.OnMessage(message, wParam, lParam)) return *answer;
  switch (message) {
    case WM_SIZE:
      if (wParam != SIZE_MINIMIZED) LayOutFrame();
      break;
    case WM_GETMINMAXINFO: {
      const SIZE least = LeastSize();
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {least.cx, least.cy};
      return 0;
    }
    case WM_COMMAND:
      if (lParam == 0 && m_menu.Choose(LOWORD(wParam))) return 0;
      break;
    default:
      break;
  }
  return TopWindow::OnMessage(message, wParam, lParam);
}

}  // namespace dayvane::widgets
