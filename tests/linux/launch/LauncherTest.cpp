// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "base/Error.h"
#include "linux/files/NativePath.h"
#include "linux/launch/Launcher.h"
#include "tests/linux/FakeFileManager.h"
#include "tests/linux/HangingApplication.h"
#include "tests/linux/MainLoop.h"
#include "tests/linux/PrivateDesktop.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::launch {
namespace {

namespace desktop = dayvane::testing::desktop;
namespace fs = std::filesystem;
using dayvane::testing::FakeFileManager;
using dayvane::testing::HangingApplication;
using dayvane::testing::MainLoopRunsUntil;
using dayvane::testing::PrivateBus;
using dayvane::testing::TemporaryFolder;
using dayvane::testing::UnprivilegedUser;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* kExplore = "Z:\\usr\\EXPLORER.EXE /n,/e,/root,";
constexpr const char* kOpenFolder = "Z:\\usr\\EXPLORER.EXE /n,";

class LauncherTest : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const { return m_folder.Path() + "\\" + name; }

  /// What a program started in a working folder tells of itself.
  static std::string Told(const std::string& folder, const std::string& arguments) {
    return folder + "\n" + arguments + "\n";
  }

  TemporaryFolder m_folder;
  std::vector<std::string> m_events;
  Launcher m_launcher{[this](const std::string& event) { m_events.push_back(event); }};
};

TEST_F(LauncherTest, ADocumentIsOpenedByItsApplicationInTheWorkingFolder) {
  const std::string native = m_folder.Write("Report.letter", "");
  EXPECT_EQ(m_launcher.Open(Path("Report.letter"), m_folder.Path()), kSeOpened);
  EXPECT_EQ(desktop::NextStart(), Told(m_folder.Native(), "--new\n" + native));
}

TEST_F(LauncherTest, AStrangeNameArrivesAsItIs) {
  const std::string name = "a $(touch b) 'c' \" %41 ; \\ \xF0\x9F\x97\x93.sketch";
  const std::string native = m_folder.Write(name, "");
  EXPECT_EQ(m_launcher.Open(files::FromNative(native).value(), m_folder.Path()), kSeOpened);
  EXPECT_EQ(desktop::NextStart(), Told(m_folder.Native(), native));
}

TEST_F(LauncherTest, LettersThatLostTheirCaseOnTheWayFindTheDocument) {
  const std::string native = m_folder.Write("Papers/Plan.sketch", "");
  EXPECT_EQ(m_launcher.Open(Path("papers\\plan.SKETCH"), Path("papers")), kSeOpened);
  EXPECT_EQ(desktop::NextStart(), Told(m_folder / "Papers", native));
}

TEST_F(LauncherTest, AMissingWorkingFolderIsNoObstacle) {
  const std::string native = m_folder.Write("Plan.sketch", "");
  EXPECT_EQ(m_launcher.Open(Path("Plan.sketch"), Path("gone")), kSeOpened);
  EXPECT_EQ(desktop::NextStart(), Told(fs::current_path(), native));
}

TEST_F(LauncherTest, AMissingDocumentIsToldFromAMissingFolder) {
  EXPECT_EQ(m_launcher.Open(Path("gone.letter"), {}), kSeFileNotFound);
  EXPECT_EQ(m_launcher.Open(Path("gone\\away.letter"), {}), kSePathNotFound);
}

TEST_F(LauncherTest, ADriveOrHostThatIsNotThereIsAMissingFolder) {
  for (const char* path : {"Q:\\Report.letter", "\\\\server\\share\\Report.letter", "", "Report.letter"})
    EXPECT_EQ(m_launcher.Open(path, {}), kSePathNotFound) << path;
}

TEST_F(LauncherTest, ADocumentInAClosedFolderIsAccessDenied) {
  m_folder.Write("closed/Report.letter", "");
  fs::permissions(m_folder.Native(), fs::perms(0755));
  fs::permissions(m_folder / "closed", fs::perms::none);
  {
    const UnprivilegedUser nobody;
    EXPECT_EQ(m_launcher.Open(Path("closed\\Report.letter"), {}), kSeAccessDenied);
  }
  fs::permissions(m_folder / "closed", fs::perms::owner_all);
}

TEST_F(LauncherTest, ADocumentWithoutAnApplicationHasNoAssociation) {
  m_folder.Write("Lost.orphan", "");
  EXPECT_EQ(m_launcher.Open(Path("Lost.orphan"), {}), kSeNoAssociation);
}

TEST_F(LauncherTest, ADocumentWhoseNameSaysNothingIsOpenedByItsContent) {
  m_folder.Write("notes", "plain text");
  EXPECT_EQ(m_launcher.Open(Path("notes"), m_folder.Path()), kSeOpened);
  EXPECT_THAT(desktop::NextStart(), HasSubstr("--text\n"));
}

TEST_F(LauncherTest, AWebAddressIsOpened) {
  EXPECT_EQ(m_launcher.Open("https://example.org/a?b=c#d", m_folder.Path()), kSeOpened);
  EXPECT_EQ(desktop::NextStart(), Told(m_folder.Native(), "--new\nhttps://example.org/a?b=c#d"));
}

TEST_F(LauncherTest, AnAddressThatNothingOpensHasNoAssociation) {
  EXPECT_EQ(m_launcher.Open("gopher://example.org", {}), kSeNoAssociation);
}

TEST_F(LauncherTest, TheProgramOfAnApplicationIsRun) {
  const std::string program = files::FromNative(desktop::Program("sketcher")).value();
  EXPECT_EQ(m_launcher.Open(program, m_folder.Path()), kSeOpened);
  EXPECT_EQ(desktop::NextStart(), m_folder.Native() + "\n");
}

TEST_F(LauncherTest, AnyOtherExecutableIsADocument) {
  fs::permissions(m_folder.Write("download.letter", "#!/bin/sh\n"), fs::perms(0755));
  EXPECT_EQ(m_launcher.Open(Path("download.letter"), m_folder.Path()), kSeOpened);
  EXPECT_THAT(desktop::NextStart(), HasSubstr("--new\n"));
}

TEST_F(LauncherTest, AFolderIsOpenedByTheFileManager) {
  EXPECT_EQ(m_launcher.Open(m_folder.Path(), {}), kSeOpened);
  EXPECT_THAT(desktop::NextStart(), HasSubstr("\n" + m_folder.Native() + "\n"));
}

TEST_F(LauncherTest, AnApplicationThatDoesNotAnswerIsReportedLater) {
  const PrivateBus bus;
  m_folder.Write("Plan.silent", "");
  EXPECT_EQ(m_launcher.Open(Path("Plan.silent"), {}), kSeOpened);
  EXPECT_TRUE(MainLoopRunsUntil([&] { return !m_events.empty(); }));
  EXPECT_THAT(m_events, ElementsAre(HasSubstr("Silent")));
}

TEST_F(LauncherTest, AnApplicationThatHangsOnTheBusDoesNotHoldTheProgramUp) {
  const PrivateBus bus;
  const HangingApplication application(bus);
  const std::string plan = m_folder.Write("Plan.silent", "");
  // It lives in this thread and could not even hear the question if someone waited here for its answer.
  EXPECT_EQ(m_launcher.Open(Path("Plan.silent"), {}), kSeOpened);
  EXPECT_EQ(m_launcher.Open(Path("Plan.silent"), {}), kSeOpened);
  EXPECT_EQ(application.Asked(), 0);
  EXPECT_TRUE(MainLoopRunsUntil([&] { return application.Asked() == 2; }));
  EXPECT_THAT(m_events, IsEmpty());
}

TEST_F(LauncherTest, AProgramThatHangsDoesNotHoldTheProgramUp) {
  const std::string native = m_folder.Write("Plan.stuck", "");
  for (int start = 0; start < 2; ++start) {
    EXPECT_EQ(m_launcher.Open(Path("Plan.stuck"), m_folder.Path()), kSeOpened);
    EXPECT_EQ(desktop::NextStart(), Told(m_folder.Native(), native));
  }
}

TEST_F(LauncherTest, ALauncherThatIsGoneReportsNothing) {
  const PrivateBus bus;
  m_folder.Write("Plan.silent", "");
  {
    Launcher shortLived([&](const std::string& event) { m_events.push_back("gone: " + event); });
    shortLived.Open(Path("Plan.silent"), {});
  }
  m_launcher.Open(Path("Plan.silent"), {});
  EXPECT_TRUE(MainLoopRunsUntil([&] { return !m_events.empty(); }));
  EXPECT_THAT(m_events, Each(Not(StartsWith("gone"))));
}

TEST_F(LauncherTest, BothExplorerCommandLinesShowTheFolder) {
  const PrivateBus bus;
  FakeFileManager files(bus);
  const glib::Text uri(g_filename_to_uri(m_folder.Native().c_str(), nullptr, nullptr));
  m_launcher.Run(kExplore + m_folder.Path());
  m_launcher.Run(kOpenFolder + m_folder.Path());
  EXPECT_TRUE(MainLoopRunsUntil([&] { return files.Shown().size() == 2; }));
  EXPECT_THAT(files.Shown(), ElementsAre(uri.get(), uri.get()));
}

TEST_F(LauncherTest, OfAProgramTheFolderThatHoldsItIsShown) {
  const PrivateBus bus;
  FakeFileManager files(bus);
  const glib::Text uri(g_filename_to_uri(m_folder.Native().c_str(), nullptr, nullptr));
  m_folder.Write("Sketcher", "#!/bin/sh\n");
  m_launcher.Run(kExplore + (m_folder / "sketcher"));
  m_launcher.Run(kOpenFolder + Path("sketcher"));
  EXPECT_TRUE(MainLoopRunsUntil([&] { return files.Shown().size() == 2; }));
  EXPECT_THAT(files.Shown(), ElementsAre(uri.get(), uri.get()));
}

TEST_F(LauncherTest, TheFolderMayBeSpelledAsAPersonReadsItAndWithoutItsCapitals) {
  const PrivateBus bus;
  FakeFileManager files(bus);
  m_folder.Write("My Papers, 2026/a.letter", "");
  m_launcher.Run(kExplore + (m_folder / "my papers, 2026"));
  EXPECT_TRUE(MainLoopRunsUntil([&] { return files.Shown().size() == 1; }));
  EXPECT_THAT(files.Shown(), ElementsAre(HasSubstr("/My%20Papers")));
}

TEST_F(LauncherTest, WithoutAFileManagerOnTheBusAnApplicationShowsTheFolder) {
  const PrivateBus bus;
  m_launcher.Run(kOpenFolder + m_folder.Path());
  EXPECT_THAT(desktop::NextStart(), HasSubstr("\n" + m_folder.Native() + "\n"));
}

TEST_F(LauncherTest, WithoutABusAnApplicationShowsTheFolder) {
  m_launcher.Run(kExplore + m_folder.Path());
  EXPECT_THAT(desktop::NextStart(), HasSubstr("\n" + m_folder.Native() + "\n"));
}

TEST_F(LauncherTest, AFileManagerThatFailsIsReplacedByAnApplication) {
  const PrivateBus bus;
  FakeFileManager files(bus);
  files.FailFromNowOn();
  m_launcher.Run(kOpenFolder + m_folder.Path());
  EXPECT_TRUE(MainLoopRunsUntil([] { return desktop::HasStarted(); }));
  EXPECT_EQ(files.Asked(), 1);
  EXPECT_THAT(desktop::NextStart(), HasSubstr("\n" + m_folder.Native() + "\n"));
}

TEST_F(LauncherTest, AMissingFolderIsAnError) {
  try {
    m_launcher.Run(kExplore + Path("gone"));
    FAIL() << "nothing was reported";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), kPathNotFound);
  }
}

TEST_F(LauncherTest, AnyOtherCommandLineIsRefused) {
  for (const char* line : {"", "rm -r /", "Z:\\usr\\EXPLORER.EXE", "Z:\\usr\\EXPLORER.EXE Z:\\tmp"})
    EXPECT_THROW(m_launcher.Run(line), Error) << line;
}

TEST_F(LauncherTest, TheProgramSurvivesTheLossOfTheBus) {
  PrivateBus bus;
  const glib::Object<GDBusConnection> connection = SessionBus();
  bool lost = false;
  const auto closed = +[](GDBusConnection*, gboolean, GError*, gpointer flag) { *static_cast<bool*>(flag) = true; };
  g_signal_connect(connection.get(), "closed", G_CALLBACK(closed), &lost);
  bus.Kill();
  ASSERT_TRUE(MainLoopRunsUntil([&] { return lost; }));
  m_launcher.Run(kOpenFolder + m_folder.Path());
  EXPECT_THAT(desktop::NextStart(), HasSubstr("\n" + m_folder.Native() + "\n"));
}

TEST(DisplayPath, IsTheNativePathWhereThereIsOne) {
  EXPECT_EQ(Launcher::DisplayPath("Z:\\home\\ana\\Report.odt"), "/home/ana/Report.odt");
  EXPECT_EQ(Launcher::DisplayPath("z:\\home"), "/home");
  EXPECT_EQ(Launcher::DisplayPath("Z:\\a \xEF\x80\xA2quoted\xEF\x80\xA2.odt"), "/a \"quoted\".odt");
}

TEST(DisplayPath, IsAnyOtherPathAsItStands) {
  for (const char* path : {"C:\\Docs\\Report.doc", "\\\\server\\share\\a.odt", "", "/home/ana"})
    EXPECT_EQ(Launcher::DisplayPath(path), path);
}

}  // namespace
}  // namespace dayvane::launch
