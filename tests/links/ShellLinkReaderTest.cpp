// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "base/Error.h"
#include "links/ShellLinkFormat.h"
#include "links/ShellLinkReader.h"
#include "tests/links/LinkBuilder.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestFiles.h"

namespace dayvane::links {
namespace {

using platform::ShellLink;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::SetWritten;
using ::testing::SizeIs;

class ShellLinkReaderTest : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const { return m_folder.Path() + "\\" + name; }

  int ErrorOfReading(const std::string& name) {
    try {
      m_reader.Read(Path(name));
    } catch (const Error& error) {
      EXPECT_EQ(error.Path(), Path(name));
      return error.Number();
    }
    return 0;
  }

  testing::TemporaryFolder m_folder;
  testing::TestFiles m_files;
  std::vector<std::string> m_events;
  ShellLinkReader m_reader{m_files, [this](const std::string& text) { m_events.push_back(text); }};
};

TEST_F(ShellLinkReaderTest, ALinkIsReadWithTheMomentItWasWritten) {
  const std::string native = m_folder.Write("a.lnk", testing::TypicalLink());
  SetWritten(native, "2026-11-20 14:03:27", 123'456'700);
  const auto read = m_reader.Read(Path("a.lnk"));
  EXPECT_EQ(read.link, testing::TypicalFields());
  EXPECT_EQ(read.written, m_files.Status(Path("a.lnk"))->written);
  EXPECT_EQ(read.written.nanoseconds % 1'000'000'000, 123'456'700);
  EXPECT_THAT(m_events, IsEmpty());
}

TEST_F(ShellLinkReaderTest, AFileThatIsNoLinkIsEmptyAndReportedOnce) {
  m_folder.Write("a.lnk", "no link");
  for (int poll = 0; poll < 3; ++poll) EXPECT_EQ(m_reader.Read(Path("a.lnk")).link, ShellLink{});
  EXPECT_THAT(m_events, ElementsAre("ShellLinkReader.Read: Not a shell link: " + Path("a.lnk")));
}

TEST_F(ShellLinkReaderTest, AFileOfNoBytesIsNoLink) {
  m_folder.Write("a.lnk", "");
  EXPECT_EQ(m_reader.Read(Path("a.lnk")).link, ShellLink{});
  EXPECT_THAT(m_events, SizeIs(1));
}

TEST_F(ShellLinkReaderTest, AFileThatIsNoLinkIsReportedAgainWhenItIsWrittenAnew) {
  const std::string native = m_folder.Write("a.lnk", "no link");
  SetWritten(native, "2026-11-20 14:03:27", 100);
  m_reader.Read(Path("a.lnk"));
  SetWritten(native, "2026-11-20 14:03:27", 200);
  m_reader.Read(Path("a.lnk"));
  m_reader.Read(Path("a.lnk"));
  EXPECT_THAT(m_events, SizeIs(2));
}

TEST_F(ShellLinkReaderTest, EveryFileThatIsNoLinkIsReported) {
  m_folder.Write("a.lnk", "no link");
  m_folder.Write("b.lnk", "no link");
  m_reader.Read(Path("a.lnk"));
  m_reader.Read(Path("b.lnk"));
  EXPECT_THAT(m_events, SizeIs(2));
}

TEST_F(ShellLinkReaderTest, NoMoreFilesAreReportedThanAreRemembered) {
  for (std::size_t i = 0; i <= ShellLinkReader::kMostReported; ++i) m_folder.Write(std::to_string(i) + ".lnk", "");
  for (int poll = 0; poll < 2; ++poll)
    for (std::size_t i = 0; i <= ShellLinkReader::kMostReported; ++i) m_reader.Read(Path(std::to_string(i) + ".lnk"));
  EXPECT_THAT(m_events, SizeIs(ShellLinkReader::kMostReported));
}

TEST_F(ShellLinkReaderTest, AFileOfAGigabyteIsNoLink) {
  const std::string native = m_folder.Write("a.lnk", testing::TypicalLink());
  std::filesystem::resize_file(native, std::uintmax_t{1} << 30);
  EXPECT_EQ(m_reader.Read(Path("a.lnk")).link, ShellLink{});
  EXPECT_THAT(m_events, SizeIs(1));
}

TEST_F(ShellLinkReaderTest, TheLargestLinkIsReadAndOneByteMoreIsNot) {
  const std::string native = m_folder.Write("a.lnk", testing::TypicalLink());
  std::filesystem::resize_file(native, ShellLinkReader::kLargestLink);
  EXPECT_EQ(m_reader.Read(Path("a.lnk")).link, testing::TypicalFields());
  std::filesystem::resize_file(native, ShellLinkReader::kLargestLink + 1);
  EXPECT_EQ(m_reader.Read(Path("a.lnk")).link, ShellLink{});
}

TEST_F(ShellLinkReaderTest, AMissingFileIsTheFileSystemsError) {
  EXPECT_EQ(ErrorOfReading("a.lnk"), kFileNotFound);
  EXPECT_THAT(m_events, IsEmpty());
}

TEST_F(ShellLinkReaderTest, AFolderIsTheFileSystemsError) {
  std::filesystem::create_directory(m_folder / "a.lnk");
  EXPECT_EQ(ErrorOfReading("a.lnk"), kPathFileAccess);
  EXPECT_THAT(m_events, IsEmpty());
}

TEST_F(ShellLinkReaderTest, AWrittenLinkIsReadBack) {
  m_files.ReplaceUnflushed(Path("a.lnk"), WriteShellLink(testing::TypicalFields()));
  EXPECT_EQ(m_reader.Read(Path("a.lnk")).link, testing::TypicalFields());
}

}  // namespace
}  // namespace dayvane::links
