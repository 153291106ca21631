// SPDX-License-Identifier: MIT
#include <QDialog>
#include <QTest>
#include <gmock/gmock.h>
#include <optional>

#include "linux/activation/Activation.h"
#include "linux/activation/ApplicationId.h"
#include "tests/linux/BusCaller.h"
#include "tests/support/MainWindow.h"

namespace dayvane::activation {
namespace {

using dayvane::testing::BusCaller;
using dayvane::testing::BusService;
using dayvane::testing::MainWindow;
using dayvane::testing::PrivateBus;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kApplicationPath = "/example/dayvane/Dayvane";
constexpr const char* kEmptyInterface = R"(<node><interface name="org.example.Nothing"/></node>)";

/// The program on a bus, and a launcher that calls it.
class ActivationTest : public ::testing::Test {
 protected:
  ActivationTest() {
    m_bus->Register(m_report);
    m_activation.emplace(*m_bus, m_main.desktop.windowing);
  }
  ~ActivationTest() override { Settle(); }

  /// Brings the program to the point where its event loop begins.
  void Load() {
    m_main.Load();
    m_activation->Serve(m_main.window);
    Settle();
  }

  /// Runs the events that are due.
  static void Settle() {
    bool isOver = false;
    QMetaObject::invokeMethod(
        qApp, [&] { isOver = true; }, Qt::QueuedConnection);
    ASSERT_TRUE(QTest::qWaitFor([&] { return isOver; }));
  }

  void Activate(const char* token = "") {
    GVariantBuilder circumstances;
    g_variant_builder_init(&circumstances, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&circumstances, "{sv}", "activation-token", g_variant_new_string(token));
    ASSERT_TRUE(m_launcher.Call(kApplicationId, kApplicationPath, "org.freedesktop.Application.Activate",
                                g_variant_new("(a{sv})", &circumstances)))
        << m_launcher.Failure();
    Settle();
  }

  void Choose(const char* command) {
    ASSERT_TRUE(m_launcher.Call(kApplicationId, kApplicationPath, "org.freedesktop.Application.ActivateAction",
                                g_variant_new("(sava{sv})", command, nullptr, nullptr)))
        << m_launcher.Failure();
    Settle();
  }

  /// The commands that a launcher may offer now.
  std::vector<std::string> Offered() {
    std::vector<std::string> offered;
    for (const char* command : {"suspend", "resume", "exit"}) {
      const auto answer =
          m_launcher.Call(kApplicationId, kApplicationPath, "org.gtk.Actions.Describe", g_variant_new("(s)", command));
      gboolean isEnabled = FALSE;
      if (answer) g_variant_get(answer.get(), "((bgav))", &isEnabled, nullptr, nullptr);
      if (isEnabled != FALSE) offered.emplace_back(command);
    }
    return offered;
  }

  bool IsShown() const { return m_main.window.form.Visible(); }
  std::vector<std::string>& Happenings() { return m_main.desktop.windowing.happenings; }

  PrivateBus m_session;
  std::vector<std::string> m_events;
  ReportEvent m_report = [this](const std::string& event) { m_events.push_back(event); };
  MainWindow m_main;
  std::optional<BusApplication> m_bus{std::in_place};
  std::optional<Activation> m_activation;
  BusCaller m_launcher{m_session};
};

TEST_F(ActivationTest, OneClickBringsBackAWindowThatWasHidden) {
  Load();
  m_main.window.SetVisible(false);

  Activate();

  EXPECT_TRUE(IsShown());
  EXPECT_TRUE(m_main.window.mnuSysTrayPopup[kTrayHide].Visible());
}

TEST_F(ActivationTest, OneClickBringsBackAWindowThatItsOwnMenuHid) {
  Load();
  m_main.window.mnuFilePopup.Choose(kFileHide);
  ASSERT_FALSE(IsShown());

  Activate();

  EXPECT_TRUE(IsShown());
}

TEST_F(ActivationTest, OneClickBringsAWindowThatOthersCoverToTheFrontAndDoesNotHideIt) {
  Load();
  Happenings().clear();

  Activate();

  EXPECT_THAT(Happenings(), ElementsAre("foreground"));
  EXPECT_TRUE(IsShown());
}

TEST_F(ActivationTest, AClickThatStartedTheProgramEndsWithAVisibleWindow) {
  m_main.desktop.registry.Settings("Window") = {{"Visible", "False"}};
  Activate();
  ASSERT_FALSE(IsShown());

  Load();

  EXPECT_TRUE(IsShown());
}

TEST_F(ActivationTest, AWindowThatWasHiddenAtTheLastEndStaysSoWhereNobodyClicked) {
  m_main.desktop.registry.Settings("Window") = {{"Visible", "False"}};

  Load();

  EXPECT_FALSE(IsShown());
}

TEST_F(ActivationTest, ALauncherOffersWhatTheTrayOffers) {
  Load();
  EXPECT_THAT(Offered(), ElementsAre("suspend", "exit"));

  m_main.window.SetActive(false);
  EXPECT_THAT(Offered(), ElementsAre("resume", "exit"));

  m_main.window.SetActive(true);
  EXPECT_THAT(Offered(), ElementsAre("suspend", "exit"));
}

TEST_F(ActivationTest, ALauncherSuspendsAndResumesTheRecord) {
  Load();
  Choose("suspend");
  EXPECT_FALSE(m_main.window.tmrMain.Enabled());

  Choose("resume");
  EXPECT_TRUE(m_main.window.tmrMain.Enabled());
}

TEST_F(ActivationTest, ALauncherEndsTheProgramAsTheTrayDoes) {
  Load();

  Choose("exit");

  EXPECT_THAT(m_main.desktop.windowing.posted, ElementsAre(platform::kWmClose));
}

TEST_F(ActivationTest, ACommandThatIsNotOfferedDoesNothing) {
  Load();
  m_main.window.SetActive(false);
  int changes = 0;
  m_main.window.tryMain.Changed.Connect([&] { ++changes; });

  Choose("suspend");

  EXPECT_EQ(changes, 0);
}

TEST_F(ActivationTest, WhileABoxAsksEverythingWaitsAndIsDoneOnce) {
  Load();
  std::optional<controls::QuestionScope> box(std::in_place);
  m_main.window.SetVisible(false);
  int suspended = 0;
  m_main.window.mnuSysTrayPopup.Click.Connect([&](int item) { suspended += item == kTraySuspend ? 1 : 0; });
  for (int call = 0; call < 20; ++call) {
    Activate();
    Choose("suspend");
  }
  EXPECT_FALSE(IsShown());
  EXPECT_EQ(suspended, 0);

  box.reset();

  EXPECT_TRUE(QTest::qWaitFor([&] { return suspended > 0; }));
  EXPECT_TRUE(IsShown());
  EXPECT_EQ(suspended, 1);
}

TEST_F(ActivationTest, AClickBringsABoxToTheFrontThatTheUserLostSightOf) {
  Load();
  QWidget owner;
  owner.show();
  QDialog box(&owner);
  box.setWindowModality(Qt::WindowModal);
  box.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
  QWidget help;
  help.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&help));

  Activate();

  EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
}

TEST_F(ActivationTest, TheWindowComesWithTheLaunchersRightToTheFrontAndNothingElseInheritsIt) {
  Load();
  m_main.window.SetVisible(false);
  QByteArray shownWith;
  m_main.window.tryMain.MouseUp.Connect([&](int, int) { shownWith = qgetenv("XDG_ACTIVATION_TOKEN"); });

  Activate("launcher-1234_TIME5678");

  EXPECT_EQ(shownWith, "launcher-1234_TIME5678");
  EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

TEST_F(ActivationTest, ARightThatIsLongerThanAnyWindowSystemsIsNotTaken) {
  Load();
  m_main.window.SetVisible(false);
  QByteArray shownWith = "nothing yet";
  m_main.window.tryMain.MouseUp.Connect([&](int, int) { shownWith = qgetenv("XDG_ACTIVATION_TOKEN"); });

  Activate(std::string(100000, 'x').c_str());

  EXPECT_EQ(shownWith, "");
  EXPECT_TRUE(IsShown());
}

TEST_F(ActivationTest, AfterTheEndANewStartFindsTheNameFree) {
  Load();
  ASSERT_TRUE(m_launcher.IsOwned(kApplicationId));

  m_activation.reset();
  m_bus.reset();

  EXPECT_FALSE(m_launcher.IsOwned(kApplicationId));
}

TEST_F(ActivationTest, AClickWhenTheWindowHasGoneForGoodDoesNothing) {
  Load();
  m_main.window.form.RequestUnload(controls::UnloadMode::SystemSession);

  Activate();
  Choose("exit");

  EXPECT_FALSE(IsShown());
  EXPECT_THAT(m_main.desktop.windowing.posted, IsEmpty());
}

TEST_F(ActivationTest, TheProgramGoesOnWhenTheBusDies) {
  Load();

  m_session.Kill();
  ASSERT_TRUE(QTest::qWaitFor([this] { return g_dbus_connection_is_closed(m_bus->Connection()) != FALSE; }));
  Settle();
  m_main.window.SetActive(false);
  Settle();

  EXPECT_FALSE(m_main.window.tmrMain.Enabled());
  EXPECT_THAT(m_events, IsEmpty());
}

TEST(Activation, WithoutABusTheProgramIsAsItWas) {
  std::vector<std::string> events;
  BusApplication bus;
  bus.Register([&](const std::string& event) { events.push_back(event); });
  MainWindow main;
  Activation activation(bus, main.desktop.windowing);
  main.Load();
  activation.Serve(main.window);

  EXPECT_FALSE(bus.IsOnBus());
  EXPECT_THAT(events, IsEmpty());
}

TEST(Activation, ANameThatAnotherProgramHasIsToldOnceAndNobodyIsDisturbed) {
  const PrivateBus session;
  std::vector<std::string> calls;
  const BusService other(session, kApplicationId, kApplicationPath, kEmptyInterface,
                         [&](const std::string& name, GVariant*, GDBusMethodInvocation*) { calls.push_back(name); });
  std::vector<std::string> events;
  BusApplication bus;
  bus.Register([&](const std::string& event) { events.push_back(event); });
  MainWindow main;
  Activation activation(bus, main.desktop.windowing);
  main.Load();
  activation.Serve(main.window);

  EXPECT_FALSE(bus.IsOnBus());
  EXPECT_THAT(events, ElementsAre(HasSubstr("Launchers cannot call the program")));
  EXPECT_THAT(calls, IsEmpty());
}

}  // namespace
}  // namespace dayvane::activation
