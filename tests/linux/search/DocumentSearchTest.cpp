// SPDX-License-Identifier: MIT
#include <QTest>
#include <filesystem>
#include <gmock/gmock.h>
#include <optional>

#include "linux/activation/ApplicationId.h"
#include "linux/search/DocumentSearch.h"
#include "tests/linux/BusCaller.h"
#include "tests/support/MainWindow.h"

namespace dayvane::search {
namespace {

using dayvane::testing::BusCaller;
using dayvane::testing::MainWindow;
using dayvane::testing::PrivateBus;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kGnomePath = "/example/dayvane/Dayvane/SearchProvider";
constexpr const char* kGnome = "org.gnome.Shell.SearchProvider2.";
constexpr const char* kKdePath = "/example/dayvane/Dayvane/Runner";
constexpr const char* kKde = "org.kde.krunner1.";

/// A record of two days, and the searches of two desktops.
class DocumentSearchTest : public ::testing::Test {
 protected:
  DocumentSearchTest() {
    m_main.File("2026/November/20", "Z:\\home\\ana\\Report spring.odt", "2026-11-20 09:00:00");
    m_main.File("2026/November/21", "Z:\\home\\ana\\Report autumn.odt", "2026-11-21 09:00:00");
    m_bus.Register([](const std::string&) {});
    m_activation.emplace(m_bus, m_main.desktop.windowing);
    m_main.Load();
    m_activation->Serve(m_main.window);
    m_search.emplace(m_bus, *m_activation, m_main.window, m_main.application, m_main.repository);
  }

  glib::Variant Ask(const char* path, const std::string& method, GVariant* arguments) {
    return m_desktop.Call(activation::kApplicationId, path, method, arguments);
  }

  static std::vector<std::string> TextsOf(GVariant* answer) {
    std::vector<std::string> texts;
    if (answer == nullptr) return {"no answer"};
    const glib::Variant array(g_variant_get_child_value(answer, 0));
    for (gsize i = 0; i < g_variant_n_children(array.get()); ++i) {
      const char* text = nullptr;
      g_variant_get_child(array.get(), i, "&s", &text);
      texts.emplace_back(text);
    }
    return texts;
  }

  std::vector<std::string> FoundByGnome(const std::vector<const char*>& words) {
    return TextsOf(Ask(kGnomePath, std::string(kGnome) + "GetInitialResultSet", Texts(words)).get());
  }

  /// "Report.odt, 11/20/2026" of each that GNOME shows.
  std::vector<std::string> ShownByGnome(const std::vector<const char*>& ids) {
    const auto answer = Ask(kGnomePath, std::string(kGnome) + "GetResultMetas", Texts(ids));
    std::vector<std::string> shown;
    if (!answer) return {"no answer"};
    const glib::Variant all(g_variant_get_child_value(answer.get(), 0));
    for (gsize i = 0; i < g_variant_n_children(all.get()); ++i) {
      const glib::Variant one(g_variant_get_child_value(all.get(), i));
      const char* name = "";
      const char* description = "";
      g_variant_lookup(one.get(), "name", "&s", &name);
      g_variant_lookup(one.get(), "description", "&s", &description);
      shown.push_back(std::string(name) + ", " + description);
    }
    return shown;
  }

  /// The same of each that KDE shows.
  std::vector<std::string> ShownByKde(const std::string& query) {
    const auto answer = Ask(kKdePath, std::string(kKde) + "Match", g_variant_new("(s)", query.c_str()));
    std::vector<std::string> shown;
    if (!answer) return {"no answer"};
    const glib::Variant all(g_variant_get_child_value(answer.get(), 0));
    for (gsize i = 0; i < g_variant_n_children(all.get()); ++i) {
      const glib::Variant one(g_variant_get_child_value(all.get(), i));
      const glib::Variant properties(g_variant_get_child_value(one.get(), 5));
      const char* name = "";
      const char* subtext = "";
      g_variant_get_child(one.get(), 1, "&s", &name);
      g_variant_lookup(properties.get(), "subtext", "&s", &subtext);
      shown.push_back(std::string(name) + ", " + subtext);
    }
    return shown;
  }

  static GVariant* Texts(const std::vector<const char*>& texts) {
    return g_variant_new("(@as)", g_variant_new_strv(texts.data(), static_cast<gssize>(texts.size())));
  }

  void ChooseInGnome(const std::string& id) {
    const auto answer =
        Ask(kGnomePath, std::string(kGnome) + "ActivateResult", g_variant_new("(sasu)", id.c_str(), nullptr, 0U));
    ASSERT_TRUE(answer) << m_desktop.Failure();
    QCoreApplication::processEvents();
  }

  std::string Id(const std::string& name) const { return m_main.repository.DailyPath() + "\\" + name; }
  std::vector<std::string>& Opened() { return m_main.desktop.shell.opened; }

  PrivateBus m_session;
  MainWindow m_main;
  activation::BusApplication m_bus;
  std::optional<activation::Activation> m_activation;
  std::optional<DocumentSearch> m_search;
  BusCaller m_desktop{m_session};
};

TEST_F(DocumentSearchTest, GnomeFindsDocumentsOfTheNewestDayFirstAndShowsTheirDays) {
  const auto found = FoundByGnome({"report"});

  EXPECT_THAT(found, ElementsAre(Id("2026\\November\\21\\Report autumn.odt.lnk"),
                                 Id("2026\\November\\20\\Report spring.odt.lnk")));
  EXPECT_THAT(ShownByGnome({found[0].c_str(), found[1].c_str()}),
              ElementsAre("Report autumn.odt, 11/21/2026", "Report spring.odt, 11/20/2026"));
}

TEST_F(DocumentSearchTest, GnomeFindsLessWithEachWordThatTheUserAdds) {
  const auto answer =
      Ask(kGnomePath, std::string(kGnome) + "GetSubsearchResultSet", g_variant_new("(asas)", nullptr, nullptr));
  EXPECT_THAT(TextsOf(answer.get()), IsEmpty());
  EXPECT_THAT(FoundByGnome({"report", "SPRING"}), ElementsAre(Id("2026\\November\\20\\Report spring.odt.lnk")));
}

TEST_F(DocumentSearchTest, KdeFindsTheSameDocuments) {
  EXPECT_THAT(ShownByKde("  report "), ElementsAre("Report autumn.odt, 11/21/2026", "Report spring.odt, 11/20/2026"));
  EXPECT_THAT(ShownByKde("report spring"), ElementsAre("Report spring.odt, 11/20/2026"));
  EXPECT_THAT(ShownByKde(""), IsEmpty());
}

TEST_F(DocumentSearchTest, TheChosenDocumentOpensAsByADoubleClick) {
  ChooseInGnome(Id("2026\\November\\20\\Report spring.odt.lnk"));
  ASSERT_TRUE(Ask(kKdePath, std::string(kKde) + "Run",
                  g_variant_new("(ss)", Id("2026\\November\\21\\Report autumn.odt.lnk").c_str(), "")));
  QCoreApplication::processEvents();

  ASSERT_EQ(Opened().size(), 2U);
  EXPECT_TRUE(Opened()[0].starts_with("Z:\\home\\ana\\Report spring.odt|"));
  EXPECT_TRUE(Opened()[1].starts_with("Z:\\home\\ana\\Report autumn.odt|"));
}

TEST_F(DocumentSearchTest, AChosenDocumentThatIsGoneIsToldOf) {
  m_main.desktop.shell.openResult = platform::kSeFileNotFound;
  m_main.desktop.windowing.answer = platform::MessageAnswer::No;

  ChooseInGnome(Id("2026\\November\\20\\Report spring.odt.lnk"));

  EXPECT_THAT(m_main.desktop.windowing.Texts(),
              ElementsAre("The document Z:\\home\\ana\\Report spring.odt\r\nwas not found. Remove this link?"));
}

TEST_F(DocumentSearchTest, AChoiceWaitsWhileABoxAsks) {
  std::optional<controls::QuestionScope> box(std::in_place);
  ChooseInGnome(Id("2026\\November\\20\\Report spring.odt.lnk"));
  EXPECT_THAT(Opened(), IsEmpty());

  box.reset();

  EXPECT_TRUE(QTest::qWaitFor([this] { return Opened().size() == 1; }));
}

TEST_F(DocumentSearchTest, NothingButTheRecordsLinksIsOpenedForAStranger) {
  m_main.desktop.folder.Write("program/Daily/secret.lnk", "");
  for (const std::string& id : {std::string("Z:\\etc\\passwd"), Id("secret.lnk"),
                                Id("2026\\November\\20\\..\\..\\..\\secret.lnk"), std::string(100000, 'x')})
    ChooseInGnome(id);

  EXPECT_THAT(Opened(), IsEmpty());
  EXPECT_THAT(m_main.desktop.windowing.Texts(), IsEmpty());
  EXPECT_THAT(ShownByGnome({"Z:\\etc\\passwd", "", "\\"}), IsEmpty());
}

TEST_F(DocumentSearchTest, ASearchOfAnySizeIsAnswered) {
  const std::string longWord(1000000, 'r');

  EXPECT_THAT(FoundByGnome({longWord.c_str()}), IsEmpty());
  EXPECT_THAT(FoundByGnome(std::vector<const char*>(20000, "report")), ::testing::SizeIs(2));
  EXPECT_THAT(ShownByKde(longWord), IsEmpty());
}

TEST_F(DocumentSearchTest, WhatAPollFilesIsFoundAtOnce) {
  ASSERT_THAT(FoundByGnome({"new"}), IsEmpty());
  m_main.desktop.OpenDocument("Z:\\home\\ana\\New.odt", "2026-11-21 09:15:00");

  m_main.Tick();

  EXPECT_THAT(FoundByGnome({"new"}), ElementsAre(Id("2026\\November\\21\\New.odt.lnk")));
}

TEST_F(DocumentSearchTest, WhatThePurgeOfADayRemovesIsNotFound) {
  ASSERT_THAT(FoundByGnome({"spring"}), ::testing::SizeIs(1));

  m_main.window.PurgeDay(&m_main.Node("2026\\November\\20"));

  EXPECT_THAT(FoundByGnome({"spring"}), IsEmpty());
}

TEST_F(DocumentSearchTest, WhoWantsToSeeMoreSeesTheWindow) {
  m_main.window.SetVisible(false);

  ASSERT_TRUE(Ask(kGnomePath, std::string(kGnome) + "LaunchSearch", g_variant_new("(asu)", nullptr, 0U)));

  EXPECT_TRUE(QTest::qWaitFor([this] { return m_main.window.form.Visible(); }));
}

TEST_F(DocumentSearchTest, KdeIsOfferedNoFurtherActions) {
  const auto answer = Ask(kKdePath, std::string(kKde) + "Actions", nullptr);

  ASSERT_TRUE(answer);
  EXPECT_STREQ(g_variant_get_type_string(answer.get()), "(a(sss))");
}

TEST_F(DocumentSearchTest, AfterTheWindowHasGoneNothingIsOpened) {
  m_main.window.form.RequestUnload(controls::UnloadMode::SystemSession);

  ChooseInGnome(Id("2026\\November\\20\\Report spring.odt.lnk"));

  EXPECT_THAT(Opened(), IsEmpty());
}

}  // namespace
}  // namespace dayvane::search
