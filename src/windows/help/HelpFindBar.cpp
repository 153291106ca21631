// SPDX-License-Identifier: MIT
#include "windows/help/HelpFindBar.h"

#include <algorithm>
#include <array>

namespace dayvane::help {

namespace {

constexpr int kGap = 6;

widgets::ChildWindow::Kind Button() {
  return {L"BUTTON", WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON};
}

widgets::ChildWindow::Kind Label() {
  return {L"STATIC", WS_VISIBLE | SS_LEFT | SS_CENTERIMAGE};
}

/// Width of a part's own text, an underlined letter's "&" counted in: it makes up for the edges.
int WidthOf(const HelpPart& part) {
  return static_cast<int>(
      widgets::TextSize(part.CurrentLook()->TextFont(), widgets::WideTextOf(part.Handle()).c_str()).cx);
}

template <class Act>
std::function<void(UINT)> OnClick(Act act) {
  return [act](UINT code) {
    if (code == BN_CLICKED) act();
  };
}

}  // namespace

HelpFindBar::HelpFindBar(HWND parent, const widgets::SharedLook& look, RichPage& page)
    : Window({L"Dayvane.HelpFindBar", WS_CHILD | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT, parent}),
      m_page(page),
      m_look(look),
      m_caption(Label(), Handle(), look),
      m_words({L"EDIT", WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE}, Handle(), look),
      m_next(Button(), Handle(), look),
      m_previous(Button(), Handle(), look),
      m_notFound(Label(), Handle(), look),
      m_close(Button(), Handle(), look) {
  widgets::SetText(m_caption.Handle(), "Find in &page:");
  widgets::SetText(m_next.Handle(), "&Next");
  widgets::SetText(m_previous.Handle(), "P&revious");
  widgets::SetText(m_notFound.Handle(), "Not found");
  widgets::SetText(m_close.Handle(), "&Close");
  m_notFound.SetVisible(false);
  m_words.Commanded = [this](UINT code) {
    if (code == EN_CHANGE) FindWhileTyping();
  };
  m_next.Commanded = OnClick([this] { FindNext(); });
  m_previous.Commanded = OnClick([this] { FindPrevious(); });
  m_close.Commanded = OnClick([this] { Close(); });
}

void HelpFindBar::Open() {
  SetOpen(true);
  m_words.Focus();
  m_words.Send(EM_SETSEL, 0, -1);
}

void HelpFindBar::Close() {
  m_page.Focus();
  SetOpen(false);
}

void HelpFindBar::SetOpen(bool open) {
  m_isOpen = open;
  ShowWindow(Handle(), open ? SW_SHOWNA : SW_HIDE);
  if (OpenedOrClosed) OpenedOrClosed();
}

/// Looks from where the last match began, so that it grows with the word instead of jumping to the next one.
void HelpFindBar::FindWhileTyping() {
  const LONG start = m_page.Selected().cpMin;
  m_page.Select(start, start);
  FindNext();
}

void HelpFindBar::Find(FindOne find) {
  const std::wstring words = widgets::WideTextOf(m_words.Handle());
  m_notFound.SetVisible(!words.empty() && !FindOrWrap(find, words));
}

bool HelpFindBar::FindOrWrap(FindOne find, const std::wstring& words) {
  if ((m_page.*find)(words)) return true;
  const CHARRANGE before = m_page.Selected();
  constexpr LONG kEnd = 0x7FFFFFFF;
  const LONG start = find == &RichPage::FindPrevious ? kEnd : 0;
  m_page.Select(start, start);
  if ((m_page.*find)(words)) return true;
  m_page.Select(before.cpMin, before.cpMax);
  return false;
}

bool HelpFindBar::TakeLetter(WPARAM key) {
  switch (key) {
    case 'P':
      m_words.Focus();
      return true;
    case 'N':
      FindNext();
      return true;
    case 'R':
      FindPrevious();
      return true;
    case 'C':
      Close();
      return true;
    default:
      return false;
  }
}

bool HelpFindBar::PressFocused() {
  for (const HelpPart* button : {&m_next, &m_previous, &m_close}) {
    if (GetFocus() != button->Handle()) continue;
    button->Send(BM_CLICK);
    return true;
  }
  if (GetFocus() != m_words.Handle()) return false;
  FindNext();
  return true;
}

void HelpFindBar::SetLook(const widgets::SharedLook& look) {
  m_look = look;
  for (HelpPart* part : {&m_caption, &m_words, &m_next, &m_previous, &m_notFound, &m_close}) part->SetLook(look);
  LayOut();
}

int HelpFindBar::WantedHeight() const {
  return m_look->TextHeight() + m_look->Pixels(18);
}

/// From left to right; the box for the words has what the others leave.
void HelpFindBar::LayOut() {
  RECT room;
  GetClientRect(Handle(), &room);
  const int gap = m_look->Pixels(kGap);
  const int height = static_cast<int>(room.bottom) - 2 * m_look->Pixels(4);
  const std::array<const HelpPart*, 6> parts{&m_caption, &m_words, &m_next, &m_previous, &m_notFound, &m_close};
  int left = static_cast<int>(room.right) - gap;
  for (const HelpPart* part : parts)
    if (part != &m_words) left -= WidthOf(*part) + 3 * gap;
  const int wordsWidth = std::max(left - 2 * gap, m_look->Pixels(60));
  left = gap;
  for (const HelpPart* part : parts) {
    const int width = part == &m_words ? wordsWidth : WidthOf(*part) + 2 * gap;
    part->Place(left, m_look->Pixels(4), width, height);
    left += width + gap;
  }
}

LRESULT HelpFindBar::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_SIZE && m_look != nullptr) LayOut();
  return Window::OnMessage(message, wParam, lParam);
}

}  // namespace dayvane::help
