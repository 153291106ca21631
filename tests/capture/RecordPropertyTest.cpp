// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <map>
#include <random>
#include <set>

#include "tests/support/ProgramRuns.h"
#include "tests/support/System.h"

/// Random work of a user against the rules in their shortest form: whatever is opened, purged, removed, rebuilt, ended
/// and killed in whatever order, the table is what the rules give, and the folder holds nothing else.
namespace dayvane {
namespace {

namespace fs = std::filesystem;
using testing::Killed;
using testing::ProgramRuns;

constexpr std::int64_t kDay = 86400;
constexpr std::int64_t kPurgeAge = 30;  ///< days
constexpr std::array kZones{"UTC", "Europe/Berlin", "Pacific/Auckland", "America/Los_Angeles"};
constexpr std::array kNames{"a.odt", "b.odt", "c.txt", "d"};

struct Counted {
  int days = 0;
  std::string file;  ///< the filed shortcut that the record was made of, below Daily, with "\"
  bool operator==(const Counted&) const = default;
};

using Table = std::map<std::string, Counted>;  ///< by document

/// The record as the rules have it. Moments are seconds since 1970, UTC.
struct Rules {
  std::map<std::string, std::int64_t> recent;                        ///< last opening by document
  std::map<std::string, std::map<std::string, std::int64_t>> filed;  ///< by day folder "2026\May\05", by document
  Table table;
  std::optional<Table> saved;
  std::int64_t now = 1'795'262'400;  ///< 21 November 2026, noon

  static Date Local(std::int64_t moment) { return testing::LocalTime(moment); }
  static std::string DayOf(const Date& date) { return Format(date, "yyyy\\mmmm\\dd", {}); }

  void Count(const std::string& document, const std::string& day) {
    Counted& counted = table[document];
    if (counted.days++ == 0) counted.file = day + "\\" + document + ".lnk";
  }

  void Save() {
    if (!table.empty()) saved = table;
  }

  bool IsFiledNearby(const std::string& document, std::int64_t moment) const {
    for (int days = -2; days <= 2; ++days) {
      const auto day = filed.find(DayOf(Local(moment).AddDays(days)));
      if (days == 0 || day == filed.end()) continue;
      const auto copy = day->second.find(document);
      if (copy != day->second.end() && copy->second == moment) return true;
    }
    return false;
  }

  std::vector<std::pair<std::string, std::string>> File() {
    std::vector<std::pair<std::string, std::string>> counted;
    for (const auto& [document, moment] : recent) {
      if (Local(moment) < Local(now).AddDays(-kPurgeAge)) continue;
      const std::string day = DayOf(Local(moment));
      const bool isThere = filed.contains(day) && filed[day].contains(document);
      if (!isThere && IsFiledNearby(document, moment)) continue;
      filed[day][document] = moment;
      if (!isThere) counted.emplace_back(document, day);
    }
    return counted;
  }

  void Poll() {
    const auto counted = File();
    for (const auto& [document, day] : counted) Count(document, day);
    if (!counted.empty()) Save();
  }

  /// The order of the walk is that of the folders' names.
  void Rebuild() {
    table.clear();
    for (const auto& [day, documents] : filed)
      for (const auto& [document, moment] : documents) Count(document, day);
  }

  void Start() {
    const Date limit = Local(now).AddDays(-kPurgeAge - 1);
    std::erase_if(filed, [&](const auto& day) {
      std::string text = day.first;
      const auto month = text.find('\\');
      const auto number = text.rfind('\\');
      return ParseMonthFirst(text.substr(month + 1, number - month - 1) + "/" + text.substr(number + 1) + "/" +
                                 text.substr(0, month),
                             {}) <= limit;
    });
    const auto counted = File();
    if (saved) {
      table = *saved;
      for (const auto& [document, day] : counted) Count(document, day);
    } else {
      Rebuild();
    }
    if (!counted.empty()) Save();
  }

  void PurgeDay(const std::string& day) {
    filed.erase(day);
    Rebuild();
    Save();
  }

  void Remove(const std::string& day, const std::string& document) {
    const bool isFavorite = table.contains(document) && table[document].file == day + "\\" + document + ".lnk";
    filed[day].erase(document);
    recent.erase(document);
    if (isFavorite) {
      Rebuild();
      Save();
    }
    if (filed[day].empty()) filed.erase(day);
  }
};

/// The program, and the rules beside it.
class Work {
 public:
  explicit Work(unsigned seed) : m_random(seed) { Restart(false); }

  void Step() {
    switch (Number(14)) {
      case 0:
      case 1:
      case 2:
      case 3:
        return Open();
      case 4:
      case 5:
      case 6:
        return Tick();
      case 7:
        return Pass();
      case 8:
        return Travel();
      case 9:
        return PurgeDay();
      case 10:
        return RebuildFavorites();
      case 11:
        return Remove();
      case 12:
        return Restart(true);
      default:
        return Restart(false);
    }
  }

  void ExpectSame(int step) {
    SCOPED_TRACE("after step " + std::to_string(step) + ", " + m_done);
    EXPECT_EQ(TableOfProgram(), m_rules.table);
    EXPECT_EQ(FilesOfProgram(), FilesOfRules());
  }

 private:
  std::size_t Number(std::size_t below) { return std::uniform_int_distribution<std::size_t>(0, below - 1)(m_random); }
  FMain& Window() { return m_computer.Window(); }
  std::string Root() { return m_computer.desktop.Folder() + "\\Daily\\"; }

  /// Does something that the program may be killed in the middle of; then it is started again.
  void Killable(const std::function<void()>& act) {
    if (Number(3) == 0)
      m_computer.desktop.files.beforeChange = [left = Number(9)](const std::string&) mutable {
        if (left == 0) throw Killed();
        --left;
      };
    try {
      act();
      m_computer.LetLive();
    } catch (const Killed&) {
      m_computer.LetLive();
      m_computer.Start();
      m_rules.Start();
      m_done += ", killed";
    }
  }

  void Open() {
    m_done = "opening";
    const std::string name = kNames[Number(kNames.size())];
    m_rules.now += static_cast<std::int64_t>(Number(7200)) + 1;
    m_rules.recent[name] = m_rules.now;
    SetClock();
    platform::ShellLink link;
    link.target = "Z:\\home\\ana\\" + name;
    const std::string path = m_computer.desktop.NativeRecent() + "/" + name + ".lnk";
    testing::WriteShortcut(path, link, "2026-01-01 00:00:00");
    fs::last_write_time(path, fs::file_time_type(std::chrono::file_clock::from_sys(
                                  std::chrono::sys_seconds(std::chrono::seconds(m_rules.now)))));
  }

  void Tick() {
    m_done = "tick";
    Killable([this] {
      Window().tmrMain.Fire();
      m_rules.Poll();
    });
  }

  void Pass() {
    m_done = "days pass";
    m_rules.now += static_cast<std::int64_t>(Number(Number(4) == 0 ? 50 : 3)) * kDay;
    SetClock();
  }

  void Travel() {
    m_zone.reset();
    const char* zone = kZones[Number(kZones.size())];
    m_done = std::string("travel to ") + zone;
    m_zone.emplace(zone);
    SetClock();
  }

  void PurgeDay() {
    if (m_rules.filed.empty()) return;
    const std::string day = Any(m_rules.filed);
    m_done = "purge of " + day;
    // What the tree shows is what the last poll left.
    controls::TreeNode* node = Window().tvwMain.Find("K" + Root() + day);
    if (node == nullptr) return;
    Window().PurgeDay(node);
    m_rules.PurgeDay(day);
    // Emptied months and years are swept at the next start; here they would only be in the way.
  }

  void RebuildFavorites() {
    m_done = "rebuild";
    Window().mnuToolsPopup.Choose(kToolsRebuildFavorites);
    m_rules.Rebuild();
    m_rules.Save();
  }

  void Remove() {
    if (m_rules.filed.empty()) return;
    const std::string day = Any(m_rules.filed);
    if (m_rules.filed[day].empty()) return;
    const std::string document = Any(m_rules.filed[day]);
    m_done = "removal of " + day + "\\" + document;
    controls::ListItem item;
    item.key = "K" + Root() + day + "\\" + document + ".lnk";
    Window().RemoveLink(&item);
    m_rules.Remove(day, document);
  }

  void Restart(bool killed) {
    m_done = killed ? "kill and start" : "end and start";
    if (m_computer.IsRunning() && !killed) {
      m_computer.Exit();
      m_rules.Save();
    }
    m_computer.Kill();
    SetClock();
    Killable([this] {
      m_computer.Start();
      m_rules.Start();
    });
  }

  template <class Map>
  std::string Any(const Map& map) {
    return std::next(map.begin(), static_cast<std::ptrdiff_t>(Number(map.size())))->first;
  }

  void SetClock() { m_computer.desktop.clock.now = testing::LocalTime(m_rules.now); }

  Table TableOfProgram() {
    Table table;
    for (const auto& record : Window().Favorites()->GetFavorites()) {
      const std::string file = favorites::TextOf(record[favorites::kShortcutFile]);
      table[favorites::TextOf(record[favorites::kTargetFileName])] = {
          static_cast<int>(favorites::NumberOf(record[favorites::kDaysAccessed])), file.substr(Root().size())};
    }
    return table;
  }

  /// Every file of the program's but its logs, with the moment of those in Daily.
  std::map<std::string, std::int64_t> FilesOfProgram() {
    const fs::path root = m_computer.desktop.NativeFolder();
    std::map<std::string, std::int64_t> files;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
      const std::string name = entry.path().lexically_relative(root).generic_string();
      if (entry.is_directory() || name == "ErrorLog.txt" || name == "EventLog.txt") continue;
      const auto written = std::chrono::file_clock::to_sys(entry.last_write_time());
      files[name] = name.starts_with("Daily/")
                        ? std::chrono::duration_cast<std::chrono::seconds>(written.time_since_epoch()).count()
                        : 0;
    }
    return files;
  }

  std::map<std::string, std::int64_t> FilesOfRules() const {
    std::map<std::string, std::int64_t> files;
    for (const auto& [day, documents] : m_rules.filed)
      for (const auto& [document, moment] : documents) {
        std::string path = "Daily\\" + day + "\\" + document + ".lnk";
        std::replace(path.begin(), path.end(), '\\', '/');
        files[path] = moment;
      }
    if (m_rules.saved) files["Favorites.dat"] = 0;
    return files;
  }

  std::mt19937 m_random;
  std::optional<testing::LocalZone> m_zone{"UTC"};
  ProgramRuns m_computer;
  Rules m_rules;
  std::string m_done;
};

class RecordPropertyTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(RecordPropertyTest, TheRecordIsAlwaysWhatTheRulesGive) {
  Work work(GetParam());
  for (int step = 0; step < 60 && !HasFailure(); ++step) {
    work.Step();
    work.ExpectSame(step);
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RecordPropertyTest, ::testing::Range(1U, 31U));

}  // namespace
}  // namespace dayvane
