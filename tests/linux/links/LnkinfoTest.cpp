// SPDX-License-Identifier: MIT

// What another reader of the format, lnkinfo of liblnk-utils, finds in the links that are written here.

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "base/Utf8.h"
#include "links/ShellLinkFormat.h"
#include "tests/links/LinkBuilder.h"
#include "tests/links/RandomLinks.h"
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
    m_report.clear();
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

/// lnkinfo of 2018 reads each pair of surrogates as another one, so all of them count as one and the same.
std::string WithoutPairs(std::string_view text) {
  std::string basic;
  while (!text.empty()) {
    const auto [codePoint, length] = utf8::First(text);
    utf8::Append(basic, codePoint < 0x10000 ? codePoint : U'?');
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return basic;
}

class RandomLink : public Lnkinfo, public ::testing::WithParamInterface<std::uint32_t> {
 protected:
  void ExpectText(const std::string& label, const std::string& text) const {
    // The report has no line for an empty text.
    const bool hasLine = Report().find("\t" + label + "\t") != std::string::npos;
    EXPECT_EQ(WithoutPairs(hasLine ? Line(label) : ""), WithoutPairs(text)) << Report();
  }
};

TEST_P(RandomLink, ReadsTheSameHereAndThere) {
  testing::RandomLinks links(GetParam());
  for (int i = 0; i < 25; ++i) {
    const ShellLink link = links.Next();
    SCOPED_TRACE(i);
    EXPECT_EQ(ParseShellLink(WriteShellLink(link)), link);
    Run(link);
    ExpectText(link.target.starts_with('\\') ? "Network path" : "Local path", link.target);
    ExpectText("Working directory", link.workingDirectory);
    ExpectText("Command line arguments", link.arguments);
    ExpectText("Icon location", link.iconFile);
    EXPECT_EQ(Line("Icon index"), std::to_string(link.iconIndex));
    if (HasFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomLink, ::testing::Range(1U, 9U));

}  // namespace
}  // namespace dayvane::links
