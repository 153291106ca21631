// SPDX-License-Identifier: MIT

// What another reader of the format, lnkinfo of liblnk-utils, finds in the links that are written here.

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>

#include "base/Utf8.h"
#include "links/ShellLinkFormat.h"
#include "tests/links/LinkBuilder.h"
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

/// Links of all kinds that the program may come to write, always the same ones for a seed.
class RandomLinks {
 public:
  enum class Characters { OfReports, All };

  explicit RandomLinks(std::uint32_t seed, Characters characters = Characters::OfReports)
      : m_random(seed), m_characters(characters) {}

  ShellLink Next() {
    ShellLink link;
    link.target = OneIn(3) ? Share() : Drive();
    for (std::size_t names = Below(6); names > 0; --names) link.target += '\\' + Name();
    if (OneIn(2)) link.workingDirectory = Drive() + '\\' + Name();
    if (OneIn(2)) link.arguments = Text(OneIn(20) ? 5000 : 60);
    if (OneIn(2)) link.iconFile = Drive() + '\\' + Name();
    link.iconIndex = static_cast<std::int32_t>(m_random());
    link.showCommand = std::array{1, 3, 7}[Below(3)];
    link.targetIsFolder = OneIn(4);
    return link;
  }

 private:
  // Not by the distributions of the standard library: each library has its own.
  std::size_t Below(std::size_t limit) { return m_random() % limit; }
  bool OneIn(std::size_t count) { return Below(count) == 0; }

  std::string Drive() { return {static_cast<char>('A' + Below(26)), ':'}; }
  std::string Share() {
    std::string share = "\\\\" + Name();  // one after the other, for compilers choose their own order
    return share += '\\' + Name();
  }
  std::string Name() { return Text(OneIn(20) ? 255 : 20); }

  /// A text that is neither empty nor ends in blanks, which a report would not show.
  std::string Text(std::size_t longest) {
    std::string text = Character();
    for (std::size_t length = Below(longest); length > 0; --length) text += OneIn(10) ? " " : Character();
    return text + Character();
  }

  /// Of one script or another, in the code pages' reach and out of it; none that a report on lines cannot show.
  std::string Character() {
    if (m_characters == Characters::All) return AnyCharacter();
    static constexpr std::pair<char32_t, char32_t> kRanges[] = {
        {'!', '['},         {']', '~'},         {0xA1, 0xAC},     {0xAE, 0x17F},    {0x391, 0x3A1},
        {0x410, 0x44F},     {0x5D0, 0x5EA},     {0x627, 0x63A},   {0x905, 0x939},   {0x2013, 0x2026},
        {0x3041, 0x3096},   {0x4E00, 0x9FA5},   {0xAC00, 0xD7A3}, {0xF022, 0xF022}, {0xF05C, 0xF05C},
        {0x1F600, 0x1F64F}, {0x20000, 0x20010}, {0x20AC, 0x20AC}, {0x0301, 0x0301}, {0xFFFD, 0xFFFD}};
    const auto& [first, last] = kRanges[OneIn(2) ? Below(2) : Below(std::size(kRanges))];
    std::string text;
    utf8::Append(text, first + static_cast<char32_t>(Below(last - first + 1)));
    return text;
  }

  /// Every one but null, control characters and separators of paths among them.
  std::string AnyCharacter() {
    constexpr char32_t kSurrogates = 0xD800;
    constexpr std::size_t kSurrogateCount = 0x800;
    const auto number = static_cast<char32_t>(1 + (OneIn(2) ? Below(0x7F) : Below(0x10FFFF - kSurrogateCount)));
    std::string text;
    utf8::Append(text, number < kSurrogates ? number : number + kSurrogateCount);
    return text;
  }

  std::mt19937 m_random;
  Characters m_characters;
};

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
  RandomLinks links(GetParam());
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

TEST(ShellLinkFormat, ALinkOfWhateverCharactersReadsAsItWasWritten) {
  RandomLinks links(20261121, RandomLinks::Characters::All);
  for (int i = 0; i < 2000; ++i) {
    const ShellLink link = links.Next();
    ASSERT_EQ(ParseShellLink(WriteShellLink(link)), link) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomLink, ::testing::Range(1U, 9U));

// lnkinfo reports 0 for the show command whatever a link holds, so the number is looked up where 2.1 of the format has
// it.
TEST(ShellLinkFormat, TheShowCommandStandsInItsPlace) {
  EXPECT_EQ(WriteShellLink(kReport).substr(60, 4), testing::Number32(7));
}

}  // namespace
}  // namespace dayvane::links
