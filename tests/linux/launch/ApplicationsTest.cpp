// SPDX-License-Identifier: MIT
#include <gio/gdesktopappinfo.h>
#include <gtest/gtest.h>

#include "linux/launch/Applications.h"
#include "tests/linux/PrivateDesktop.h"

namespace dayvane::applications {
namespace {

namespace desktop = dayvane::testing::desktop;

std::optional<std::string> ProgramOfApplication(const char* identifier) {
  const glib::Object<GAppInfo> application(G_APP_INFO(g_desktop_app_info_new(identifier)));
  return ProgramOf(application.get());
}

glib::Object<GAppInfo> FromCommandLine(const char* commandLine) {
  return glib::Object<GAppInfo>(
      g_app_info_create_from_commandline(commandLine, "Test", G_APP_INFO_CREATE_NONE, nullptr));
}

TEST(Applications, TheProgramIsFoundAsTheShellFindsIt) {
  EXPECT_EQ(ProgramOfApplication("letters.desktop"), desktop::Program("letter-writer"));
}

TEST(Applications, BehindEnvIsTheProgramThatItStarts) {
  EXPECT_EQ(ProgramOfApplication("sketches.desktop"), desktop::Program("sketcher"));
}

TEST(Applications, EnvWithOptionsIsNotGuessedAt) {
  EXPECT_EQ(ProgramOf(FromCommandLine("env -i sketcher").get()), std::nullopt);
  EXPECT_EQ(ProgramOf(FromCommandLine("env A=1").get()), std::nullopt);
}

TEST(Applications, ASandboxedApplicationHasTheCommandThatIsExportedForIt) {
  EXPECT_EQ(ProgramOfApplication("org.example.Chart.desktop"), desktop::Folder() + "/exports/bin/org.example.Chart");
}

TEST(Applications, AProgramThatIsNotThereIsNone) {
  EXPECT_EQ(ProgramOf(FromCommandLine("no-such-program %f").get()), std::nullopt);
}

TEST(Applications, AnApplicationIsFoundByItsProgram) {
  const auto application = FindByProgram(desktop::Program("files"));
  ASSERT_TRUE(application);
  EXPECT_STREQ(g_app_info_get_id(application.get()), "files.desktop");
}

TEST(Applications, OfSeveralThatStartOneProgramTheSimplestIsFound) {
  const auto application = FindByProgram(desktop::Program("letter-writer"));
  ASSERT_TRUE(application);
  EXPECT_STREQ(g_app_info_get_id(application.get()), "letters.desktop");
}

TEST(Applications, AFileThatNoApplicationStartsBelongsToNone) {
  EXPECT_FALSE(FindByProgram("/bin/sh"));
}

}  // namespace
}  // namespace dayvane::applications
