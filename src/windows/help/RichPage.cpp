// SPDX-License-Identifier: MIT
#include "windows/help/RichPage.h"

#include <algorithm>

namespace dayvane::help {

namespace {

constexpr WPARAM kFindDown = 1;  ///< FR_DOWN of commdlg.h

constexpr std::size_t kMostLinks = 2000;  ///< of a page; those beyond it are text

/// The class of the rich text, whose library must be there before the first window of it. It is never unloaded.
const wchar_t* RichTextClass() {
  static const HMODULE library = LoadLibraryExW(L"msftedit.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  return library == nullptr ? L"" : L"RICHEDIT50W";
}

}  // namespace

RichPage::RichPage(HWND parent, const widgets::SharedLook& look, DWORD moreStyle)
    : HelpPart({RichTextClass(), ES_MULTILINE | ES_READONLY | ES_NOHIDESEL | moreStyle}, parent, look),
      m_scrolls((moreStyle & WS_VSCROLL) != 0) {
  Send(EM_SETEVENTMASK, 0, ENM_LINK);
  Send(EM_SETUNDOLIMIT, 0);
  Send(EM_EXLIMITTEXT, 0, 0x7FFFFFFE);
  IRichEditOleCallback* storage = new PictureStorage();
  storage->AddRef();
  Send(EM_SETOLECALLBACK, 0, reinterpret_cast<LPARAM>(storage));
  storage->Release();
  MeasureDots();
}

void RichPage::SetLook(const widgets::SharedLook& look) {
  HelpPart::SetLook(look);
  MeasureDots();
}

/// Half an inch, as wide as it comes out.
void RichPage::MeasureDots() {
  RECT place;
  GetWindowRect(Handle(), &place);
  MapWindowPoints(nullptr, GetParent(Handle()), reinterpret_cast<POINT*>(&place), 2);
  SetWindowPos(Handle(), nullptr, 0, 0, 1000, 100, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
  Load("{\\rtf1\\pard\\tx720 a\\tab b}");
  POINTL first{};
  POINTL last{};
  Send(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&first), 0);
  Send(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&last), 2);
  const int dots = 2 * (last.x - first.x);
  m_dotsPerInch = dots >= 48 && dots <= 960 ? dots : static_cast<int>(GetDpiForSystem());
  Place(place.left, place.top, place.right - place.left, place.bottom - place.top);
}

void RichPage::PlaceWithMargin(const RECT& place, int margin) {
  m_margin = margin;
  Place(place.left, place.top, place.right - place.left, place.bottom - place.top);
  RECT room;
  GetClientRect(Handle(), &room);
  InflateRect(&room, -margin, -margin / 2);
  Send(EM_SETRECT, 0, reinterpret_cast<LPARAM>(&room));
}

int RichPage::Room() const {
  RECT room;
  GetWindowRect(Handle(), &room);
  LONG width = room.right - room.left - 2 * m_margin;
  // Kept free also where the page needs none: one that comes would take its room from the lines.
  if (m_scrolls) width -= GetSystemMetricsForDpi(SM_CXVSCROLL, CurrentLook()->Dpi());
  return std::max<int>(width, 1);
}

int RichPage::PageHeight() const {
  GETTEXTLENGTHEX all{GTL_NUMCHARS, 1200};
  const LRESULT end = Send(EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&all));
  POINTL first{};
  POINTL last{};
  Send(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&first), 0);
  Send(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&last), end);
  return static_cast<int>(last.y - first.y) + CurrentLook()->TextHeight();
}

void RichPage::ShowPage(const Page& page, COLORREF background) {
  Send(WM_SETREDRAW, FALSE);
  Send(EM_SETREADONLY, FALSE);
  Send(EM_SETBKGNDCOLOR, 0, static_cast<LPARAM>(background));
  Load(page.richText);
  MarkLinks(page.links);
  Send(EM_SETREADONLY, TRUE);
  Select(0, 0);
  ScrollTo(0);
  Send(WM_SETREDRAW, TRUE);
  RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

void RichPage::Load(const std::string& richText) const {
  SETTEXTEX how{ST_DEFAULT, CP_ACP};
  Send(EM_SETTEXTEX, reinterpret_cast<WPARAM>(&how), reinterpret_cast<LPARAM>(richText.c_str()));
}

/// Finds the links by their texts and marks them: not every system's rich text knows links in RTF, and where tables
/// are, nobody can tell from outside which place a text has.
void RichPage::MarkLinks(const std::vector<PageLink>& links) {
  m_links.clear();
  LONG from = 0;
  for (const PageLink& link : links) {
    if (m_links.size() == kMostLinks) break;
    CHARRANGE found{};
    bool isFound = Find(link.text, {from, -1}, false, found);
    // The same words may stand before it without being a link.
    while (isFound && !IsUnderlined(found)) isFound = Find(link.text, {found.cpMax, -1}, false, found);
    if (!isFound) continue;
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    format.dwMask = CFM_LINK;
    format.dwEffects = CFE_LINK;
    Select(found.cpMin, found.cpMax);
    Send(EM_SETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    m_links.push_back({found, link.topic});
    from = found.cpMax;
  }
}

bool RichPage::IsUnderlined(const CHARRANGE& range) const {
  CHARFORMAT2W format{};
  format.cbSize = sizeof format;
  Select(range.cpMin, range.cpMax);
  Send(EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
  return (format.dwMask & CFM_UNDERLINE) != 0 && (format.dwEffects & CFE_UNDERLINE) != 0;
}

bool RichPage::Find(const std::wstring& text, CHARRANGE range, bool backward, CHARRANGE& found) const {
  FINDTEXTEXW find{};
  find.chrg = range;
  find.lpstrText = text.c_str();
  const LRESULT place = Send(EM_FINDTEXTEXW, backward ? 0 : kFindDown, reinterpret_cast<LPARAM>(&find));
  found = find.chrgText;
  return place >= 0;
}

bool RichPage::FindNext(const std::wstring& text) const {
  CHARRANGE found{};
  if (!Find(text, {Selected().cpMax, -1}, false, found)) return false;
  Select(found.cpMin, found.cpMax);
  return true;
}

bool RichPage::FindPrevious(const std::wstring& text) const {
  CHARRANGE found{};
  if (!Find(text, {Selected().cpMin, 0}, true, found)) return false;
  Select(found.cpMin, found.cpMax);
  return true;
}

void RichPage::Select(LONG first, LONG end) const {
  CHARRANGE range{first, end};
  Send(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
  Send(EM_SCROLLCARET);
}

CHARRANGE RichPage::Selected() const {
  CHARRANGE range{};
  Send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
  return range;
}

int RichPage::Scrolled() const {
  POINT scrolled{};
  Send(EM_GETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&scrolled));
  return scrolled.y;
}

void RichPage::ScrollTo(int pixels) const {
  POINT place{0, pixels};
  Send(EM_SETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&place));
}

const RichPage::Link* RichPage::LinkAt(LONG place) const {
  const auto holds = [&](const Link& link) { return place >= link.place.cpMin && place < link.place.cpMax; };
  const auto found = std::ranges::find_if(m_links, holds);
  return found == m_links.end() ? nullptr : &*found;
}

bool RichPage::SelectLink(bool backward) const {
  const CHARRANGE selected = Selected();
  const auto follows = [&](const Link& link) {
    return backward ? link.place.cpMax <= selected.cpMin : link.place.cpMin >= selected.cpMax;
  };
  const Link* next = nullptr;
  for (const Link& link : m_links) {
    if (!follows(link)) continue;
    next = &link;
    if (!backward) break;
  }
  if (next != nullptr) Select(next->place.cpMin, next->place.cpMax);
  return next != nullptr;
}

bool RichPage::FollowSelectedLink() {
  const Link* link = LinkAt(Selected().cpMin);
  if (link == nullptr) return false;
  if (LinkChosen) LinkChosen(std::string(link->topic));  // a copy: the page may be another one before it returns
  return true;
}

std::optional<LRESULT> RichPage::OnNotify(NMHDR& notice) {
  if (notice.code != EN_LINK) return HelpPart::OnNotify(notice);
  const auto& about = reinterpret_cast<const ENLINK&>(notice);
  const Link* link = LinkAt(about.chrg.cpMin);
  if (about.msg != WM_LBUTTONUP || link == nullptr) return std::nullopt;
  // A drag over a link selects its words; it does not follow it.
  const CHARRANGE selected = Selected();
  if (selected.cpMin == selected.cpMax && LinkChosen) LinkChosen(std::string(link->topic));
  return std::nullopt;
}

LRESULT RichPage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT answer = HelpPart::OnMessage(message, wParam, lParam);
  // Nothing can be typed, but some systems show their caret anew with whatever is selected or scrolled.
  if (message != WM_PAINT && Handle() != nullptr && GetFocus() == Handle()) HideCaret(Handle());
  if ((message == WM_LBUTTONUP || message == WM_RBUTTONUP) && Clicked) Clicked();
  return answer;
}

}  // namespace dayvane::help
