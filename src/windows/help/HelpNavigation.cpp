// SPDX-License-Identifier: MIT
#include "windows/help/HelpNavigation.h"

#include "base/ScopedValue.h"
#include "base/Text.h"
#include "windows/files/WideText.h"

namespace dayvane::help {

namespace {

constexpr int kMargin = 6;

std::wstring WideTitle(const std::string& text) {
  return files::ToWide(text).value_or(L"");
}

}  // namespace

HelpNavigation::HelpNavigation(HWND parent, const widgets::SharedLook& look)
    : Window({L"Dayvane.HelpNavigation", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT, parent}),
      m_look(look),
      m_search({L"EDIT", WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE}, Handle(), look),
      m_tree({WC_TREEVIEWW, WS_VISIBLE | WS_TABSTOP | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_SHOWSELALWAYS,
              WS_EX_CLIENTEDGE},
             Handle(), look),
      m_found({L"LISTBOX", WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, WS_EX_CLIENTEDGE}, Handle(),
              look) {
  m_search.Send(EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(L"Search all topics"));
  m_tree.SetSpokenName("Contents");
  m_found.SetSpokenName("Topics found");
  m_found.SetVisible(false);
  m_search.Commanded = [this](UINT code) {
    if (code == EN_CHANGE) SearchFor();
  };
  m_tree.Notified = [this](NMHDR& notice) {
    if (notice.code == TVN_SELCHANGEDW && !m_quiet) ChooseInTree(notice);
  };
  m_found.Commanded = [this](UINT code) {
    if (code == LBN_SELCHANGE) ChooseFound();
  };
}

void HelpNavigation::SetHelpFile(const HelpFile& file) {
  m_file = &file;
  BuildTree();
  SearchFor();
}

void HelpNavigation::BuildTree() {
  const ScopedValue quiet(m_quiet, true);
  m_items.clear();
  m_tree.Send(WM_SETREDRAW, FALSE);
  m_tree.Send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
  AddEntries();
  m_tree.Send(WM_SETREDRAW, TRUE);
}

void HelpNavigation::AddEntries() {
  std::vector<HTREEITEM> above;  // the item last added on each level
  LPARAM index = 0;
  for (const ContentsEntry& entry : m_file->Contents()) {
    above.resize(static_cast<std::size_t>(entry.depth));
    std::wstring title = WideTitle(m_file->Find(entry.topic)->title);
    TVINSERTSTRUCTW insert{};
    insert.hParent = above.empty() ? TVI_ROOT : above.back();
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM;
    insert.item.pszText = title.data();
    insert.item.lParam = index++;
    above.push_back(reinterpret_cast<HTREEITEM>(m_tree.Send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert))));
    m_items[entry.topic] = above.back();
  }
}

void HelpNavigation::SetEnabled(bool enabled) {
  m_search.SetEnabled(enabled);
  m_tree.SetEnabled(enabled);
  m_found.SetEnabled(enabled);
}

void HelpNavigation::SetLook(const widgets::SharedLook& look) {
  m_look = look;
  for (HelpPart* part : {&m_search, &m_tree, &m_found}) part->SetLook(look);
  LayOut();
}

void HelpNavigation::MarkTopic(const std::string& name) {
  const ScopedValue quiet(m_quiet, true);
  const auto found = m_items.find(name);
  const HTREEITEM item = found == m_items.end() ? nullptr : found->second;
  m_tree.Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
  if (item == nullptr) return;
  m_tree.Send(TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
  m_tree.Send(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
}

void HelpNavigation::FocusSearch() {
  m_search.Focus();
  m_search.Send(EM_SETSEL, 0, -1);
}

void HelpNavigation::SearchFor() {
  const std::string words = files::FromWide(widgets::WideTextOf(m_search.Handle())).value_or("");
  const bool isWanted = m_file != nullptr && !text::Trim(words).empty();
  if (isWanted) ShowFound(words);
  m_found.SetVisible(isWanted);
  m_tree.SetVisible(!isWanted);
}

void HelpNavigation::ShowFound(const std::string& words) {
  m_foundTopics.clear();
  m_found.Send(WM_SETREDRAW, FALSE);
  m_found.Send(LB_RESETCONTENT);
  for (const Topic* topic : m_file->Search(words)) {
    m_found.Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(WideTitle(topic->title).c_str()));
    m_foundTopics.push_back(topic->name);
  }
  if (m_foundTopics.empty()) m_found.Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"No topic holds these words."));
  m_found.Send(WM_SETREDRAW, TRUE);
  InvalidateRect(m_found.Handle(), nullptr, TRUE);
}

bool HelpNavigation::ChooseFirstFound() {
  if (GetFocus() != m_search.Handle() || !m_found.IsVisible()) return false;
  m_found.Focus();
  m_found.Send(LB_SETCURSEL, 0);
  ChooseFound();
  return true;
}

void HelpNavigation::ChooseFound() {
  const LRESULT chosen = m_found.Send(LB_GETCURSEL);
  if (chosen < 0 || static_cast<std::size_t>(chosen) >= m_foundTopics.size()) return;
  if (TopicChosen) TopicChosen(std::string(m_foundTopics[static_cast<std::size_t>(chosen)]));
}

void HelpNavigation::ChooseInTree(const NMHDR& notice) {
  const TVITEMW& item = reinterpret_cast<const NMTREEVIEWW&>(notice).itemNew;
  if (item.hItem == nullptr || m_file == nullptr) return;
  const std::string topic = m_file->Contents()[static_cast<std::size_t>(item.lParam)].topic;
  if (TopicChosen) TopicChosen(topic);
}

void HelpNavigation::LayOut() {
  RECT room;
  GetClientRect(Handle(), &room);
  const int margin = m_look->Pixels(kMargin);
  const int width = static_cast<int>(room.right) - margin;
  const int height = m_look->TextHeight() + m_look->Pixels(8);
  const int top = margin + height + margin;
  m_search.Place(margin, margin, width, height);
  m_tree.Place(margin, top, width, static_cast<int>(room.bottom) - top - margin);
  m_found.Place(margin, top, width, static_cast<int>(room.bottom) - top - margin);
}

LRESULT HelpNavigation::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_SIZE && m_look != nullptr) LayOut();
  return Window::OnMessage(message, wParam, lParam);
}

}  // namespace dayvane::help
