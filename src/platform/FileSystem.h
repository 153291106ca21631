// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dayvane::platform {

/// When a file was last written: the exact moment, and the same moment on the user's clock.
/// Two moments are the same when their nanoseconds are; the local time is for filing and showing.
struct FileMoment {
  std::int64_t nanoseconds = 0;  ///< since 1970-01-01 00:00 UTC
  std::chrono::local_seconds local{};

  friend bool operator==(const FileMoment& a, const FileMoment& b) { return a.nanoseconds == b.nanoseconds; }
};

/// A symbolic link is a Link whatever it points at: links are never followed.
enum class EntryKind { File, Folder, Link, Other };

struct FileStatus {
  EntryKind kind = EntryKind::Other;
  std::uint64_t size = 0;  ///< bytes
  FileMoment written;

  friend bool operator==(const FileStatus&, const FileStatus&) = default;
};

struct DirectoryEntry {
  std::string name;  ///< bare name
  EntryKind kind = EntryKind::Other;
  bool hidden = false;  ///< hidden or system
};

/// The bytes of a file and the moment they were written, taken from one open file so that they belong together.
struct FileContents {
  std::string bytes;
  FileMoment written;
};

/// The disk. Paths are the program's own: UTF-8 text, absolute, "\" between the parts ("Z:\home\ana\Report.odt").
/// Every failure is an Error with one of the numbers of base/Error.h and the path it is about.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// What lies at the path, or nothing when nothing does or the user may not look there. A symbolic link is reported,
  /// not followed. An error when the disk does not answer.
  virtual std::optional<FileStatus> Status(const std::string& path) = 0;

  /// Where the symbolic link at the path leads, through all links that it leads to, whether or not anything lies at the
  /// end; the path itself where there is no link. For the few files and folders that the user may have moved elsewhere
  /// on purpose. An error when the links go round in a circle or end where the program has no path for.
  virtual std::string Resolve(const std::string& path) = 0;

  /// Everything in the folder but "." and "..", in the order of the names' bytes. Empty when there is no such folder;
  /// an error when it cannot be read.
  virtual std::vector<DirectoryEntry> List(const std::string& folder) = 0;

  /// The first `limit` bytes of a file.
  virtual FileContents Read(const std::string& path, std::size_t limit) = 0;

  /// Puts a whole file in place of what was there: every reader, even after a kill or a power cut, finds the old
  /// file or the new one.
  virtual void Replace(const std::string& path, std::string_view bytes) = 0;

  /// The same, except that the file may be empty after a power cut: it does not wait for the disk, and only renews
  /// the moment of a file that holds these bytes already. For the many files that can be made again.
  virtual void ReplaceUnflushed(const std::string& path, std::string_view bytes) = 0;

  /// Copies a file with its last-written moment, replacing the destination as a whole.
  virtual void Copy(const std::string& source, const std::string& destination) = 0;

  /// Adds to the end of a text file, made when missing.
  virtual void Append(const std::string& path, std::string_view text) = 0;

  /// Fails when the folder exists.
  virtual void CreateFolder(const std::string& path) = 0;

  /// Gives a file another name on the same disk. Fails when there is something of that name.
  virtual void Rename(const std::string& path, const std::string& newPath) = 0;

  /// Deletes a file, or a symbolic link itself.
  virtual void Delete(const std::string& path) = 0;

  /// Removes an empty folder.
  virtual void RemoveFolder(const std::string& path) = 0;
};

}  // namespace dayvane::platform
