// SPDX-License-Identifier: MIT

// The Daily view: the repository as a tree, the selected day's documents as a list.

#include "app/IgnoreErrors.h"
#include "app/MDayvane.h"
#include "app/ReportErrors.h"
#include "base/Error.h"
#include "base/ScopedValue.h"
#include "base/Text.h"
#include "capture/CFileInfo.h"
#include "capture/CShortcut.h"
#include "controls/Keys.h"
#include "fs/Dir.h"
#include "shell/FMain.h"
#include "views/DailyTree.h"
#include "views/EmptyWords.h"
#include "views/Keys.h"

namespace dayvane {

using views::KeyOf;
using views::PathOf;

namespace {

/// A node's picture tells its level.
bool IsDay(const controls::TreeNode& node) {
  return node.image == kDayPicture;
}

/// A text that sorts as the moments do: the time of day as people read it ("9:00 AM") does not.
std::string OrderText(const platform::FileMoment& moment) {
  constexpr std::size_t kDigits = 20;
  const std::string text = std::to_string(static_cast<std::uint64_t>(moment.nanoseconds) + (std::uint64_t{1} << 63U));
  return std::string(kDigits - text.size(), '0') + text;
}

}  // namespace

void FMain::FindLatestDay() {
  ReportErrors(m_application, kFindingLatestDay, kName, "FindLatestDay", [this] {
    Assert(m_oCalendar != nullptr, ".FindLatestDay: Calendar object is nothing");
    const Date latest = LatestDay();
    if (!latest.IsZero()) m_oCalendar->SetValue(latest);
  });
}

Date FMain::LatestDay() const {
  try {
    return m_repository.FindLatestDay();
  } catch (const Error&) {
    // Until something is filed in a new language the latest year may hold only months of those before.
    const Date latest = m_repository.FindLatestDayOfFormerLanguages();
    if (latest.IsZero()) throw;
    return latest;
  }
}

void FMain::RefreshDaily() {
  const controls::UpdateScope updateTree(tvwMain);
  const controls::UpdateScope updateList(lvwDaily);
  const std::string nodeKey = tvwMain.SelectedKey();
  tvwMain.Clear();
  const std::string rowKey = lvwDaily.SelectedKey();
  lvwDaily.Clear();
  ShowListedDay(nullptr);
  const std::string& root = m_repository.DailyPath();
  tvwMain.AddRoot(KeyOf(root), ResourceString(kDaily), kRepositoryPicture);
  LoadDailyTreeViewFolder(root, dailytree::kYearLevel);
  if (!nodeKey.empty()) SelectAgain(nodeKey, rowKey);
  lvwDaily.SetEmptyText(emptywords::OfDay(tvwMain));
  FollowSelection();
}

void FMain::SelectAgain(const std::string& nodeKey, const std::string& rowKey) {
  controls::TreeNode* node = tvwMain.Find(nodeKey);
  tvwMain.SetSelectedItem(node);
  lvwDaily.SetSorted(true);
  if (node == nullptr) return;
  LoadDailyListView(node);
  if (!rowKey.empty()) lvwDaily.SetSelectedItem(&lvwDaily.Item(rowKey));
}

void FMain::RefreshCalendar() {
  m_oCalendar->HighlightDays(m_oCalendar->Value());
}

void FMain::LoadDailyTreeViewFolder(const std::string& folder, int level) {
  Assert(!text::Trim(folder).empty(), ".LoadDailyTreeViewFolder: Folder is missing");
  Assert(level >= 1, ".LoadDailyTreeViewFolder: Level is 0");
  std::vector<std::string> names;
  // A folder that cannot be read is shown as a leaf, so that one of them does not hide all other days.
  try {
    names = dailytree::NodeNames(m_application.desktop.files, folder, level);
  } catch (const Error& error) {
    m_application.eventLog.Append(error.what(), EventKind::Warning);
  }
  dailytree::Arrange(names, level, m_application.desktop.dates, m_application.monthLanguages);
  for (const std::string& name : names) {
    const std::string path = folder + "\\" + name;
    auto& node = tvwMain.AddChild(KeyOf(folder), KeyOf(path), name, level);
    if (level == dailytree::kDayLevel)
      IgnoreErrors([&] { node.day = PathToDate(m_application, path).LocalDay(); });  // a folder may have any name
    else
      LoadDailyTreeViewFolder(path, level + 1);
  }
}

void FMain::SelectDate(const Date& date) {
  ReportErrors(m_application, kSelectingDate, kName, "SelectDate", [&] {
    Assert(!date.IsZero(), ".SelectDate: Selected date is missing");
    controls::TreeNode& node = tvwMain.Node(KeyOf(m_repository.DayFolder(date)));
    tvwMain.SetSelectedItem(&node);
    LoadDailyListView(&node);
  });
}

void FMain::LoadDailyListView(const controls::TreeNode* node) {
  const controls::UpdateScope update(lvwDaily);
  lvwDaily.Clear();
  lvwDaily.SetImages(nullptr, nullptr);
  // The icons live only as long as one day's list.
  for (controls::ImageList* images : {&imlLarge, &imlSmall})
    while (images->Count() > 1) images->RemoveLast();
  lvwDaily.SetImages(&imlLarge, &imlSmall);
  ShowListedDay(node);
  if (node == nullptr) return;
  if (!m_inTreeClick) SetExploreOpen(false);
  const std::string folder = PathOf(node->key);
  CShortcut shortcut(m_application);
  for (const auto& entry : Dir(m_application.desktop.files, folder + "\\*.lnk", DirKinds::Files)) {
    shortcut.SetFile(folder + "\\" + entry.name);
    AddDocument(KeyOf(shortcut.File()), shortcut);
  }
  lvwDaily.SetSorted(lvwDaily.Sorted());
  lvwDaily.SetEmptyText(emptywords::OfDay(tvwMain));
}

/// A day without documents can be chosen in the calendar: there it is seen that the list is still of another.
void FMain::ShowListedDay(const controls::TreeNode* node) {
  if (m_oCalendar) m_oCalendar->SetListed(node == nullptr ? std::nullopt : node->day);
}

void FMain::AddDocument(const std::string& key, const CShortcut& shortcut) {
  const int icon = DailyImageListIndex(shortcut.File(), shortcut.TargetFileName());
  const std::string& name = shortcut.FileName();
  auto& item = lvwDaily.Add(key, name.substr(0, name.size() - std::string_view(".lnk").size()), icon);
  item.subItems = {shortcut.TargetClass(), m_application.shellServices.DisplayPath(shortcut.WorkingDirectory()),
                   Format(shortcut.Modified(), "Short Time", m_application.desktop.dates)};
  item.sortTexts[DocumentListView::kModifiedColumn] = OrderText(shortcut.LastWritten());
}

int FMain::DailyImageListIndex(const std::string& shortcutFileName, const std::string& targetFileName) {
  Assert(!text::Trim(shortcutFileName).empty(), ".DailyImageListIndex: Shortcut file name is missing");
  Assert(!text::Trim(targetFileName).empty(), ".DailyImageListIndex: Target file name is missing");
  return ImageListIndex(imlLarge, imlSmall, shortcutFileName, targetFileName);
}

int FMain::ImageListIndex(controls::ImageList& large, controls::ImageList& small, const std::string& shortcutFileName,
                          const std::string& targetFileName) {
  const int known = large.IndexOf(KeyOf(targetFileName));
  if (known != 0) return known;
  CFileInfo fileInfo(m_application);
  fileInfo.SetItem(shortcutFileName);
  const auto shellIcon = fileInfo.ShellIcon();
  const auto smallIcon = fileInfo.SmallIcon();
  if (!shellIcon || !smallIcon) return 1;
  small.Add(*smallIcon, KeyOf(targetFileName));
  return large.Add(*shellIcon, KeyOf(targetFileName));
}

void FMain::m_oDaily_ListViewDblClick(const controls::ListItem& item) {
  ReportErrors(m_application, kOpeningDocument, kName, "m_oDaily_ListViewDblClick", [&] {
    auto waitCursor = ShowWait();
    OpenDocument(&item);
    RefreshStatusBar(std::move(waitCursor));
  });
}

void FMain::m_oDaily_ListViewItemClick() {
  ReportErrors(m_application, kProcessingSelection, kName, "m_oDaily_ListViewItemClick",
               [this] { SetExploreOpen(true); });
}

void FMain::m_oDaily_ListViewPopupMenu(double x, double y) {
  ReportErrors(m_application, kDisplayingContextMenu, kName, "m_oDaily_ListViewPopupMenu",
               [&] { m_application.desktop.windowing.PopupMenu(form, mnuListViewPopup, x, y); });
}

void FMain::tvwMain_MouseUp(int button, double x, double y) {
  if (button != controls::kRightButton || tvwMain.SelectedItem() == nullptr) return;
  // Only a day can be purged. That a node has no children does not make it one: the repository itself may be empty.
  if (!IsDay(*tvwMain.SelectedItem())) return;
  ReportErrors(m_application, kDisplayingContextMenu, kName, "tvwMain_MouseUp", [&] {
    m_application.desktop.windowing.PopupMenu(form, mnuTreeViewPopup, picDaily.Left() + tvwMain.Left() + x,
                                              picDaily.Top() + tvwMain.Top() + y);
  });
}

void FMain::m_oCalendar_DateChange(const Date& newDate) {
  if (m_inTreeClick) return;
  ReportErrors(m_application, kSelectingDate, kName, "m_oCalendar_DateChange", [&] {
    // Days without documents are walked over on the way to others: there the list stays as it was, and no error is
    // reported at every step.
    if (tvwMain.Find(KeyOf(m_repository.DayFolder(newDate))) != nullptr) SelectDate(newDate);
    RefreshStatusBar();
  });
}

void FMain::m_oDaily_TreeViewNodeClick(const controls::TreeNode& node) {
  ReportErrors(m_application, kProcessingSelection, kName, "m_oDaily_TreeViewNodeClick", [&] {
    Assert(m_oCalendar != nullptr, ".m_oDaily_TreeViewNodeClick: Calendar object is nothing");
    // A repository, year or month has no date of its own, with or without days.
    if (!IsDay(node)) {
      LoadDailyListView(&node);
      RefreshStatusBar();
      return;
    }
    auto waitCursor = ShowWait();
    LoadDailyListView(&node);
    {
      const ScopedValue inTreeClick(m_inTreeClick, true);
      m_oCalendar->SetValue(PathToDate(m_application, node.key));
    }
    RefreshStatusBar(std::move(waitCursor));
  });
}

}  // namespace dayvane
