// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "tests/windows/widgets/TestWindow.h"
#include "windows/widgets/ListPresenter.h"

namespace dayvane::widgets {

/// A list of documents in a window of its own.
class ListTest : public ::testing::Test {
 protected:
  ListTest() {
    m_control.SetColumns(
        {{"Name", controls::ColumnKind::Name}, {"Type"}, {"Path", controls::ColumnKind::Path}, {"Modified"}});
  }

  void Fill(int rows) {
    const controls::UpdateScope update(m_control);
    m_control.Clear();
    for (int row = 0; row < rows; ++row) Add(row);
  }

  void Add(int row) {
    const std::string number = std::to_string(row);
    m_control.Add("K" + number, "Document " + number, 0).subItems = {"Text", "C:\\Users\\ana", "10:00"};
  }

  HWND Present() {
    m_presenter = std::make_unique<ListPresenter>(m_control, m_icons, m_window.Handle(), m_window.CurrentLook());
    MoveWindow(List(), 0, 0, 600, 400, TRUE);
    SetFocus(List());
    HandleMessages();
    return List();
  }

  HWND List() const { return m_presenter->Handle(); }
  HWND Header() const { return reinterpret_cast<HWND>(SendMessageW(List(), LVM_GETHEADER, 0, 0)); }

  RECT RectOf(const std::string& key, int part = LVIR_LABEL) const {
    RECT place{part, 0, 0, 0};
    SendMessageW(List(), LVM_GETITEMRECT, m_control.RowOf(m_control.Item(key)), reinterpret_cast<LPARAM>(&place));
    return place;
  }

  POINT PlaceOf(const std::string& key) const {
    const RECT place = RectOf(key);
    return {place.left + 5, (place.top + place.bottom) / 2};
  }

  void Click(const std::string& key, int button = VK_LBUTTON) { MouseClick(List(), PlaceOf(key), button); }

  void DoubleClick(POINT at) {
    MouseClick(List(), at);
    SendMessageW(List(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    SendMessageW(List(), WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
  }

  std::string TextAt(std::size_t row, int column) const {
    wchar_t text[512]{};
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = 512;
    SendMessageW(List(), LVM_GETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
    return files::FromWide(text).value_or("");
  }

  int SelectedRow() const {
    return static_cast<int>(SendMessageW(List(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
  }

  int TopRow() const { return static_cast<int>(SendMessageW(List(), LVM_GETTOPINDEX, 0, 0)); }

  bool IsInView(const std::string& key) const {
    RECT room{};
    GetClientRect(List(), &room);
    return PtInRect(&room, PlaceOf(key)) != 0;
  }

  int WidthOfColumn(int column) const {
    return static_cast<int>(SendMessageW(List(), LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0));
  }

  TestWindow m_window;
  controls::ListView m_control;
  Icons m_icons;
  std::unique_ptr<ListPresenter> m_presenter;
};

}  // namespace dayvane::widgets
