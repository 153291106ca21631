// SPDX-License-Identifier: MIT
#include "windows/help/HelpViewer.h"

#include <algorithm>
#include <utility>

#include "base/Error.h"
#include "resources/MResourceConstants.h"
#include "windows/WindowsFileSystem.h"

namespace dayvane::help {

namespace {

// Pixels at 96 dots per inch.
constexpr SIZE kFirstSize{940, 660};

/// The size of a new window: not larger than nine tenths of its screen.
SIZE FirstSize(HWND window, const widgets::Look& look) {
  MONITORINFO screen{};
  screen.cbSize = sizeof screen;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &screen);
  const LONG width = (screen.rcWork.right - screen.rcWork.left) * 9 / 10;
  const LONG height = (screen.rcWork.bottom - screen.rcWork.top) * 9 / 10;
  return {std::min<LONG>(look.Pixels(kFirstSize.cx), width), std::min<LONG>(look.Pixels(kFirstSize.cy), height)};
}

}  // namespace

HelpViewer::HelpViewer(std::string helpFile)
    : TopWindow({L"Dayvane.HelpViewer", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT, nullptr, 0,
                 COLOR_3DFACE, kNormalIcon}),
      m_path(std::move(helpFile)),
      m_toolbar(Handle(), CurrentLook()),
      m_navigation(Handle(), CurrentLook()),
      m_browser(Handle(), CurrentLook()),
      m_findBar(Handle(), CurrentLook(), m_browser) {
  widgets::SetText(Handle(), "Dayvane Help");
  m_toolbar.Enable(HelpCommand::Back, false);
  m_toolbar.Enable(HelpCommand::Forward, false);
  m_browser.SetVisible(true);
  Connect();
  const SIZE size = FirstSize(Handle(), *CurrentLook());
  SetWindowPos(Handle(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void HelpViewer::Connect() {
  m_navigation.TopicChosen = [this](const std::string& topic) { m_browser.ShowTopic(topic); };
  m_browser.TopicShown = [this](const std::string& topic, const std::string& title) { PageChanged(topic, title); };
  m_findBar.OpenedOrClosed = [this] { LayOut(); };
}

/// Reads the help file unless it is read already: one that was missing may have been installed since.
bool HelpViewer::Load() {
  if (m_file) return true;
  try {
    files::WindowsFileSystem files;
    m_file = HelpFile::Read(files, m_path);
  } catch (const Error& error) {
    // Not an error to report: the window itself says where the help file should be.
    m_browser.SetProblem(error.Description() + " It should be here: " + m_path +
                         ". Installing Dayvane again brings it back.");
    m_navigation.SetEnabled(false);
    return false;
  }
  m_browser.SetHelpFile(*m_file);
  m_navigation.SetHelpFile(*m_file);
  m_navigation.SetEnabled(true);
  return true;
}

void HelpViewer::ShowContents() {
  Load();
  ShowHome();
  Present();
}

void HelpViewer::ShowTopic(int contextId) {
  const Topic* topic = Load() ? m_file->FindContext(contextId) : nullptr;
  if (topic != nullptr)
    m_browser.ShowTopic(topic->name);
  else
    m_browser.ShowUnknownContext();
  Present();
}

void HelpViewer::ShowPopup(int contextId, POINT at) {
  const Topic* topic = Load() ? m_file->FindContext(contextId) : nullptr;
  if (topic == nullptr) {
    ShowTopic(contextId);
    return;
  }
  m_popup.reset();
  m_popup = std::make_unique<HelpPopup>(*m_file, *topic, at, GetActiveWindow());
  m_popup->TopicChosen = [this](const std::string& name) {
    m_browser.ShowTopic(name);
    Present();
  };
}

void HelpViewer::ShowHome() {
  m_browser.ShowTopic(m_file ? m_file->Contents().front().topic : std::string());
}

void HelpViewer::PageChanged(const std::string& topic, const std::string& title) {
  m_navigation.MarkTopic(topic);
  m_toolbar.Enable(HelpCommand::Back, m_browser.History().CanGoBack());
  m_toolbar.Enable(HelpCommand::Forward, m_browser.History().CanGoForward());
  const std::string program = "Dayvane Help";
  widgets::SetText(Handle(), title == program ? title : title + " - " + program);
}

void HelpViewer::Present() {
  ShowWindow(Handle(), IsIconic(Handle()) != 0 ? SW_RESTORE : SW_SHOW);
  BringToFront();
  m_browser.Focus();
}

void HelpViewer::BringToFront() const {
  BringWindowToTop(Handle());
  SetForegroundWindow(Handle());
}

void HelpViewer::Hide() {
  ShowWindow(Handle(), SW_HIDE);
}

void HelpViewer::Do(HelpCommand command) {
  switch (command) {
    case HelpCommand::Back:
      return m_browser.Back();
    case HelpCommand::Forward:
      return m_browser.Forward();
    case HelpCommand::FirstPage:
      return ShowHome();
    case HelpCommand::LargerText:
      return m_browser.Zoom(1);
    case HelpCommand::SmallerText:
      return m_browser.Zoom(-1);
    case HelpCommand::NormalText:
      return m_browser.ResetZoom();
    case HelpCommand::Search:
      return m_navigation.FocusSearch();
    case HelpCommand::Find:
      return m_findBar.Open();
  }
}

void HelpViewer::LookChanged() {
  m_toolbar.SetLook(CurrentLook());
  m_navigation.SetLook(CurrentLook());
  m_findBar.SetLook(CurrentLook());
  m_browser.SetLook(CurrentLook());
  LayOut();
}

void HelpViewer::LayOut() {
  RECT room;
  GetClientRect(Handle(), &room);
  const int top = m_toolbar.WantedHeight();
  m_toolbar.Place(0, 0, static_cast<int>(room.right), top);
  const RECT splitter = Splitter();
  SetWindowPos(m_navigation.Handle(), nullptr, 0, top, splitter.left, room.bottom - top, SWP_NOZORDER | SWP_NOACTIVATE);
  const int below = m_findBar.IsOpen() ? m_findBar.WantedHeight() : 0;
  SetWindowPos(m_findBar.Handle(), nullptr, splitter.right, room.bottom - below, room.right - splitter.right, below,
               SWP_NOZORDER | SWP_NOACTIVATE);
  m_browser.PlaceBrowser({splitter.right, top, room.right, room.bottom - below});
  if (!m_isDragged) m_browser.FitRoom();
}

}  // namespace dayvane::help
