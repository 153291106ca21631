// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <optional>

#include "linux/activation/ApplicationId.h"
#include "linux/activation/GnomeShell.h"
#include "tests/linux/BusService.h"
#include "tests/linux/MainLoop.h"
#include "tests/linux/PrivateDesktop.h"
#include "tests/support/TestDesktop.h"

namespace dayvane::activation {
namespace {

namespace desktop = dayvane::testing::desktop;
using dayvane::testing::BusService;
using dayvane::testing::MainLoopRunsUntil;
using dayvane::testing::PrivateBus;
using dayvane::testing::TestRegistry;
using ::testing::ElementsAre;

constexpr const char* kEmptyShell = R"(<node><interface name="org.gnome.Shell"/></node>)";
constexpr const char* kNotifications = R"(<node><interface name="org.freedesktop.Notifications"><method name="Notify">
  <arg type="s"/><arg type="u"/><arg type="s"/><arg type="s"/><arg type="s"/><arg type="as"/><arg type="a{sv}"/>
  <arg type="i"/><arg type="u" direction="out"/></method></interface></node>)";

/// A bus where GNOME Shell comes and goes, and someone who shows notifications.
class GnomeShellTest : public ::testing::Test {
 protected:
  ~GnomeShellTest() override { RemoveMenuEntry(); }

  void InstallMenuEntry() { std::ofstream(m_entry) << "[Desktop Entry]\nType=Application\nName=Dayvane\nExec=true\n"; }
  void RemoveMenuEntry() { std::filesystem::remove(m_entry); }

  void StartShell() {
    m_shell.emplace(m_session, "org.gnome.Shell", "/org/gnome/Shell", kEmptyShell,
                    [](const std::string&, GVariant*, GDBusMethodInvocation*) {});
  }

  void Register() {
    m_bus.Register([](const std::string&) {});
  }
  bool Comes(GnomeShell& shell) {
    return MainLoopRunsUntil([&] { return shell.Serves(); });
  }

  void ShowNotification(GVariant* arguments, GDBusMethodInvocation* call) {
    const char* title = nullptr;
    g_variant_get_child(arguments, 3, "&s", &title);
    m_shown.emplace_back(title);
    g_dbus_method_invocation_return_value(call, g_variant_new("(u)", 1U));
  }

  PrivateBus m_session;
  std::string m_entry = desktop::Applications() + "/" + kApplicationId + ".desktop";
  std::vector<std::string> m_shown;
  BusService m_notifications{m_session, "org.freedesktop.Notifications", "/org/freedesktop/Notifications",
                             kNotifications,
                             [this](const std::string&, GVariant* arguments, GDBusMethodInvocation* call) {
                               ShowNotification(arguments, call);
                             }};
  TestRegistry m_registry;
  BusApplication m_bus;
  std::optional<BusService> m_shell;
};

TEST_F(GnomeShellTest, TheDashBringsTheWindowBackWhereTheProgramIsInstalled) {
  InstallMenuEntry();
  Register();
  StartShell();
  GnomeShell shell(m_bus, m_registry);

  EXPECT_TRUE(Comes(shell));
}

TEST_F(GnomeShellTest, TheDashHasNoIconForAProgramWithoutAMenuEntry) {
  Register();
  StartShell();
  GnomeShell shell(m_bus, m_registry);
  int changes = 0;
  shell.Changed.Connect([&] { ++changes; });
  ASSERT_TRUE(MainLoopRunsUntil([&] { return changes == 1; }));

  EXPECT_FALSE(shell.Serves());
}

TEST_F(GnomeShellTest, TheDashCannotCallAProgramThatIsNotOnTheBus) {
  InstallMenuEntry();
  StartShell();
  GnomeShell shell(m_bus, m_registry);
  int changes = 0;
  shell.Changed.Connect([&] { ++changes; });
  ASSERT_TRUE(MainLoopRunsUntil([&] { return changes == 1; }));

  EXPECT_FALSE(shell.Serves());
}

TEST_F(GnomeShellTest, ADashThatGoesServesNoMore) {
  InstallMenuEntry();
  Register();
  StartShell();
  GnomeShell shell(m_bus, m_registry);
  ASSERT_TRUE(Comes(shell));

  m_shell.reset();

  EXPECT_TRUE(MainLoopRunsUntil([&] { return !shell.Serves(); }));
}

TEST_F(GnomeShellTest, TheUserIsToldTheWayBackOnceForEver) {
  Register();
  {
    GnomeShell shell(m_bus, m_registry);
    shell.TellWayBack();
    shell.TellWayBack();
    ASSERT_TRUE(MainLoopRunsUntil([this] { return !m_shown.empty(); }));
  }
  GnomeShell ofTheNextStart(m_bus, m_registry);
  ofTheNextStart.TellWayBack();
  m_bus.Notify("Another", "");

  ASSERT_TRUE(MainLoopRunsUntil([this] { return m_shown.size() > 1; }));
  EXPECT_THAT(m_shown, ElementsAre("Dayvane goes on recording", "Another"));
}

TEST_F(GnomeShellTest, WhereTheSettingsCannotBeStoredTheUserIsToldOnceInEachRun) {
  Register();
  m_registry.refusesValues = true;
  GnomeShell shell(m_bus, m_registry);
  shell.TellWayBack();
  shell.TellWayBack();
  m_bus.Notify("Another", "");

  ASSERT_TRUE(MainLoopRunsUntil([this] { return m_shown.size() > 1; }));
  EXPECT_THAT(m_shown, ElementsAre("Dayvane goes on recording", "Another"));
}

}  // namespace
}  // namespace dayvane::activation
