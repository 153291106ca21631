// SPDX-License-Identifier: MIT

// A working day with the fastest timer: what the program takes must not grow with the time that it runs.

#include <QCoreApplication>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

#include "linux/LinuxFileSystem.h"
#include "linux/LinuxRegistry.h"
#include "linux/LinuxShell.h"
#include "linux/LinuxShellIcons.h"
#include "linux/ProgramWindows.h"
#include "shell/MDayvaneMain.h"
#include "tests/linux/PrivateDesktop.h"
#include "tests/linux/tray/TestTray.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr int kDocuments = 12;
constexpr int kMinute = 60;
constexpr int kHour = 60 * kMinute;

/// Polls of a session, one a second: an hour, or what the environment says.
int Seconds() {
  const char* told = std::getenv("DAYVANE_LONG_SESSION_SECONDS");
  return told != nullptr ? std::atoi(told) : kHour;
}

/// What the process has taken of the system.
struct Taken {
  std::size_t bytes;     ///< in use
  std::size_t resident;  ///< bytes in memory
  std::ptrdiff_t descriptors;
  std::ptrdiff_t threads;

  static Taken Now() {
    const auto entries = [](const char* folder) {
      return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
    };
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    const auto heap = mallinfo2();
    return {heap.uordblks + heap.hblkhd, pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)),
            entries("/proc/self/fd"), entries("/proc/self/task")};
  }
};

/// The program as main() puts it together, on an offscreen desktop, with a clock that is moved on by hand.
class LongSession : public ::testing::Test {
 protected:
  LongSession() {
    m_folder.Write("dayvane.ini",
                   "[Software\\Korvath\\Dayvane\\Options]\n"
                   "Favorites Threshold=1\nPurge Age=30\nTimer Interval=1\n");
    m_clock.now =
        std::chrono::floor<std::chrono::seconds>(files::LocalTime(std::chrono::system_clock::to_time_t(m_begin)));
    WriteList();
    m_program = Main(m_parts, m_folder.Path(), false,
                     {[this](FSplash& splash) { m_windows.Present(splash); },
                      [this](FMainControls& mainWindow, Application&) { m_windows.Present(mainWindow); }});
  }

  /// Lives through the seconds up to that one.
  void LiveUntil(int second) {
    for (; m_second < second; ++m_second) {
      m_clock.now += 1s;
      if (m_second % kMinute == 0) OpenDocument();
      if (m_second % kMinute == 0) LookAtSomethingElse();
      Window().tmrMain.Fire();
      QCoreApplication::processEvents();
    }
  }

  FMain& Window() { return *m_program.mainWindow; }

 private:
  void OpenDocument() {
    m_opened[static_cast<std::size_t>(m_second / kMinute % kDocuments)] = m_second;
    WriteList();
  }

  void LookAtSomethingElse() {
    const int turn = m_second / kMinute;
    Window().SetActiveView(turn % 2);
    Window().SetListView(turn % 4);
    Window().lvwFavorites.ColumnClick.Raise(1 + static_cast<std::size_t>(turn % 5));
    Window().SetVisible(turn % 3 != 0);
  }

  void WriteList() const {
    std::string list = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel>\n";
    for (int document = 0; document < kDocuments; ++document) {
      const auto opened = m_opened[static_cast<std::size_t>(document)];
      const auto stamp = std::to_string(std::chrono::system_clock::to_time_t(m_begin) + opened);
      list += "<bookmark href=\"file:///home/ana/Page" + std::to_string(document) +
              ".letter\"><application timestamp=\"" + stamp + "\"/></bookmark>\n";
    }
    const std::string finished = m_folder.Write("recently-used.xbel", list + "</xbel>\n");
    fs::create_directories(fs::path(recent::DefaultListPath()).parent_path());
    fs::rename(finished, recent::DefaultListPath());
  }

  testing::TemporaryFolder m_folder;
  const std::chrono::system_clock::time_point m_begin = std::chrono::system_clock::now() - 9h;
  std::array<int, kDocuments> m_opened{};  ///< seconds after the beginning
  int m_second = 0;
  files::LinuxFileSystem m_files;
  LinuxShell m_shell{m_files, m_folder.Native(), [](const std::string&) {}};
  LinuxShellIcons m_icons{m_shell};
  LinuxRegistry m_registry{m_folder / "dayvane.ini", [](const std::string&) {}};
  widgets::LinuxWindowing m_windowing;
  testing::TestHelp m_help;
  testing::TestClock m_clock;
  platform::DateConventions m_dates;
  platform::Desktop m_parts{m_files, m_shell, m_icons, m_registry, m_windowing, m_help, m_clock, m_dates};
  Program m_program;
  testing::TestLauncher m_launcher;
  widgets::ProgramWindows m_windows{m_windowing, m_dates, m_launcher, [](int, QPoint) {}};
};

TEST_F(LongSession, HoursOfPollsTakeNoMoreMemoryDescriptorsAndThreads) {
  LiveUntil(Seconds() / 4);  // by then everything was looked at once
  const Taken early = Taken::Now();
  LiveUntil(Seconds());
  const Taken late = Taken::Now();
  std::printf("%d polls: %zu -> %zu KB in use, %zu -> %zu KB resident, %td -> %td descriptors, %td -> %td threads\n",
              Seconds(), early.bytes / 1024, late.bytes / 1024, early.resident / 1024, late.resident / 1024,
              early.descriptors, late.descriptors, early.threads, late.threads);

  EXPECT_EQ(Window().lvwFavorites.Count(), kDocuments + 1) << "the documents, and the program that opens them";
  EXPECT_LE(late.descriptors, early.descriptors);
  EXPECT_LE(late.threads, early.threads);
  constexpr std::size_t kSlack = 256 << 10;
  EXPECT_LE(late.bytes, early.bytes + kSlack);
  // The sanitizers' own heap, of which nothing is known here, keeps what is freed.
  if (late.bytes > 0) {
    EXPECT_LE(late.resident, early.resident + 8 * kSlack);
  }
}

}  // namespace
}  // namespace dayvane
