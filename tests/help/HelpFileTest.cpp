// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/Error.h"
#include "help/HelpFile.h"
#include "help/PlainText.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestFiles.h"

namespace dayvane::help {
namespace {

std::string Record(const std::string& kind, const std::string& words, const std::string& payload) {
  return kind + ' ' + std::to_string(payload.size()) + words + '\n' + payload + '\n';
}

std::string Contents(const std::string& lines) {
  return Record("contents", "", lines);
}

std::string File(const std::string& records) {
  return "Dayvane help 1\n" + records + "end\n";
}

const std::string kTree = Record("topic", " tree 25 26", "Day tree\n<p>Every <b>day</b>.</p><p>By year.</p>");
const std::string kHome = Record("topic", " home", "Dayvane – Help\n<p>See the <a href=\"tree\">tree</a>.</p>");
const std::string kWhole =
    File(kHome + kTree + Record("picture", " day.svg", "<svg>\n</svg>") + Contents("home\n\ttree"));

int FailureOf(const std::string& bytes) {
  try {
    HelpFile::Parse(bytes);
  } catch (const Error& error) {
    return error.Number();
  }
  return 0;
}

TEST(HelpFile, TopicsKeepTheirTitleAndText) {
  const HelpFile file = HelpFile::Parse(kWhole);
  ASSERT_NE(file.Find("home"), nullptr);
  EXPECT_EQ(file.Find("home")->title, "Dayvane – Help");
  EXPECT_EQ(file.Find("home")->body, "<p>See the <a href=\"tree\">tree</a>.</p>");
}

TEST(HelpFile, ATopicIsFoundByEachOfItsContexts) {
  const HelpFile file = HelpFile::Parse(kWhole);
  EXPECT_EQ(file.FindContext(25), file.Find("tree"));
  EXPECT_EQ(file.FindContext(26), file.Find("tree"));
  EXPECT_EQ(file.FindContext(27), nullptr);
}

TEST(HelpFile, ContentsKeepTheirOrderAndDepth) {
  const HelpFile file = HelpFile::Parse(kWhole);
  ASSERT_EQ(file.Contents().size(), 2U);
  EXPECT_EQ(file.Contents()[0].topic, "home");
  EXPECT_EQ(file.Contents()[1].topic, "tree");
  EXPECT_EQ(file.Contents()[1].depth, 1);
}

TEST(HelpFile, PicturesComeBackByteForByte) {
  const HelpFile file = HelpFile::Parse(kWhole);
  EXPECT_EQ(file.Picture("day.svg"), "<svg>\n</svg>");
  EXPECT_EQ(file.Picture("night.svg"), "");
}

TEST(HelpFile, SearchTextHasNoMarkupAndKeepsWordsApart) {
  EXPECT_EQ(HelpFile::Parse(kWhole).Find("tree")->text, "Every day. By year.");
}

TEST(HelpFile, SearchFindsTopicsThatHoldEveryWord) {
  const HelpFile file = HelpFile::Parse(kWhole);
  EXPECT_EQ(file.Search("YEAR every"), std::vector<const Topic*>{file.Find("tree")});
  EXPECT_TRUE(file.Search("year month").empty());
  EXPECT_TRUE(file.Search("  ").empty());
}

TEST(HelpFile, SearchPutsTitlesFirst) {
  const HelpFile file = HelpFile::Parse(kWhole);
  EXPECT_EQ(file.Search("tree"), (std::vector<const Topic*>{file.Find("tree"), file.Find("home")}));
}

TEST(HelpFile, AFileCutAtAnyByteIsIncomplete) {
  for (std::size_t length = 0; length < kWhole.size(); ++length)
    EXPECT_EQ(FailureOf(kWhole.substr(0, length)), kInputPastEnd) << length;
}

TEST(HelpFile, AnyChangedByteIsReadOrRefusedButNeverMore) {
  for (std::size_t at = 0; at < kWhole.size(); ++at) {
    for (const char byte : {'\0', '\n', '9', 'x', '\xff'}) {
      std::string changed = kWhole;
      changed[at] = byte;
      const int failure = FailureOf(changed);
      EXPECT_TRUE(failure == 0 || failure == kInputPastEnd || failure == kInvalidFileFormat) << at;
    }
  }
}

TEST(HelpFile, ARecordOfAnotherKindIsSkipped) {
  const HelpFile file = HelpFile::Parse(File(kHome + Record("sound", " bell", "ding\nend\n") + Contents("home")));
  EXPECT_EQ(file.Topics().size(), 1U);
}

TEST(HelpFile, ASizeThatPointsBeyondTheEndIsIncomplete) {
  EXPECT_EQ(FailureOf(File("topic 2147483647 home\nTitle\n\n" + Contents("home"))), kInputPastEnd);
}

TEST(HelpFile, ASizeThatIsWrongIsDamage) {
  EXPECT_EQ(FailureOf(File("topic 3 home\nTitle\ntext\n" + Contents("home"))), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(File("topic -1 home\nTitle\n\n" + Contents("home"))), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(File("topic 99999999999999999999 home\nTitle\n\n" + Contents("home"))), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(File("topic\n" + kHome + Contents("home"))), kInvalidFileFormat);
}

TEST(HelpFile, NothingMayBeThereTwice) {
  const std::string sameContext = Record("topic", " other 25", "Other\n");
  const std::string picture = Record("picture", " p.svg", "x");
  EXPECT_EQ(FailureOf(File(kHome + kHome + Contents("home"))), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(File(kTree + sameContext + Contents("tree"))), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(File(kHome + picture + picture + Contents("home"))), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(File(kHome + Contents("home") + Contents("home"))), kInvalidFileFormat);
}

TEST(HelpFile, ContentsThatAreMissingOrLeadNowhereAreDamage) {
  EXPECT_EQ(FailureOf(File(kHome)), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(File(kHome + Contents(""))), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(File(kHome + Contents("home\nnowhere"))), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(File(kHome + kTree + Contents("home\n\t\ttree"))), kInvalidFileFormat);
}

TEST(HelpFile, ATopicWithoutTitleOrWithForeignBytesIsDamage) {
  EXPECT_EQ(FailureOf(File(Record("topic", " home", "\n<p>Text</p>") + Contents("home"))), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(File(Record("topic", " home", "Title\n\xe4\xf6") + Contents("home"))), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(File(Record("topic", " home zero", "Title\n") + Contents("home"))), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(File(Record("topic", " home 0", "Title\n") + Contents("home"))), kInvalidFileFormat);
}

TEST(HelpFile, BytesAfterTheEndAreDamage) {
  EXPECT_EQ(FailureOf(kWhole + "more"), kInvalidFileFormat);
}

TEST(HelpFile, AForeignFileIsNotReadAsHelp) {
  EXPECT_EQ(FailureOf("PK\x03\x04 something else\n"), kInvalidFileFormat);
  EXPECT_EQ(FailureOf(std::string(100'000, 'x')), kInvalidFileFormat);
}

TEST(HelpFile, AMissingFileIsToldApart) {
  const testing::TemporaryFolder folder;
  testing::TestFiles disk;
  try {
    HelpFile::Read(disk, folder.Path() + "\\Dayvane.hlp");
    FAIL() << "read";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), kFileNotFound);
  }
}

TEST(HelpFile, AFolderOfThatNameCannotBeOpened) {
  const testing::TemporaryFolder folder;
  testing::TestFiles disk;
  try {
    HelpFile::Read(disk, folder.Path());
    FAIL() << "read";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), kPathFileAccess);
  }
}

TEST(PlainText, TagsPartWordsUnlessTheyOnlyChangeTheLetters) {
  EXPECT_EQ(PlainText("<p>One<b>and</b> two</p><p>three<br/>four</p>"), "Oneand two three four");
  EXPECT_EQ(PlainText("<td>a</td>\n  <td>b</td>"), "a b");
}

TEST(PlainText, ReferencesStandForTheirCharacters) {
  EXPECT_EQ(PlainText("a &amp; b &lt;c&gt; &quot;d&quot; &apos;e&apos; &#8211; &#x2013; &nothing;"),
            "a & b <c> \"d\" 'e' \xE2\x80\x93 \xE2\x80\x93");
}

TEST(PlainText, MarkupThatBreaksOffLeavesWhatCameBefore) {
  EXPECT_EQ(PlainText("<p>Text</p><p"), "Text");
  EXPECT_EQ(PlainText("Text &am"), "Text");
  EXPECT_EQ(PlainText("&#1114112;x&#x;"), "x") << "no such character";
  EXPECT_EQ(PlainText("&#1114111;"), "\xF4\x8F\xBF\xBF") << "the last one";
}

}  // namespace
}  // namespace dayvane::help
