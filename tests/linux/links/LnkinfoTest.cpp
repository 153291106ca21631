// What another reader of the format, lnkinfo of liblnk-utils, finds in the links that are written here.

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <memory>
#include <sys/wait.h>

#include "linux/links/ShellLinkFormat.h"
#include "tests/linux/links/LinkBuilder.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::links {
namespace {

using platform::ShellLink;
using ::testing::Test;
using testing::Utf8;

/// Runs lnkinfo on a link. Lines of the report by their label, the text before the ":"; blanks around both cut off.
class Lnkinfo : public Test {
 protected:
  void Run(const ShellLink& link) {
    const std::string path = m_folder.Write("written.lnk", WriteShellLink(link));
    // Its output is UTF-8 only in such a locale.
    const std::string command = "LC_ALL=C.UTF-8 lnkinfo '" + path + "' 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    std::array<char, 4096> buffer{};
    for (std::size_t count = 0; (count = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;)
      m_report.append(buffer.data(), count);
    const int status = pclose(pipe);
    ASSERT_NE(WEXITSTATUS(status), 127) << "lnkinfo is not on the PATH: install liblnk-utils";
    ASSERT_EQ(status, 0) << m_report;
  }

  std::string Line(const std::string& label) const {
    const auto start = m_report.find("\t" + label + "\t");
    if (start == std::string::npos) return "no line '" + label + "' in:\n" + m_report;
    const auto colon = m_report.find(": ", start);
    return m_report.substr(colon + 2, m_report.find('\n', colon) - colon - 2);
  }

  const std::string& Report() const { return m_report; }

 private:
  testing::TemporaryFolder m_folder;
  std::string m_report;
};

const ShellLink kReport{"Z:\\home\\ana\\Report.odt", "Z:\\home\\ana", "-x \"1 2\"", "Z:\\icons\\report.ico", -3, 7};

TEST_F(Lnkinfo, FindsTheFieldsOfALocalLink) {
  Run(kReport);
  EXPECT_EQ(Line("Local path"), kReport.target);
  EXPECT_EQ(Line("Working directory"), kReport.workingDirectory);
  EXPECT_EQ(Line("Command line arguments"), kReport.arguments);
  EXPECT_EQ(Line("Icon location"), kReport.iconFile);
  EXPECT_EQ(Line("Icon index"), "-3");
}

TEST_F(Lnkinfo, FindsTheItemsThatLeadToTheTarget) {
  Run(kReport);
  EXPECT_EQ(Line("Shell folder name"), "My Computer");
  EXPECT_EQ(Line("Volume name"), "Z:\\");
  EXPECT_NE(Report().find("Long name\t\t: home\n"), std::string::npos) << Report();
  EXPECT_NE(Report().find("Long name\t\t: ana\n"), std::string::npos) << Report();
  EXPECT_NE(Report().find("Long name\t\t: Report.odt\n"), std::string::npos) << Report();
}

TEST_F(Lnkinfo, FindsUnicodeNames) {
  ShellLink link = kReport;
  link.target = Utf8(u8"Z:\\\u00dcbung \u6587\u66f8 \u03a9.odt");
  link.workingDirectory = Utf8(u8"Z:\\\u6587\u66f8");
  Run(link);
  EXPECT_EQ(Line("Local path"), link.target);
  EXPECT_EQ(Line("Working directory"), link.workingDirectory);
  EXPECT_EQ(Line("Long name"), link.target.substr(3));
}

TEST_F(Lnkinfo, FindsANetworkPath) {
  ShellLink link = kReport;
  link.target = "\\\\server\\share\\docs\\Report.odt";
  Run(link);
  EXPECT_EQ(Line("Network path"), link.target);
  EXPECT_EQ(Line("Location"), "\\\\server\\share");
}

TEST_F(Lnkinfo, FindsThatTheTargetIsAFolder) {
  ShellLink link = kReport;
  link.targetIsFolder = true;
  Run(link);
  EXPECT_NE(Report().find("FILE_ATTRIBUTE_DIRECTORY"), std::string::npos) << Report();
}

TEST_F(Lnkinfo, AcceptsALongPath) {
  ShellLink link = kReport;
  link.target = "Z:\\" + std::string(4'000, 'x');
  Run(link);
  EXPECT_EQ(Line("Local path"), link.target);
}

TEST_F(Lnkinfo, AcceptsALinkOfEmptyFields) {
  Run({});
  EXPECT_EQ(Line("Icon index"), "0");
}

// lnkinfo reports 0 for the show command whatever a link holds, so the number is looked up where 2.1 of the format has
// it.
TEST(ShellLinkFormat, TheShowCommandStandsInItsPlace) {
  EXPECT_EQ(WriteShellLink(kReport).substr(60, 4), testing::Number32(7));
}

}  // namespace
}  // namespace dayvane::links
