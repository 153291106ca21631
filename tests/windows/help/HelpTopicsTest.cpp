// SPDX-License-Identifier: MIT
#include <algorithm>
#include <gtest/gtest.h>
#include <variant>

#include "help/HelpFile.h"
#include "resources/MHelpConstants.h"
#include "tests/windows/help/HelpSupport.h"
#include "windows/WindowsFileSystem.h"
#include "windows/files/WideText.h"
#include "windows/help/HelpBrowser.h"
#include "windows/help/HelpViewer.h"

/// The help that is shipped, as it was built, shown in the window.
namespace dayvane::help {
namespace {

const HelpFile& Shipped() {
  files::WindowsFileSystem disk;
  static const HelpFile file = HelpFile::Read(disk, testing::ShippedHelpFile(DAYVANE_HELP_FILE));
  return file;
}

/// The letters without blanks, which tables and lists lay out in their own way, and without the bullets of lists.
std::wstring LettersOf(std::wstring text) {
  std::erase_if(text, [](wchar_t letter) { return letter <= L' ' || letter == L'\u2022' || letter == 0xA0; });
  return text;
}

/// Every piece of a body, in its order.
void ForEachPiece(const std::string& body, const std::function<void(const Piece&)>& act) {
  const auto all = [&](const Paragraph& paragraph) { std::ranges::for_each(paragraph.pieces, act); };
  for (const Block& block : ReadMarkup(body)) {
    if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
      all(*paragraph);
      continue;
    }
    for (const std::vector<Cell>& row : std::get<Table>(block).rows)
      for (const Cell& cell : row) std::ranges::for_each(cell.paragraphs, all);
  }
}

class HelpTopicsTest : public ::testing::Test {
 protected:
  HelpViewer viewer{testing::ShippedHelpFile(DAYVANE_HELP_FILE)};
  testing::HelpWindow help{viewer.Handle()};

  void Show(const Topic& topic) {
    const HTREEITEM entry = testing::EntryOf(help.Tree(), files::ToWide(topic.title).value());
    SendMessageW(help.Tree(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(entry));
  }
};

TEST_F(HelpTopicsTest, EveryTopicShowsItsTitleAndWords) {
  viewer.ShowContents();
  for (const Topic& topic : Shipped().Topics()) {
    Show(topic);
    const std::wstring page = testing::PageText(help.Page());
    const std::wstring title = files::ToWide(topic.title).value();
    EXPECT_TRUE(page.starts_with(title + L"\n")) << topic.name;
    std::wstring words;
    ForEachPiece(topic.body, [&](const Piece& piece) {
      if (piece.picture.empty()) words += files::ToWide(piece.text).value();
    });
    EXPECT_EQ(LettersOf(files::ToWide(topic.text).value()), LettersOf(words)) << topic.name;
    const std::wstring shown = LettersOf(page);
    std::size_t from = 0;
    ForEachPiece(topic.body, [&](const Piece& piece) {
      const std::wstring text = LettersOf(piece.picture.empty() ? files::ToWide(piece.text).value() : L"");
      const auto found = shown.find(text, from);
      EXPECT_NE(found, std::wstring::npos) << topic.name << ": " << piece.text;
      if (found != std::wstring::npos) from = found + text.size();
    });
  }
}

TEST_F(HelpTopicsTest, EveryLinkCanBeClickedAndLeadsToATopic) {
  viewer.ShowContents();
  for (const Topic& topic : Shipped().Topics()) {
    Show(topic);
    LONG from = 0;
    ForEachPiece(topic.body, [&](const Piece& piece) {
      if (piece.link.empty()) return;
      EXPECT_NE(Shipped().Find(piece.link), nullptr) << topic.name << " -> " << piece.link;
      const std::wstring text = files::ToWide(piece.text).value();
      LONG place = testing::PlaceOf(help.Page(), text, from);
      while (place >= 0 && !testing::IsLink(help.Page(), place)) place = testing::PlaceOf(help.Page(), text, place + 1);
      EXPECT_GE(place, 0) << topic.name << ": " << piece.text;
      if (place >= 0) from = place + static_cast<LONG>(text.size());
    });
  }
}

TEST(HelpTopics, EveryPictureCanBeDrawn) {
  PagePictures pictures(&Shipped(), 96, 1);
  int count = 0;
  for (const Topic& topic : Shipped().Topics()) {
    ForEachPiece(topic.body, [&](const Piece& piece) {
      if (piece.picture.empty()) return;
      EXPECT_FALSE(pictures.RichText(piece, RGB(255, 255, 255)).empty()) << topic.name << ": " << piece.picture;
      count++;
    });
  }
  EXPECT_GT(count, 30);
}

TEST(HelpTopics, EveryControlIsExplainedWhereItIsAskedAbout) {
  for (const int context : {kHelpFavoritesThreshold, kHelpTimerInterval, kHelpPurgeAge, kHelpDailyList, kHelpCalendar,
                            kHelpDayTree, kHelpFavoritesList, kHelpDailyViewButton, kHelpFavoritesViewButton})
    EXPECT_NE(Shipped().FindContext(context), nullptr) << context;
}

TEST(HelpTopics, NothingIsToldOfOtherSystems) {
  for (const Topic& topic : Shipped().Topics())
    for (const char* word :
         {"Linux", "GNOME", "KDE", "Xfce", "your desktop", "dock", "home folder", ".config", "terminal"})
      EXPECT_EQ(topic.text.find(word), std::string::npos) << topic.name << ": " << word;
}

TEST(HelpTopics, WhereTheProgramKeepsItsFilesAndSettingsIsTold) {
  const Topic* files = Shipped().Find("files");
  ASSERT_NE(files, nullptr);
  for (const char* words : {"Daily", "Favorites.dat", "ErrorLog.txt", "EventLog.txt",
                            "the folder that the program itself", "HKEY_CURRENT_USER\\Software\\Korvath\\Dayvane"})
    EXPECT_NE(files->text.find(words), std::string::npos) << words;
}

}  // namespace
}  // namespace dayvane::help
