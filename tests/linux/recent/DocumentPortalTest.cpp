// SPDX-License-Identifier: MIT
#include <atomic>
#include <future>
#include <gmock/gmock.h>
#include <thread>

#include "linux/recent/DocumentPortal.h"
#include "tests/linux/BusService.h"
#include "tests/linux/recent/RecentDesk.h"

namespace dayvane::recent {
namespace {

using ::testing::Optional;

constexpr const char* kPortalFolder = "/run/user/1000/doc";
constexpr const char* kPortalInterface =
    "<node><interface name='org.freedesktop.portal.Documents'><method name='Info'>"
    "<arg type='s' name='doc_id' direction='in'/><arg type='ay' name='path' direction='out'/>"
    "<arg type='a{sas}' name='apps' direction='out'/></method></interface></node>";

/// The document portal, on a thread of its own as it is a program of its own: who asks it waits. It knows "report"
/// ("/home/ana/Report \xE9.odt", which is not UTF-8) and the folder "papers" ("/home/ana/Papers").
class FakePortal {
 public:
  explicit FakePortal(const testing::PrivateBus& bus) : m_context(g_main_context_new()) {
    std::promise<void> ready;
    m_thread = std::thread([&] { Serve(bus, ready); });
    ready.get_future().wait();
  }
  FakePortal(const FakePortal&) = delete;
  FakePortal& operator=(const FakePortal&) = delete;
  ~FakePortal() {
    m_isToEnd = true;
    g_main_context_wakeup(m_context);
    m_thread.join();
    g_main_context_unref(m_context);
  }

  std::atomic<int> asked = 0;
  std::atomic<bool> isHanging = false;  ///< takes questions and gives no answers

 private:
  void Serve(const testing::PrivateBus& bus, std::promise<void>& ready) {
    g_main_context_push_thread_default(m_context);
    {
      const testing::BusService service(
          bus, "org.freedesktop.portal.Documents", "/org/freedesktop/portal/documents", kPortalInterface,
          [this](const std::string&, GVariant* arguments, GDBusMethodInvocation* call) { Answer(arguments, call); });
      ready.set_value();
      while (!m_isToEnd) g_main_context_iteration(m_context, TRUE);
    }
    g_main_context_pop_thread_default(m_context);
  }

  void Answer(GVariant* arguments, GDBusMethodInvocation* call) {
    ++asked;
    const char* id = nullptr;
    g_variant_get(arguments, "(&s)", &id);
    if (isHanging) return;
    const std::string document = id;
    if (document != "report" && document != "papers") {
      g_dbus_method_invocation_return_dbus_error(call, "org.freedesktop.portal.Error.NotFound", "Invalid ID");
      return;
    }
    const char* path = document == "report" ? "/home/ana/Report \xE9.odt" : "/home/ana/Papers";
    g_dbus_method_invocation_return_value(call, g_variant_new("(^aya{sas})", path, nullptr));
  }

  GMainContext* m_context;
  std::atomic<bool> m_isToEnd = false;
  std::thread m_thread;
};

TEST(DocumentPortal, ADocumentOfASandboxLiesWhereThePortalSays) {
  const testing::PrivateBus bus;
  const FakePortal portal(bus);
  DocumentPortal documents(kPortalFolder);
  EXPECT_THAT(documents.Resolve("/run/user/1000/doc/report/Report.odt"),
              Optional<std::string>("/home/ana/Report \xE9.odt"));
  EXPECT_THAT(documents.Resolve("/run/user/1000/doc/by-app/org.example.Writer/report/Report.odt"),
              Optional<std::string>("/home/ana/Report \xE9.odt"));
  EXPECT_THAT(documents.Resolve("/run/user/1000/doc/papers/Papers/2026/Plan.odt"),
              Optional<std::string>("/home/ana/Papers/2026/Plan.odt"));
}

TEST(DocumentPortal, WhatThePortalDoesNotKnowLiesNowhere) {
  const testing::PrivateBus bus;
  FakePortal portal(bus);
  DocumentPortal documents(kPortalFolder);
  EXPECT_EQ(documents.Resolve("/run/user/1000/doc/gone/Report.odt"), std::nullopt);
  EXPECT_EQ(documents.Resolve("/run/user/1000/doc/report"), std::nullopt) << "a folder of the portal's own";
  EXPECT_EQ(documents.Resolve("/run/user/1000/doc/by-app/x"), std::nullopt);
  EXPECT_EQ(documents.Resolve("/run/user/1000/doc/by\xFFpp/x"), std::nullopt);
  EXPECT_EQ(documents.Resolve("/home/ana/Report.odt"), std::nullopt) << "not the portal's";
  EXPECT_EQ(portal.asked, 1);
}

TEST(DocumentPortal, ThePortalIsAskedOnceForADocument) {
  const testing::PrivateBus bus;
  FakePortal portal(bus);
  DocumentPortal documents(kPortalFolder);
  for (int i = 0; i < 3; ++i) {
    documents.Resolve("/run/user/1000/doc/report/Report.odt");
    documents.Resolve("/run/user/1000/doc/gone/Report.odt");
  }
  EXPECT_EQ(portal.asked, 2);
}

TEST(DocumentPortal, APortalThatDoesNotAnswerIsAskedAgainOnlyWhenSomethingNewIsTold) {
  const testing::PrivateBus bus;
  FakePortal portal(bus);
  portal.isHanging = true;
  DocumentPortal documents(kPortalFolder);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(documents.Resolve("/run/user/1000/doc/report/Report.odt"), std::nullopt);
  EXPECT_EQ(portal.asked, 1);
  portal.isHanging = false;
  documents.Wake();
  EXPECT_NE(documents.Resolve("/run/user/1000/doc/report/Report.odt"), std::nullopt);
}

TEST(DocumentPortal, ADocumentOfASandboxIsFiledUnderThePathThatItHasOutside) {
  const testing::PrivateBus bus;
  const FakePortal portal(bus);
  testing::RecentDesk desk;
  desk.m_rules.portalFolder = kPortalFolder;
  desk.m_rules.ownFolders = {"/run/user/1000"};
  desk.PutDocuments({{"/run/user/1000/doc/papers/Papers/Plan.odt", "2026-11-20T08:00:00Z"},
                     {"/home/ana/Papers/Plan.odt", "2026-11-20T07:00:00Z"},
                     {"/run/user/1000/doc/gone/x", "2026-11-20T08:00:00Z"}});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(),
              ::testing::ElementsAre(::testing::Pair("Plan.odt.lnk", "2026-11-20T08:00:00.000000000Z")));
  EXPECT_THAT(desk.Filed(), ::testing::ElementsAre("/home/ana/Papers/Plan.odt 2026-11-20"));
}

TEST(DocumentPortal, WithoutAPortalOrABusNothingIsResolved) {
  const std::string path = "/run/user/1000/doc/report/Report.odt";
  EXPECT_EQ(DocumentPortal(kPortalFolder).Resolve(path), std::nullopt);
  const testing::PrivateBus bus;
  EXPECT_EQ(DocumentPortal(kPortalFolder).Resolve(path), std::nullopt);
}

}  // namespace
}  // namespace dayvane::recent
