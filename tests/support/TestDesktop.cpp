// SPDX-License-Identifier: MIT
#include "tests/support/TestDesktop.h"

#include <filesystem>
#include <sstream>

#include "app/ShellServices.h"
#include "base/Error.h"
#include "controls/Form.h"
#include "links/ShellLinkFormat.h"

namespace dayvane::testing {

namespace {

class TestKey : public platform::RegistryKey {
 public:
  TestKey(TestRegistry& registry, std::string path) : m_registry(registry), m_path(std::move(path)) {}

  std::unique_ptr<RegistryKey> OpenSubKey(const std::string& name) override {
    return m_registry.KeyFromPath(m_path + "\\" + name);
  }

  void AddSubKey(const std::string& name) override {
    if (m_path == m_registry.unwritable) throw Error(kPermissionDenied, "Permission denied", m_path);
    if (m_registry.keys.contains(m_path + "\\" + name)) throw Error(platform::kKeyExists, "Key exists", name);
    m_registry.keys[m_path + "\\" + name];
  }

  std::string Value(const std::string& name) override {
    const auto& values = m_registry.keys.at(m_path);
    const auto found = values.find(name);
    if (found == values.end()) throw Error(kKeyMissing, "Value is missing", name);
    return found->second;
  }

  void SetValue(const std::string& name, const std::string& text) override {
    Value(name);
    AddValue(name, text, platform::kRegistryString);
  }

  void AddValue(const std::string& name, const std::string& text, int) override {
    if (m_registry.refusesValues) throw Error(kPermissionDenied, "Permission denied", m_path);
    m_registry.keys.at(m_path)[name] = text;
  }

 private:
  TestRegistry& m_registry;
  std::string m_path;
};

}  // namespace

void TestClock::Set(int year, unsigned month, unsigned day, int hour, int minute, int second) {
  now = std::chrono::local_days{std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(day)} +
        std::chrono::hours{hour} + std::chrono::minutes{minute} + std::chrono::seconds{second};
}

std::unique_ptr<platform::RegistryKey> TestRegistry::KeyFromRoot(std::uint32_t root) {
  if (root != platform::kHkeyCurrentUser) throw Error(kKeyMissing, "No such root");
  return std::make_unique<TestKey>(*this, "\\HKEY_CURRENT_USER");
}

std::unique_ptr<platform::RegistryKey> TestRegistry::KeyFromPath(const std::string& path) {
  if (!keys.contains(path)) throw Error(kKeyMissing, "Key is missing", path);
  return std::make_unique<TestKey>(*this, path);
}

void TestRegistry::AddClass(const std::string& extension, const std::string& description, const std::string& icon,
                            const std::string& command) {
  const std::string root = "\\HKEY_CLASSES_ROOT\\";
  const std::string name = "class" + extension;
  keys[root + extension][""] = name;
  if (!description.empty()) keys[root + name][""] = description;
  if (!icon.empty()) keys[root + name + "\\DefaultIcon"][""] = icon;
  if (!command.empty()) keys[root + name + "\\shell\\open\\command"][""] = command;
}

platform::MessageAnswer TestWindowing::ShowMessage(const platform::Message& message) {
  messages.push_back(message);
  whileAsked();
  return message.buttons == platform::MessageButtons::Ok ? platform::MessageAnswer::Ok : answer;
}

std::vector<std::string> TestWindowing::Texts() const {
  std::vector<std::string> texts;
  for (const auto& message : messages) texts.push_back(message.text);
  return texts;
}

void TestWindowing::ShowAbout(const platform::About& about) {
  if (noAbout) throw Error(kDeviceIoError, "No about box");
  abouts.push_back(about);
}

void TestWindowing::PostMessage(controls::Form& form, int message) {
  happenings.emplace_back("post");
  posted.push_back(message);
  if (message == platform::kWmClose) form.RequestUnload(controls::UnloadMode::Code);
}

void TestWindowing::PopupMenu(controls::Form&, controls::Menu& menu, double x, double y) {
  if (noPopup) throw Error(kDeviceIoError, "No menu");
  happenings.emplace_back("popup");
  popupMenu = &menu;
  popupX = x;
  popupY = y;
}

void TestWindowing::PopupMenuAtMouse(controls::Form&, controls::Menu& menu, int defaultItem) {
  if (noPopup) throw Error(kDeviceIoError, "No menu");
  happenings.emplace_back("popup");
  popupMenu = &menu;
  popupDefault = defaultItem;
}

TestShell::TestShell(platform::FileSystem& files, std::string theRecentFolder)
    : recentFolder(std::move(theRecentFolder)),
      m_files(files),
      m_reader(files, [this](const std::string& text) { reported.push_back(text); }) {}

std::string TestShell::SpecialFolderPath(int number) {
  if (number != platform::kRecentFolder || !hasRecentFolder) throw Error(kPathNotFound, "No such special folder");
  return recentFolder;
}

void TestShell::CreateShellLink(const std::string& path, const platform::ShellLink& link) {
  m_files.ReplaceUnflushed(path, links::WriteShellLink(link));
}

int TestShell::Open(const std::string& target, const std::string& workingDirectory, std::int32_t showCommand) {
  if (cannotLaunch) throw Error(kDeviceIoError, "Cannot launch");
  opened.push_back(target + "|" + workingDirectory + "|" + std::to_string(showCommand));
  return openResult;
}

void TestShell::Run(const std::string& commandLine) {
  if (cannotLaunch) throw Error(kDeviceIoError, "Cannot launch");
  commandLines.push_back(commandLine);
}

std::optional<platform::ShellFileInfo> TestIcons::FileInfo(const std::string& path, std::uint32_t attributes,
                                                           std::uint32_t flags) {
  std::ostringstream text;
  text << path << '|' << attributes << '|' << std::hex << flags;
  asked.push_back(text.str());
  if (!hasIcons) return platform::ShellFileInfo{};
  return platform::ShellFileInfo{platform::Picture{{SplitPath(path).fileName}, 0}, {}, {}};
}

std::optional<platform::ShellFileInfo> TestIcons::FileInfo(std::uint64_t identifier, std::uint32_t attributes,
                                                           std::uint32_t flags) {
  constexpr std::uint64_t kUnknown = 666;
  if (identifier == kUnknown) return std::nullopt;
  return FileInfo(std::to_string(identifier), attributes, flags);
}

void TestHelp::ShowHelp(const std::string& helpFile, int command, int contextId) {
  if (noViewer) throw Error(kDeviceIoError, "No help viewer");
  shown.push_back(helpFile + "|" + std::to_string(command) + "|" + std::to_string(contextId));
}

TestDesktop::TestDesktop()
    : shell(files, folder.Path() + "\\recent"), desktop{files, shell, icons, registry, windowing, help, clock, dates} {
  std::filesystem::create_directory(NativeFolder());
  std::filesystem::create_directory(NativeRecent());
  clock.Set(2026, 11, 21);
}

std::string TestDesktop::OpenDocument(const std::string& target, const std::string& localTime) {
  const PathParts parts = SplitPath(target);
  const std::string path = NativeRecent() + "/" + parts.fileName + ".lnk";
  platform::ShellLink link;
  link.target = target;
  link.workingDirectory = parts.folder;
  WriteShortcut(path, link, localTime);
  return path;
}

std::vector<std::string> TestDesktop::LogLines(const std::string& log) const {
  constexpr std::size_t kTimeLength = sizeof("2026-11-21 12:00:00\t") - 1;
  std::vector<std::string> lines;
  if (!std::filesystem::exists(NativeFolder() + "/" + log)) return lines;
  std::istringstream text(ReadFile(NativeFolder() + "/" + log));
  for (std::string line; std::getline(text, line);) lines.push_back(line.substr(kTimeLength));
  return lines;
}

void WriteShortcut(const std::string& nativePath, const platform::ShellLink& link, const std::string& localTime) {
  SystemFiles()->Replace(ProgramPath(nativePath), links::WriteShellLink(link));
  SetWritten(nativePath, localTime);
}

}  // namespace dayvane::testing
