// SPDX-License-Identifier: MIT

// How long a long list keeps its user waiting, beside a list of the system's own with as many rows.

#include <algorithm>
#include <random>

#include "bench/windows/Figures.h"
#include "tests/windows/widgets/TestWindow.h"
#include "windows/widgets/ListPresenter.h"

namespace dayvane::bench {
namespace {

constexpr int kRows = 50'000;
constexpr int kRounds = 5;
constexpr int kWidth = 700;
constexpr int kHeight = 500;

const controls::ImageList* NoImages() {
  return nullptr;
}

/// Names in no order, the same at every run.
std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (int row = 0; row < kRows; ++row) names.push_back("Document number " + std::to_string(row) + ".odt");
  std::shuffle(names.begin(), names.end(), std::mt19937(1));  // NOLINT(cert-msc51-cpp)
  return names;
}

/// A list of documents as the Daily view has it.
class DocumentList {
 public:
  DocumentList() {
    m_control.SetColumns(
        {{"Name", controls::ColumnKind::Name}, {"Type"}, {"Path", controls::ColumnKind::Path}, {"Modified"}});
    m_control.SetImages(NoImages(), NoImages());
    const controls::UpdateScope update(m_control);
    int row = 0;
    for (const std::string& name : Names()) {
      controls::ListItem& item = m_control.Add("K" + name, name, 0);
      item.subItems = {"Type " + std::to_string(row % 20), "C:\\Users\\ana\\Documents\\project " + name.substr(16),
                       std::to_string(row * 7 % 86400)};
      ++row;
    }
  }

  HWND Handle() const { return m_presenter.Handle(); }

  /// What a click on the head of a column does.
  void SortBy(std::size_t column, controls::SortOrder order) {
    const controls::UpdateScope update(m_control);
    m_control.SetSortKey(column);
    m_control.SetSortOrder(order);
    m_control.SetSorted(true);
  }

  std::size_t Columns() const { return m_control.Columns().size(); }
  const std::string& HeadOf(std::size_t column) const { return m_control.Columns()[column].text; }

 private:
  widgets::TestWindow m_window;
  controls::ListView m_control;
  widgets::Icons m_icons;
  widgets::ListPresenter m_presenter{m_control, m_icons, m_window.Handle(), m_window.CurrentLook()};
};

/// The system's list, which asks for the texts of as many rows.
class BareList : public widgets::TestWindow {
 public:
  BareList() {
    for (const std::string& name : Names()) m_names.push_back(files::ToWide(name).value());
    m_list = CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"",
                             WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL, 0, 0, 0, 0,
                             Window::Handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
    constexpr DWORD kLook = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;
    SendMessageW(m_list, LVM_SETEXTENDEDLISTVIEWSTYLE, kLook, kLook);
    LVCOLUMNW column{};
    column.mask = LVCF_WIDTH;
    column.cx = kWidth / kColumns;
    for (int index = 0; index < kColumns; ++index)
      SendMessageW(m_list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column));
    SendMessageW(m_list, LVM_SETITEMCOUNT, kRows, 0);
  }

  HWND List() const { return m_list; }

  void Sort() {
    std::vector<std::wstring> sorted = m_names;
    std::stable_sort(sorted.begin(), sorted.end());
    m_shown = std::move(sorted);
    InvalidateRect(m_list, nullptr, TRUE);
  }

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    auto* notice = message == WM_NOTIFY ? reinterpret_cast<NMLVDISPINFOW*>(lParam) : nullptr;
    if (notice == nullptr || notice->hdr.code != LVN_GETDISPINFOW)
      return widgets::TestWindow::OnMessage(message, wParam, lParam);
    std::vector<std::wstring>& names = m_shown.empty() ? m_names : m_shown;
    if ((notice->item.mask & LVIF_TEXT) != 0)
      notice->item.pszText = names[static_cast<std::size_t>(notice->item.iItem)].data();
    return 0;
  }

 private:
  static constexpr int kColumns = 4;

  HWND m_list = nullptr;
  std::vector<std::wstring> m_names;
  std::vector<std::wstring> m_shown;
};

/// The list is as large as its window, has the keyboard and is painted.
void Open(HWND list) {
  MoveWindow(list, 0, 0, kWidth, kHeight, TRUE);
  SetFocus(list);
  widgets::HandleMessages();
}

/// Until everything that the act changed is painted.
double Paused(HWND list, const std::function<void()>& act) {
  return Seconds([&] {
    act();
    widgets::HandleMessages();
    UpdateWindow(list);
  });
}

/// The longest of many pages, from the top.
double SlowestPage(HWND list) {
  constexpr int kPages = 20;
  double slowest = 0;
  Paused(list, [&] { widgets::Press(list, VK_HOME); });
  for (int page = 0; page < kPages; ++page)
    slowest = std::max(slowest, Paused(list, [&] { widgets::Press(list, VK_NEXT); }));
  return slowest;
}

}  // namespace

void MeasureLists(Figures& figures) {
  constexpr double kPageLimit = 0.1;
  constexpr double kSortLimit = 1;
  DocumentList documents;
  BareList bare;
  Open(bare.List());
  Open(documents.Handle());
  const std::string among = " among " + std::to_string(kRows) + " rows";
  figures.AtMost(
      "A page down" + among,
      Measure(
          kRounds, [&] { return SlowestPage(bare.List()); }, [&] { return SlowestPage(documents.Handle()); }),
      kPageLimit, "a bare list");
  for (std::size_t column = 0; column < documents.Columns(); ++column) {
    auto order = controls::SortOrder::Descending;
    const auto sort = [&] {
      order =
          order == controls::SortOrder::Ascending ? controls::SortOrder::Descending : controls::SortOrder::Ascending;
      return Paused(documents.Handle(), [&] { documents.SortBy(column, order); });
    };
    figures.AtMost("A click on " + documents.HeadOf(column) + among,
                   Measure(
                       2, [&] { return Paused(bare.List(), [&] { bare.Sort(); }); }, sort),
                   kSortLimit, "sorting bare names");
  }
}

}  // namespace dayvane::bench
