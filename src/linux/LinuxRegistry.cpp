// SPDX-License-Identifier: MIT
#include "linux/LinuxRegistry.h"

#include <algorithm>
#include <utility>

#include "base/Error.h"
#include "linux/files/XdgFolders.h"

namespace dayvane {

namespace {

using platform::RegistryKey;
using registry::ClassKeyAnswer;
using registry::DocumentClasses;
using registry::SettingsFile;

constexpr std::string_view kUserRoot = "\\HKEY_CURRENT_USER";
constexpr std::string_view kClassesRoot = "\\HKEY_CLASSES_ROOT";

[[noreturn]] void FailMissing(std::string_view what, std::string_view path) {
  throw Error(kKeyMissing, std::string(what) + " does not exist", std::string(path));
}

std::string Below(const std::string& path, const std::string& name) {
  return path.empty() ? name : path + "\\" + name;
}

/// A key of the user's settings. Its path is empty for the root.
class SettingsKey : public RegistryKey {
 public:
  SettingsKey(SettingsFile& file, std::string path) : m_file(file), m_path(std::move(path)) {}

  static std::unique_ptr<RegistryKey> Open(SettingsFile& file, const std::string& path) {
    if (!Exists(file, path)) FailMissing("The registry key", std::string(kUserRoot) + "\\" + path);
    return std::make_unique<SettingsKey>(file, path);
  }

  std::unique_ptr<RegistryKey> OpenSubKey(const std::string& name) override {
    return Open(m_file, Below(m_path, name));
  }

  void AddSubKey(const std::string& name) override {
    const bool fits = !name.empty() && std::none_of(name.begin(), name.end(), [](char c) {
      return std::string_view("\\[]").find(c) != std::string_view::npos || static_cast<unsigned char>(c) < 0x20;
    });
    if (!fits) throw Error(kInvalidProcedureCall, "Not the name of a registry key", name);
    const std::string path = Below(m_path, name);
    if (Exists(m_file, path)) throw Error(platform::kKeyExists, "The registry key exists already", path);
    m_file.AddKey(path);
  }

  std::string Value(const std::string& name) override {
    auto text = m_file.Value(m_path, name);
    if (!text) FailMissing("The registry value", Below(m_path, name));
    return std::move(*text);
  }

  void SetValue(const std::string& name, const std::string& text) override {
    if (!m_file.Value(m_path, name)) FailMissing("The registry value", Below(m_path, name));
    m_file.SetValue(m_path, name, text);
  }

  void AddValue(const std::string& name, const std::string& text, int type) override {
    if (type != platform::kRegistryString)
      throw Error(kInvalidProcedureCall, "Not a string value", Below(m_path, name));
    m_file.AddValue(m_path, name, text);
  }

 private:
  /// The root and the key that all programs keep theirs under are there from the start.
  static bool Exists(SettingsFile& file, const std::string& path) {
    return path.empty() || text::CompareIgnoringCase(path, "Software") == 0 || file.HasKey(path);
  }

  SettingsFile& m_file;
  std::string m_path;
};

/// A key of the document classes.
class ClassKey : public RegistryKey {
 public:
  ClassKey(DocumentClasses& classes, std::shared_ptr<const ClassKeyAnswer> answer)
      : m_classes(classes), m_answer(std::move(answer)) {}

  static std::unique_ptr<RegistryKey> Open(DocumentClasses& classes, std::string_view path) {
    auto answer = classes.Find(path);
    if (!answer->text && !path.empty()) FailMissing("The document class", path);
    return std::make_unique<ClassKey>(classes, std::move(answer));
  }

  std::unique_ptr<RegistryKey> OpenSubKey(const std::string& name) override {
    return Open(m_classes, Below(m_answer->path, name));
  }

  std::string Value(const std::string& name) override {
    if (!name.empty() || !m_answer->text) FailMissing("The registry value", Below(m_answer->path, name));
    return *m_answer->text;
  }

  void AddSubKey(const std::string& name) override { FailReadOnly(name); }
  void SetValue(const std::string& name, const std::string& /*text*/) override { FailReadOnly(name); }
  void AddValue(const std::string& name, const std::string& /*text*/, int /*type*/) override { FailReadOnly(name); }

 private:
  [[noreturn]] void FailReadOnly(const std::string& name) const {
    throw Error(kPermissionDenied, "The document classes are read only", Below(m_answer->path, name));
  }

  DocumentClasses& m_classes;
  std::shared_ptr<const ClassKeyAnswer> m_answer;
};

/// What follows the root in a path, or nothing when the path is below another root.
std::optional<std::string_view> PathBelow(std::string_view root, std::string_view path) {
  if (path.ends_with('\\')) path.remove_suffix(1);
  const std::string_view start = path.substr(0, root.size());
  if (start != root && text::CompareIgnoringCase(start, root) != 0) return std::nullopt;
  path.remove_prefix(root.size());
  if (path.empty()) return path;
  if (path[0] != '\\') return std::nullopt;
  return path.substr(1);
}

}  // namespace

LinuxRegistry::LinuxRegistry(std::string settingsFile, ReportEvent reportEvent, DocumentClasses::Clock clock)
    : m_settings(std::move(settingsFile), std::move(reportEvent)), m_classes(std::move(clock)) {}

std::unique_ptr<RegistryKey> LinuxRegistry::KeyFromRoot(std::uint32_t root) {
  if (root != platform::kHkeyCurrentUser) FailMissing("The registry root", std::to_string(root));
  return SettingsKey::Open(m_settings, {});
}

std::unique_ptr<RegistryKey> LinuxRegistry::KeyFromPath(const std::string& path) {
  if (const auto below = PathBelow(kClassesRoot, path)) return ClassKey::Open(m_classes, *below);
  if (const auto below = PathBelow(kUserRoot, path)) return SettingsKey::Open(m_settings, std::string(*below));
  FailMissing("The registry root", path);
}

std::string DefaultSettingsFile() {
  return xdg::ConfigFolder(xdg::Environment::OfProcess()) + "/dayvane/dayvane.ini";
}

}  // namespace dayvane
