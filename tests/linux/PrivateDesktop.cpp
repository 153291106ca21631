// SPDX-License-Identifier: MIT
#include "tests/linux/PrivateDesktop.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <gio/gio.h>
#include <gtest/gtest.h>
#include <memory>
#include <poll.h>
#include <stdexcept>
#include <sys/stat.h>

#include "linux/files/FileDescriptor.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::testing::desktop {

namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 20000;  // milliseconds, on a busy machine

/// Tells its working folder and its arguments through the pipe of the test.
constexpr const char* kTellingProgram = "#!/bin/sh\nprintf '%s\\n' \"$PWD\" \"$@\" > \"$DAYVANE_TEST_STARTS\"\n";

/// Tells the same, then hangs until the desktop is gone.
constexpr const char* kHangingProgram =
    "#!/bin/sh\nprintf '%s\\n' \"$PWD\" \"$@\" > \"$DAYVANE_TEST_STARTS\"\n"
    "while [ -e \"$DAYVANE_TEST_STARTS\" ]; do sleep 0.2; done\n";

/// The weight of a pattern, its type, the pattern, and "cs" where letter case matters (shared-mime-info, "globs2").
constexpr const char* kPatterns =
    "50:application/x-letter:*.letter\n"
    "50:application/x-sketch:*.sketch\n"
    "50:application/x-chart:*.chart\n"
    "50:application/x-silent:*.silent\n"
    "50:application/x-stuck:*.stuck\n"
    "50:application/x-chosen:*.chosen\n"
    "50:application/x-orphan:*.orphan\n"
    "50:application/x-first:*.both\n"
    "50:application/x-second:*.both\n"
    "50:application/x-small:*.small\n"
    "50:application/x-capital:*.SMALL:cs\n";

std::string TypeDescription(const std::string& type, const std::string& description) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<mime-type xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\" type=\"" +
         type + "\">\n<comment>" + description + "</comment>\n</mime-type>\n";
}

std::string Application(const std::string& name, const std::string& rest) {
  return "[Desktop Entry]\nType=Application\nName=" + name + "\n" + rest;
}

class PrivateDesktop : public ::testing::Environment {
 public:
  void SetUp() override {
    m_folder = std::make_unique<TemporaryFolder>();
    WriteTypes();
    WritePrograms();
    WriteApplications();
    WriteTypesOfApplications();
    SetEnvironment();
    // Asked for these folders later, GIO reads its content types a second time and leaks the first.
    g_content_type_get_mime_dirs();
  }
  void TearDown() override { m_folder.reset(); }

  const TemporaryFolder& Folder() const { return *m_folder; }
  int Starts() const { return m_starts->Number(); }

 private:
  void WriteTypes() {
    m_folder->Write("data/mime/globs2", kPatterns);
    m_folder->Write("data/mime/application/x-letter.xml", TypeDescription("application/x-letter", "Letter"));
    m_folder->Write("data/mime/application/x-sketch.xml", TypeDescription("application/x-sketch", "Sketch"));
  }

  void WritePrograms() {
    for (const char* name : {"bin/letter-writer", "bin/sketcher", "bin/files", "bin/flatpak", "bin/paint.sketch",
                             "exports/bin/org.example.Chart"})
      fs::permissions(m_folder->Write(name, kTellingProgram), fs::perms(0755));
    fs::permissions(m_folder->Write("bin/stuck", kHangingProgram), fs::perms(0755));
    // Opened for both, so that a program never waits for the test to read.
    const std::string pipe = *m_folder / "starts";
    if (mkfifo(pipe.c_str(), 0600) != 0) throw std::runtime_error("no pipe");
    m_starts = std::make_unique<files::FileDescriptor>(open(pipe.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
  }

  void WriteApplications() {
    const std::string folder = "data/applications/";
    m_folder->Write(folder + "letters.desktop", Application("Letters",
                                                            "Exec=letter-writer --new %u\n"
                                                            "Icon=letters\n"
                                                            "MimeType=application/x-letter;x-scheme-handler/https;\n"));
    m_folder->Write(folder + "letters-many.desktop",
                    Application("Many Letters", "Exec=letter-writer --one --two %u\n"));
    m_folder->Write(folder + "sketches.desktop",
                    Application("Sketches", "Exec=env LANG=C SKETCH=1 sketcher %f\nMimeType=application/x-sketch;\n"));
    m_folder->Write(folder + "paint.desktop",
                    Application("Paint", "Exec=paint.sketch %f\nIcon=/opt/paint/paint.png\n"));
    m_folder->Write(
        folder + "org.example.Silent.desktop",
        Application("Silent", "Exec=files --service\nDBusActivatable=true\nMimeType=application/x-silent;\n"));
    m_folder->Write(folder + "stuck.desktop", Application("Stuck", "Exec=stuck %f\nMimeType=application/x-stuck;\n"));
    m_folder->Write(folder + "texts.desktop",
                    Application("Texts", "Exec=letter-writer --text %u\nMimeType=text/plain;\n"));
    m_folder->Write(folder + "a-viewer.desktop",
                    Application("Viewer", "Exec=letter-writer --viewer %u\nMimeType=inode/directory;\n"));
    m_folder->Write(folder + "files.desktop", Application("Files",
                                                          "Exec=files %f\nMimeType=inode/directory;\n"
                                                          "Categories=System;FileManager;\n"));
    m_folder->Write("exports/share/applications/org.example.Chart.desktop",
                    Application("Chart",
                                "Exec=flatpak run org.example.Chart %u\nMimeType=application/x-chart;\n"
                                "X-Flatpak=org.example.Chart\n"));
  }

  /// What "update-desktop-database" would write: GIO looks here for the applications of a type.
  void WriteTypesOfApplications() {
    m_folder->Write("data/applications/mimeinfo.cache",
                    "[MIME Cache]\n"
                    "application/x-letter=letters.desktop;\n"
                    "application/x-chosen=letters.desktop;\n"
                    "application/x-sketch=sketches.desktop;\n"
                    "application/x-silent=org.example.Silent.desktop;\n"
                    "application/x-stuck=stuck.desktop;\n"
                    "text/plain=texts.desktop;\n"
                    "x-scheme-handler/https=letters.desktop;\n"
                    "inode/directory=a-viewer.desktop;files.desktop;\n");
    m_folder->Write("exports/share/applications/mimeinfo.cache",
                    "[MIME Cache]\napplication/x-chart=org.example.Chart.desktop;\n");
  }

  void SetEnvironment() {
    const TemporaryFolder& folder = *m_folder;
    for (const char* name : {"config", "runtime"}) fs::create_directory(folder / name);
    fs::permissions(folder / "runtime", fs::perms::owner_all);
    setenv("HOME", folder.Native().c_str(), 1);
    setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
    setenv("XDG_DATA_DIRS", (folder / "exports/share").c_str(), 1);
    setenv("XDG_CONFIG_HOME", (folder / "config").c_str(), 1);
    setenv("XDG_CONFIG_DIRS", (folder / "config-of-all").c_str(), 1);
    setenv("XDG_CACHE_HOME", (folder / "cache").c_str(), 1);
    setenv("XDG_RUNTIME_DIR", (folder / "runtime").c_str(), 1);
    setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + folder / "no-bus").c_str(), 1);
    setenv("PATH", (folder / "bin" + ":/usr/bin:/bin").c_str(), 1);
    setenv("DAYVANE_TEST_STARTS", (folder / "starts").c_str(), 1);
    for (const char* name : {"XDG_CURRENT_DESKTOP", "LANGUAGE", "LC_ALL"}) unsetenv(name);
  }

  std::unique_ptr<TemporaryFolder> m_folder;
  std::unique_ptr<files::FileDescriptor> m_starts;
};

PrivateDesktop& TheDesktop() {
  // Owned by the test framework, which sets it up before the first test: GIO looks at its environment once.
  static auto* desktop = static_cast<PrivateDesktop*>(::testing::AddGlobalTestEnvironment(new PrivateDesktop));
  return *desktop;
}

[[maybe_unused]] const PrivateDesktop& registered = TheDesktop();

bool WaitForStart(int milliseconds) {
  pollfd starts{TheDesktop().Starts(), POLLIN, 0};
  return poll(&starts, 1, milliseconds) > 0;
}

}  // namespace

std::string Folder() {
  return TheDesktop().Folder().Native();
}

std::string Program(const std::string& name) {
  return Folder() + "/bin/" + name;
}

std::string Applications() {
  return Folder() + "/data/applications";
}

std::string DefaultsFile() {
  return Folder() + "/config/mimeapps.list";
}

std::string NextStart() {
  if (!WaitForStart(kPatience)) return {};
  char buffer[8192];
  const ssize_t count = read(TheDesktop().Starts(), buffer, sizeof buffer);
  return {buffer, count < 0 ? 0 : static_cast<std::size_t>(count)};
}

bool HasStarted() {
  return WaitForStart(0);
}

}  // namespace dayvane::testing::desktop
