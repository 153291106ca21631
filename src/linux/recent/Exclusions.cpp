// SPDX-License-Identifier: MIT
#include "linux/recent/Exclusions.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "base/Error.h"
#include "linux/files/NativeFile.h"
#include "linux/files/SystemError.h"
#include "linux/files/UnfinishedFile.h"
#include "linux/files/XdgFolders.h"

namespace dayvane::recent {

namespace {

constexpr std::size_t kLargestFile = 256U << 10U;  ///< bytes
constexpr std::size_t kMostComplaints = 10;        ///< about one reading

/// Every line is a comment, so what a kill or a full disk leaves of it leaves out nothing either.
constexpr std::string_view kExample =
    R"(# What Dayvane must not record, one pattern a line. Lines that begin with "#" say nothing: so far, everything is
# recorded. Take the "#" away from a line or add your own. They count from now on; what is on record stays there.

# A folder with everything in it, or a document; "~" is your home folder:
#~/Private
#/media

# Documents or folders of a name, wherever they are. "*" stands for any characters ("/" too), "?" for one of them,
# "[abc]" for one of these:
#*.iso
#node_modules
#~/Letters/*/Drafts

# Downloads. Browsers report a document as soon as it has come, opened or not:
#~/Downloads
#program:firefox

# Whatever a program opened, by its name or the last part of its id (org.kde.okular), in any letter case:
#program:okular

# Documents of a type:
#type:image/*
)";

/// The home folder by all of its names: some sources tell where links lead to.
std::vector<std::string> NamesOf(const std::string& home) {
  std::vector<std::string> names = {home};
  const std::unique_ptr<char, void (*)(void*)> real(realpath(home.c_str(), nullptr), &std::free);
  if (real && home != real.get()) names.emplace_back(real.get());
  return names;
}

/// A link to nowhere is something.
bool IsNothingThere(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

/// Why something that is there has nothing to read.
std::string ObstacleAt(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 ? "it is no file" : std::generic_category().message(errno);
}

std::string ReadRules(const std::string& path) {
  // Links are followed: some users keep their settings elsewhere.
  const files::FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) files::Fail(path);
  if (static_cast<std::size_t>(status.st_size) > kLargestFile) throw Error(kInvalidFileFormat, "Too large", path);
  return files::ReadOpenFile(file.Number(), status, kLargestFile, path);
}

}  // namespace

std::string DefaultExclusionsFile() {
  return xdg::ConfigFolder(xdg::Environment::OfProcess()) + "/dayvane/exclude";
}

Exclusions::Exclusions(std::string file, const std::string& home, ReportEvent reportEvent)
    : m_file(std::move(file)), m_homes(NamesOf(home)), m_reportEvent(std::move(reportEvent)) {
  try {
    if (IsNothingThere(m_file)) MakeExample();
  } catch (const Error& error) {
    m_reportEvent("Exclusions: the example cannot be written: " + std::string(error.what()));
  }
  m_isMissing = IsNothingThere(m_file);
}

void Exclusions::MakeExample() {
  xdg::MakeFolder(m_file.substr(0, m_file.rfind('/')));
  // Only where there is none, not even a link to nowhere.
  const files::FileDescriptor file(open(m_file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  if (!file.IsOpen() && errno == EEXIST) return;
  if (!file.IsOpen()) files::Fail(m_file);
  try {
    files::WriteAll(file.Number(), kExample, m_file);
  } catch (const Error&) {
    unlink(m_file.c_str());
    throw;
  }
}

void Exclusions::Refresh() {
  const auto version = VersionOf(m_file);
  if (version && version == m_read) return;
  if (!version && IsNothingThere(m_file)) return TakeAsMissing();
  m_isMissing = false;
  if (version)
    Read(*version);
  else
    ReportFailure(ObstacleAt(m_file));
}

void Exclusions::TakeAsMissing() {
  m_read.reset();
  // Some programs save a file by deleting it first; what it said must hold until it is there again.
  if (!std::exchange(m_isMissing, true)) return;
  m_rules = {};
  m_areKnown = true;
  m_isFailing = false;
}

void Exclusions::Read(const FileVersion& version) {
  try {
    m_rules = ExclusionRules(ReadRules(m_file), m_homes);
  } catch (const Error& error) {
    return ReportFailure(error.Description());
  }
  m_read = version;
  m_areKnown = true;
  m_isFailing = false;
  ReportBadLines();
}

void Exclusions::ReportBadLines() const {
  std::size_t left = kMostComplaints;
  for (const auto& bad : m_rules.BadLines()) {
    if (left-- == 0) return;
    m_reportEvent("Exclusions: line " + std::to_string(bad.number) + " of " + m_file +
                  " says nothing: " + bad.complaint);
  }
}

void Exclusions::ReportFailure(const std::string& failure) {
  m_read.reset();
  m_areKnown = false;
  if (std::exchange(m_isFailing, true)) return;
  m_reportEvent("Exclusions: " + m_file + " cannot be read, so nothing new is recorded until it can: " + failure);
}

}  // namespace dayvane::recent
