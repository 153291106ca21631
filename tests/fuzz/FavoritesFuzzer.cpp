// SPDX-License-Identifier: MIT

// "Favorites.dat": whatever it holds, the list shows it, one more day is counted, and what is saved stays the same.

#include <string>

#include "app/IgnoreErrors.h"
#include "capture/CShortcut.h"
#include "linux/LinuxFileSystem.h"
#include "linux/files/NativePath.h"
#include "shell/FMain.h"
#include "tests/fuzz/Fuzzing.h"
#include "tests/support/TestDesktop.h"

namespace dayvane::fuzzing {

namespace {

/// A disk whose data file is a text in memory, and whose logs are nowhere.
class DataFileInMemory : public files::LinuxFileSystem {
 public:
  std::optional<platform::FileStatus> Status(const std::string& path) override {
    if (!IsDataFile(path)) return LinuxFileSystem::Status(path);
    return platform::FileStatus{platform::EntryKind::File, text.size(), {}};
  }
  platform::FileContents Read(const std::string& path, std::size_t limit) override {
    return IsDataFile(path) ? platform::FileContents{text, {}} : LinuxFileSystem::Read(path, limit);
  }
  void Replace(const std::string& path, std::string_view bytes) override {
    if (IsDataFile(path)) text = bytes;
  }
  void Append(const std::string&, std::string_view) override {}

  std::string text;

 private:
  static bool IsDataFile(const std::string& path) { return path.ends_with("\\Favorites.dat"); }
};

/// The program's window with the favorites on it.
class Desk {
 public:
  Desk() { m_window.Form_Load(); }

  /// The text of the data file once it was read and saved again.
  std::string ReadAndSaved(std::string_view bytes) {
    m_disk.text = bytes;
    m_window.Favorites()->Read();
    m_window.Favorites()->Save();
    return m_disk.text;
  }

  void Show() {
    for (controls::ImageList* icons : {&m_window.imlFavoritesLarge, &m_window.imlFavoritesSmall})
      while (icons->Count() > 1) icons->RemoveLast();
    m_window.RefreshFavorites();
    for (std::size_t column = 1; column <= m_window.lvwFavorites.Columns().size(); ++column)
      m_window.lvwFavorites.ColumnClick.Raise(column);
    m_desktop.icons.asked.clear();
    m_desktop.windowing.messages.clear();
  }

  std::size_t Rows() { return m_window.lvwFavorites.Count(); }
  std::size_t Documents() { return static_cast<std::size_t>(m_window.Favorites()->Count()); }

  void CountOneMore() {
    CShortcut shortcut(m_application);
    shortcut.SetFile(m_filed);
    // A record whose count is a word cannot be counted on.
    IgnoreErrors([&] { m_window.Favorites()->ProcessShortcut(&shortcut); });
  }

 private:
  testing::TestDesktop m_desktop;
  DataFileInMemory m_disk;
  platform::Desktop m_parts{m_disk,         m_desktop.shell, m_desktop.icons, m_desktop.registry, m_desktop.windowing,
                            m_desktop.help, m_desktop.clock, m_desktop.dates};
  Application m_application{m_parts, m_desktop.Folder()};
  CRepository m_repository{m_application};
  FMain m_window{m_application, m_repository};
  std::string m_filed = files::FromNative(m_desktop.OpenDocument("Z:\\a", "2026-11-21 09:15:00")).value();
};

}  // namespace

void Try(std::string_view bytes) {
  static Desk desk;
  const std::string saved = desk.ReadAndSaved(bytes);
  const std::size_t documents = desk.Documents();
  Require(documents <= bytes.size(), "a file names no more documents than it has values");

  desk.Show();
  Require(desk.Rows() <= documents, "no document is listed twice");
  desk.CountOneMore();
  Require(desk.Documents() >= 1 && desk.Documents() <= documents + 1, "a filing counts for one document");

  // A quotation mark within a text that had none around it is lost with the first reading after a save, for good.
  const std::string settled = desk.ReadAndSaved(saved);
  Require(desk.ReadAndSaved(settled) == settled, "a table that is saved is read back");
  if (bytes.find('"') == std::string_view::npos && documents > 0)
    Require(settled == saved, "a table without quotation marks is the same as soon as it is saved");
}

}  // namespace dayvane::fuzzing
