// SPDX-License-Identifier: MIT
#include "tests/linux/recent/RecentDesk.h"

#include <QDateTime>
#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

#include "base/Error.h"
#include "linux/LinuxFileSystem.h"
#include "linux/files/NativePath.h"
#include "linux/glib/GlibHandles.h"

namespace dayvane::testing {

namespace fs = std::filesystem;

namespace {

struct stat StatusOf(const std::string& path) {
  struct stat status {};
  lstat(path.c_str(), &status);
  return status;
}

recent::Moment WrittenAt(const std::string& path) {
  return files::MomentOf(StatusOf(path)).nanoseconds;
}

std::string Address(const std::string& path) {
  const glib::Text address(g_filename_to_uri(path.c_str(), nullptr, nullptr));
  return address.get();
}

/// A link that a test can read: its target, and that all of it is there.
std::string LinkText(const platform::ShellLink& link) {
  return link.target + "\t" + link.workingDirectory + "\t" + std::to_string(link.showCommand) + "\twhole";
}

std::string LocalDay(recent::Moment moment) {
  return QDateTime::fromMSecsSinceEpoch(moment / 1'000'000).toString(QStringLiteral("yyyy-MM-dd")).toStdString();
}

}  // namespace

namespace {

class TestSource : public recent::Source {
 public:
  TestSource(std::string name, SourceScript& script) : m_name(std::move(name)), m_script(script) {}

  const std::string& Name() const override { return m_name; }
  bool IsDue() override { return m_script.openings.size() != m_told; }
  std::optional<recent::Moment> BeganAt(const recent::Opening& use) override {
    return m_script.usedPath.empty() || m_script.usedPath == use.path ? m_script.began : std::nullopt;
  }

  Reading Read(const std::string& memory) override {
    ++m_script.readings;
    if (!m_script.failure.empty()) throw Error(kDeviceIoError, m_script.failure);
    m_told = m_script.openings.size();
    if (m_script.isForgetful) return {m_script.openings, ""};
    const std::size_t known = memory.empty() ? 0 : std::stoul(memory);
    return {{m_script.openings.begin() + static_cast<std::ptrdiff_t>(known), m_script.openings.end()},
            std::to_string(m_told)};
  }

 private:
  std::string m_name;
  SourceScript& m_script;
  std::size_t m_told = 0;
};

}  // namespace

void TestDisk::BeforeChange() {
  if (m_control.changes++ == m_control.changesUntilEnd) throw SessionEnds();
  if (m_control.isFull) throw Error(kDiskFull, "No space left on device");
}

void TestDisk::WriteShortcut(const std::string& name, std::string_view bytes, recent::Moment written) {
  BeforeChange();
  if (name == m_control.refusedName) throw Error(kBadFileName, "Bad name", name);
  RecentDisk::WriteShortcut(name, bytes, written);
}

void TestDisk::DeleteShortcut(const std::string& name) {
  BeforeChange();
  RecentDisk::DeleteShortcut(name);
}

void TestDisk::WriteState(std::string_view text) {
  BeforeChange();
  fs::create_directories(fs::path(m_state).parent_path());
  files::LinuxFileSystem().ReplaceUnflushed(files::FromNative(m_state).value(), text);
}

RecentDesk::RecentDesk() : m_now(At("2026-12-01T12:00:00Z")) {
  fs::create_directories(m_folder / "share");
}

RecentDesk::~RecentDesk() = default;

std::string RecentDesk::Bookmark(const std::string& href, const std::string& opened) {
  return "<bookmark href=\"" + href + "\" added=\"2026-01-01T00:00:00.000001Z\" modified=\"" + opened +
         "\" visited=\"2026-01-01T00:00:00.000002Z\"><info><metadata owner=\"http://freedesktop.org\">"
         "<mime:mime-type type=\"text/plain\"/><bookmark:applications><bookmark:application name=\"Editor\" "
         "exec=\"&apos;editor %u&apos;\" modified=\"" +
         opened + "\" count=\"1\"/></bookmark:applications></metadata></info></bookmark>\n";
}

void RecentDesk::PutList(const std::string& text) {
  const std::string finished = m_folder.Write("share/recently-used.xbel.A1B2C3", text);
  fs::rename(finished, m_list);
}

void RecentDesk::PutBookmarks(const std::string& bookmarks) {
  PutList(
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\" "
      "xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\" "
      "xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\">\n" +
      bookmarks + "</xbel>");
}

void RecentDesk::PutDocuments(const std::map<std::string, std::string>& documents) {
  std::string bookmarks;
  for (const auto& [path, opened] : documents) bookmarks += Bookmark(Address(path), opened);
  PutBookmarks(bookmarks);
}

void RecentDesk::Tell(const std::string& source, const std::string& path, const std::string& moment,
                      const std::string& program) {
  m_sources[source].openings.push_back({path, At(moment), program, ""});
}

recent::RecentFolder& RecentDesk::Start() {
  recent::RecentFolder::Surroundings surroundings;
  surroundings.rules = m_rules;
  for (auto& [name, script] : m_sources) surroundings.sources.push_back(std::make_unique<TestSource>(name, script));
  m_session = std::make_unique<recent::RecentFolder>(
      [this] { return m_now; }, m_list, std::make_unique<TestDisk>(m_recent, m_state, m_disk), LinkText,
      [this](const std::string& event) { m_events.push_back(event); }, m_limits, std::move(surroundings));
  return *m_session;
}

void RecentDesk::Poll() {
  if (!m_session) Start();
  m_session->Refresh();
  std::error_code notThere;
  for (const auto& entry : fs::directory_iterator(m_recent, notThere)) {
    if (entry.path().extension() != ".lnk" || !entry.is_regular_file()) continue;
    const std::string link = ReadFile(entry.path());
    const auto target = files::ToNative(link.substr(0, link.find('\t')));
    m_filed.insert(target.value_or("not a link") + " " + LocalDay(WrittenAt(entry.path())));
  }
  m_session->Captured();
}

std::map<std::string, std::string> RecentDesk::Shortcuts() const {
  std::map<std::string, std::string> shortcuts;
  for (const auto& entry : fs::directory_iterator(m_recent))
    shortcuts[entry.path().filename()] = Written(WrittenAt(entry.path()));
  return shortcuts;
}

std::string RecentDesk::Traces() const {
  std::vector<std::string> traces;
  for (const auto& entry : fs::recursive_directory_iterator(m_folder.Native())) {
    const struct stat status = StatusOf(entry.path());
    traces.push_back(entry.path().string() + " " + std::to_string(status.st_ino) + " " +
                     Written(files::MomentOf(status).nanoseconds) + " " + std::to_string(status.st_ctim.tv_sec) + "." +
                     std::to_string(status.st_ctim.tv_nsec) + "\n");
  }
  std::sort(traces.begin(), traces.end());
  std::string all;
  for (const std::string& trace : traces) all += trace;
  return all;
}

recent::Moment At(const std::string& text) {
  return recent::ParseIsoMoment(QString::fromStdString(text)).value();
}

std::string Written(recent::Moment moment) {
  const recent::Moment fraction = moment % recent::kNanosecondsPerSecond;
  const auto whole = QDateTime::fromSecsSinceEpoch(moment / recent::kNanosecondsPerSecond, Qt::UTC);
  return whole.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.")).toStdString() +
         std::to_string(recent::kNanosecondsPerSecond + fraction).substr(1) + "Z";
}

}  // namespace dayvane::testing
