// SPDX-License-Identifier: MIT
#include <QApplication>
#include <gtest/gtest.h>

#include "linux/LinuxHelp.h"
#include "linux/help/HelpPopup.h"
#include "linux/help/HelpViewer.h"
#include "resources/MHelpConstants.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::help {
namespace {

QString OpenWindowTitle() {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (qobject_cast<const HelpViewer*>(window) && window->isVisible()) return window->windowTitle();
  }
  return {};
}

/// The built help file as the program names it.
std::string ShippedHelpFile() {
  return "Z:" + QString(DAYVANE_HELP_FILE).replace('/', '\\').toStdString();
}

TEST(LinuxHelp, TheContextCommandShowsTheTopic) {
  LinuxHelp help("");
  help.ShowHelp(ShippedHelpFile(), platform::kHelpContext, kHelpOptions);
  EXPECT_EQ(OpenWindowTitle(), "Options - Dayvane Help");
}

TEST(LinuxHelp, TheFinderCommandShowsTheContents) {
  LinuxHelp help("");
  help.ShowHelp(ShippedHelpFile(), platform::kHelpFinder, 0);
  EXPECT_EQ(OpenWindowTitle(), "Dayvane Help");
}

TEST(LinuxHelp, ThePopupCommandOpensNoHelpWindow) {
  LinuxHelp help("");
  help.ShowHelp(ShippedHelpFile(), platform::kHelpContextPopup, kHelpCalendar);
  EXPECT_EQ(OpenWindowTitle(), "");
}

TEST(LinuxHelp, TheFileThatTheProgramNamesComesFirst) {
  const testing::TemporaryFolder folder;
  const std::string native = folder.Write("data/Dayvane.hlp", "x");
  folder.Write("share/Dayvane.hlp", "x");
  EXPECT_EQ(LocateHelpFile(folder.Path() + "\\data\\Dayvane.hlp", folder / "share").toStdString(), native);
}

TEST(LinuxHelp, AnInstalledProgramHasItsHelpAmongItsResources) {
  const testing::TemporaryFolder folder;
  const std::string native = folder.Write("share/Dayvane.hlp", "x");
  EXPECT_EQ(LocateHelpFile(folder.Path() + "\\data\\Dayvane.hlp", folder / "share").toStdString(), native);
}

TEST(LinuxHelp, AFileThatIsNowhereIsMissedAmongTheResources) {
  EXPECT_EQ(LocateHelpFile("Z:\\nowhere\\Dayvane.hlp", "/opt/dayvane").toStdString(), "/opt/dayvane/Dayvane.hlp");
}

}  // namespace
}  // namespace dayvane::help
