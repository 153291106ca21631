// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <gmock/gmock.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/TemporaryFolder.h"
#include "tests/windows/session/RemoteControls.h"
#include "tests/windows/session/RemoteProgram.h"
#include "tests/windows/session/UserInput.h"

namespace dayvane::session {

using std::chrono::local_days;

/// The user's settings of the program, whatever they are, are not touched: these tests run in an environment of their
/// own, made for them.
class SessionTest : public ::testing::Test {
 protected:
  // Of the toolbar, which has no button for what does nothing.
  static constexpr int kDailyButton = 0;
  static constexpr int kFavoritesButton = 1;
  static constexpr int kExploreButton = 2;
  static constexpr int kFindButton = 4;
  static constexpr int kFirstStyleButton = 5;
  static constexpr int kHelpButton = 9;

  void SetUp() override;
  void TearDown() override;

  // What is there before the program starts
  void StoreSetting(const std::string& subtree, const std::string& name, const std::string& text);
  void StoreUsualOptions();  ///< so that a start is no first run; a tick each second
  std::string Setting(const std::string& subtree, const std::string& name) const;

  /// The user opens a document, which is made where it is missing, so many days before today.
  void OpenDocument(const std::string& name, int daysAgo = 0);
  static void PutIntoRecentFolder(const std::string& name, const std::string& bytes);
  std::string DocumentPath(const std::string& name) const { return m_documents.Path() + "\\" + name; }
  testing::TemporaryFolder& Documents() { return m_documents; }

  // The program
  void Start();           ///< returns when the main window is shown
  void LaunchFirstRun();  ///< returns when the welcome is shown
  void End();             ///< by the menu; expects that it ends well
  RemoteProgram& Program() { return *m_program; }
  std::unique_ptr<RemoteProgram> LaunchSecond() const;

  // The main window
  HWND Main() const { return m_main; }
  HWND List() const { return Child("SysListView32", "Documents of the day"); }
  HWND Favorites() const { return Child("SysListView32", "Favorites"); }
  HWND Tree() const { return Child("SysTreeView32", "Days"); }
  HWND Calendar() const { return Child("SysMonthCal32", ""); }
  HWND Toolbar() const { return Child("ToolbarWindow32", ""); }
  HWND StatusBar() const { return Child("msctls_statusbar32", ""); }
  HWND Child(const std::string& className, const std::string& text) const;
  std::string Title() const { return TextOf(Main()); }

  void ChooseMenu(const std::string& accessKeys);  ///< of the menu, then of its entries
  void PressTool(int button);
  bool CanPressTool(int button) const;
  bool HasOpenMenu() const;
  void ClickNode(const std::string& text);
  void ClickRow(HWND list, const std::string& name);
  int RowOf(HWND list, const std::string& name) const;

  std::string AnswerBox(WORD button);  ///< IDOK, IDYES, IDNO; waits for the box and returns what it says

  // What lies on the disk
  std::string DataPath(const std::string& name) const { return m_folder.Path() + "\\" + name; }
  static std::string DayName(int daysAgo);  ///< two digits
  std::string FiledPath(const std::string& document, int daysAgo) const;
  bool IsFiled(const std::string& document, int daysAgo) const;
  bool Exists(const std::string& path) const;

  /// Waits until both are the same, and fails with both when they do not become it.
  template <class Expected, class Actual>
  void ExpectSoon(const Expected& expected, Actual actual, std::chrono::milliseconds longest = kSoon) {
    try {
      WaitUntil([&] { return expected == actual(); }, "it", longest);
    } catch (const std::runtime_error&) {  // told with both values
    }
    EXPECT_EQ(expected, actual());
  }

 private:
  testing::TemporaryFolder m_folder;     ///< of the program
  testing::TemporaryFolder m_documents;  ///< of the user
  std::unique_ptr<RemoteProgram> m_program;
  HWND m_main = nullptr;
};

}  // namespace dayvane::session
