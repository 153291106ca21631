// SPDX-License-Identifier: MIT
#include "windows/help/HelpBrowser.h"

#include <algorithm>

#include "windows/help/PageFont.h"

namespace dayvane::help {

namespace {

constexpr int kSmallestZoom = -4;
constexpr int kLargestZoom = 12;
constexpr int kPageMargin = 16;  ///< pixels at 96 dots per inch

}  // namespace

double ScaleOf(const RichPage& window) {
  return static_cast<double>(window.CurrentLook()->Dpi()) / window.DotsPerInch();
}

void LayOutPage(RichPage& window, const std::string& title, const std::vector<Block>& blocks,
                const HelpColours& colours, PagePictures& pictures, int zoom, bool popup) {
  const PageFont font(*window.CurrentLook(), zoom);
  PageLayout layout;
  layout.font = font.Name();
  layout.points = font.Points();
  layout.scale = ScaleOf(window);
  layout.room = MulDiv(window.Room(), USER_DEFAULT_SCREEN_DPI, static_cast<int>(window.CurrentLook()->Dpi()));
  layout.colours = colours;
  layout.measure = [&font](const std::wstring& text, bool isBold) { return font.WidthOf(text, isBold); };
  layout.picture = [&pictures](const Piece& picture, COLORREF background) {
    return pictures.RichText(picture, background);
  };
  window.ShowPage(MakePage(title, blocks, layout, popup), colours.background);
}

HelpBrowser::HelpBrowser(HWND parent, const widgets::SharedLook& look)
    : RichPage(parent, look, WS_TABSTOP | WS_VSCROLL) {
  SetSpokenName("Help page");
  LinkChosen = [this](const std::string& topic) {
    // What leads out of the help is not followed: it shows what came with the program, and nothing else.
    if (m_file == nullptr || m_file->Find(topic) != nullptr) ShowTopic(topic);
  };
}

void HelpBrowser::SetHelpFile(const HelpFile& file) {
  m_file = &file;
  m_problem.clear();
  m_pictures.reset();
}

void HelpBrowser::SetProblem(const std::string& problem) {
  m_file = nullptr;
  m_problem = problem;
  m_pictures.reset();
}

HelpBrowser::Contents HelpBrowser::ContentsOf(const std::string& topic) const {
  if (m_file == nullptr) return {"Help cannot be shown", NoticeBlocks(m_problem, {}, {})};
  if (const Topic* found = m_file->Find(topic)) return {found->title, ReadMarkup(found->body)};
  const std::string text =
      "There is no page on what you asked for. The table of contents may lead you to what you are looking for.";
  return {"No help on this yet", NoticeBlocks(text, m_file->Contents().front().topic, "Go to the first page")};
}

void HelpBrowser::ShowTopic(const std::string& name) {
  Leave();
  m_history.Go(name);
  m_history.Current().scrolled = 0;
  Arrive();
}

void HelpBrowser::Back() {
  Leave();
  m_history.Back();
  Arrive();
}

void HelpBrowser::Forward() {
  Leave();
  m_history.Forward();
  Arrive();
}

void HelpBrowser::Leave() {
  if (!m_history.IsEmpty()) m_history.Current().scrolled = Scrolled();
}

void HelpBrowser::Arrive() {
  if (m_history.IsEmpty()) return;
  m_contents = ContentsOf(m_history.Current().topic);
  LayOut();
  ScrollTo(m_history.Current().scrolled);
  if (TopicShown) TopicShown(m_history.Current().topic, m_contents.title);
}

void HelpBrowser::LayOut() {
  if (!m_pictures) m_pictures.emplace(m_file, CurrentLook()->Dpi(), ScaleOf(*this));
  m_room = Room();
  LayOutPage(*this, m_contents.title, m_contents.blocks, ColoursOf(COLOR_WINDOW, COLOR_WINDOWTEXT), *m_pictures, m_zoom,
             false);
}

void HelpBrowser::ShowAgain() {
  if (m_history.IsEmpty()) return;
  const int scrolled = Scrolled();
  const CHARRANGE selected = Selected();
  LayOut();
  Select(selected.cpMin, selected.cpMax);
  ScrollTo(scrolled);
}

void HelpBrowser::Zoom(int steps) {
  const int zoom = std::clamp(m_zoom + steps, kSmallestZoom, kLargestZoom);
  if (zoom == m_zoom) return;
  m_zoom = zoom;
  ShowAgain();
}

void HelpBrowser::SetLook(const widgets::SharedLook& look) {
  RichPage::SetLook(look);
  m_pictures.reset();
  m_room = 0;
}

void HelpBrowser::PlaceBrowser(const RECT& place) {
  PlaceWithMargin(place, CurrentLook()->Pixels(kPageMargin));
}

void HelpBrowser::FitRoom() {
  if (Room() != m_room) ShowAgain();
}

}  // namespace dayvane::help
