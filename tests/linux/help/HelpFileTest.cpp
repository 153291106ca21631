#include <gtest/gtest.h>

#include "base/Error.h"
#include "linux/help/HelpFile.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::help {
namespace {

QByteArray Record(const QByteArray& kind, const QByteArray& words, const QByteArray& payload) {
  return kind + ' ' + QByteArray::number(payload.size()) + words + '\n' + payload + '\n';
}

QByteArray Contents(const QByteArray& lines) {
  return Record("contents", "", lines);
}

QByteArray File(const QByteArray& records) {
  return "Dayvane help 1\n" + records + "end\n";
}

const QByteArray kTree = Record("topic", " tree 25 26", "Day tree\n<p>Every <b>day</b>.</p><p>By year.</p>");
const QByteArray kHome = Record("topic", " home", "Dayvane – Help\n<p>See the <a href=\"tree\">tree</a>.</p>");
const QByteArray kWhole =
    File(kHome + kTree + Record("picture", " day.svg", "<svg>\n</svg>") + Contents("home\n\ttree"));

int FailureOf(const QByteArray& bytes) {
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
  EXPECT_EQ(file.Find("home")->title, QString::fromUtf8("Dayvane – Help"));
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
  EXPECT_EQ(file.Picture("night.svg"), QByteArray());
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
  for (qsizetype length = 0; length < kWhole.size(); ++length)
    EXPECT_EQ(FailureOf(kWhole.left(length)), kInputPastEnd) << length;
}

TEST(HelpFile, AnyChangedByteIsReadOrRefusedButNeverMore) {
  for (qsizetype at = 0; at < kWhole.size(); ++at) {
    for (char byte : {'\0', '\n', '9', 'x', '\xff'}) {
      QByteArray changed = kWhole;
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
  const QByteArray sameContext = Record("topic", " other 25", "Other\n");
  const QByteArray picture = Record("picture", " p.svg", "x");
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
  EXPECT_EQ(FailureOf(QByteArray(100'000, 'x')), kInvalidFileFormat);
}

TEST(HelpFile, AMissingFileIsToldApart) {
  const testing::TemporaryFolder folder;
  try {
    HelpFile::Read(QString::fromStdString(folder / "Dayvane.hlp"));
    FAIL() << "read";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), kFileNotFound);
  }
}

TEST(HelpFile, AFolderOfThatNameCannotBeOpened) {
  const testing::TemporaryFolder folder;
  try {
    HelpFile::Read(QString::fromStdString(folder.Native()));
    FAIL() << "read";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), kPathFileAccess);
  }
}

}  // namespace
}  // namespace dayvane::help
