// SPDX-License-Identifier: MIT
#include "linux/recent/KdeActivities.h"

#include <algorithm>
#include <utility>

#include "base/Error.h"
#include "base/Text.h"
#include "linux/files/XdgFolders.h"
#include "linux/recent/ReadOnlyDatabase.h"
#include "linux/recent/ResourceEvents.h"
#include "linux/recent/StableHash.h"

namespace dayvane::recent {

namespace {

constexpr std::string_view kSchemaVersion = "2015.02.09";

/// The rows that one opening may have, and some: those just before the new ones are read again, because another row of
/// an opening that is known is no new one.
constexpr std::int64_t kRowsReadAgain = 16;

/// The last row that was read. Row 0 stands for a table that was empty.
struct RowMark {
  std::int64_t row = 0;
  std::int64_t start = 0;
  std::uint64_t hash = 0;

  friend bool operator==(const RowMark&, const RowMark&) = default;
};

RowMark MarkOf(const ResourceEvent& event) {
  return {event.row, event.start.value_or(0), StableHash(event.agent + '\n' + event.resource)};
}

std::string MemoryLine(const RowMark& mark) {
  return std::to_string(mark.row) + " " + std::to_string(mark.start) + " " + std::to_string(mark.hash);
}

/// Nothing for a memory of another form, which is none.
std::optional<RowMark> ParseMemory(std::string_view memory) {
  const auto parts = text::Split(memory, ' ');
  if (parts.size() != 3) return std::nullopt;
  const auto row = text::ToNumber<std::int64_t>(parts[0]);
  const auto start = text::ToNumber<std::int64_t>(parts[1]);
  const auto hash = text::ToNumber<std::uint64_t>(parts[2]);
  return row && *row >= 0 && start && hash ? std::optional(RowMark{*row, *start, *hash}) : std::nullopt;
}

void RequireKnownSchema(const ReadOnlyDatabase& database, const std::string& path) {
  auto query = database.Ask("SELECT value FROM SchemaInfo WHERE key = 'version'");
  const std::string version = query.Next() ? query.Text(0) : "";
  // What the database calls itself is no text for a log.
  if (version != kSchemaVersion)
    throw Error(kInvalidFileFormat, "The database has another schema than 2015.02.09", path);
}

std::vector<ResourceEvent> Events(ReadOnlyDatabase::Query& query) {
  std::vector<ResourceEvent> events;
  while (query.Next())
    events.push_back({query.Number(0).value_or(0), query.Text(1), query.Text(2), query.Number(3), query.Number(4)});
  return events;
}

std::vector<ResourceEvent> EventsAfter(const ReadOnlyDatabase& database, std::int64_t row, std::size_t limit) {
  auto query = database.Ask(
      "SELECT rowid, initiatingAgent, targettedResource, start, end FROM ResourceEvent "
      "WHERE rowid > ? ORDER BY rowid LIMIT ?");
  query.Bind(1, row).Bind(2, static_cast<std::int64_t>(limit));
  return Events(query);
}

/// The last rows, but none that began earlier.
std::vector<ResourceEvent> LastEvents(const ReadOnlyDatabase& database, std::optional<std::int64_t> start,
                                      std::size_t limit) {
  auto query = database.Ask(
      "SELECT rowid, initiatingAgent, targettedResource, start, end FROM ResourceEvent "
      "WHERE ?1 IS NULL OR start >= ?1 ORDER BY rowid DESC LIMIT ?2");
  if (start) query.Bind(1, *start);
  query.Bind(2, static_cast<std::int64_t>(limit));
  auto events = Events(query);
  std::ranges::reverse(events);
  return events;
}

RowMark LastMark(const ReadOnlyDatabase& database) {
  const auto events = LastEvents(database, std::nullopt, 1);
  return events.empty() ? RowMark() : MarkOf(events.front());
}

/// Whether the row is still the one that was marked.
bool Holds(const ReadOnlyDatabase& database, const RowMark& mark) {
  if (mark.row == 0) return true;
  const auto events = EventsAfter(database, mark.row - 1, 1);
  return !events.empty() && MarkOf(events.front()) == mark;
}

/// Gives the openings their types and leaves out folders, which the file manager reports like documents.
void LookUpTypes(const ReadOnlyDatabase& database, std::vector<Opening>& openings) {
  if (openings.empty() || !database.HasTable("ResourceInfo")) return;
  auto query = database.Ask("SELECT mimetype FROM ResourceInfo WHERE targettedResource = ?");
  for (Opening& opening : openings) {
    query.Reset();
    if (query.Bind(1, opening.path).Next()) opening.mimeType = query.Text(0);
  }
  std::erase_if(openings, [](const Opening& opening) { return opening.mimeType == "inode/directory"; });
}

}  // namespace

std::string DefaultActivityDatabase() {
  return xdg::DataFolder(xdg::Environment::OfProcess()) + "/kactivitymanagerd/resources/database";
}

KdeActivities::KdeActivities(std::string nativePath, Limits limits) : m_path(std::move(nativePath)), m_limits(limits) {}

std::optional<KdeActivities::Version> KdeActivities::CurrentVersion() const {
  const auto database = VersionOf(m_path);
  if (!database) return std::nullopt;
  // Reading the database makes an empty log where there is none.
  auto log = VersionOf(m_path + "-wal");
  if (log && log->size == 0) log.reset();
  return Version{*database, log};
}

bool KdeActivities::IsDue() {
  const auto version = CurrentVersion();
  return version && version != m_read;
}

Source::Reading KdeActivities::Read(const std::string& memory) {
  const auto version = CurrentVersion();
  if (!version) return {{}, memory};
  const ReadOnlyDatabase database(m_path);
  RequireKnownSchema(database, m_path);
  const auto mark = ParseMemory(memory);
  const bool goesOn = mark && Holds(database, *mark);
  // So many that one of them is new even if all the others have been read before.
  const auto limit = m_limits.rows + static_cast<std::size_t>(kRowsReadAgain);
  const auto events = goesOn ? EventsAfter(database, mark->row - kRowsReadAgain, limit)
                             : LastEvents(database, mark ? std::optional(mark->start) : std::nullopt, limit);
  Reading reading{OpeningsOf(events, goesOn ? mark->row : 0), ""};
  if (!mark) reading.openings = LatestOfEach(reading.openings);
  LookUpTypes(database, reading.openings);
  reading.memory = MemoryLine(!goesOn ? LastMark(database) : events.empty() ? *mark : MarkOf(events.back()));
  const bool isRest = goesOn && events.size() == limit;
  m_read = isRest ? std::nullopt : version;
  return reading;
}

std::optional<Moment> KdeActivities::BeganAt(const Opening& use) {
  if (use.program.empty() || !VersionOf(m_path)) return std::nullopt;
  try {
    const ReadOnlyDatabase database(m_path);
    RequireKnownSchema(database, m_path);
    auto query = database.Ask(
        "SELECT rowid, initiatingAgent, targettedResource, start, end FROM ResourceEvent "
        "WHERE rowid > (SELECT max(rowid) FROM ResourceEvent) - ?1 AND targettedResource = ?2");
    query.Bind(1, static_cast<std::int64_t>(m_limits.uses)).Bind(2, use.path);
    return BeginningOf(Events(query), use);
  } catch (const Error&) {
    // Whoever asks goes on without an answer; the next reading tells what is wrong.
    return std::nullopt;
  }
}

}  // namespace dayvane::recent
