// SPDX-License-Identifier: MIT
#include "windows/WindowsRegistry.h"

#include <optional>
#include <utility>

#include "base/Error.h"
#include "base/Text.h"

namespace dayvane {

using platform::RegistryKey;
using registry::ClassKeyAnswer;
using registry::DocumentClasses;
using registry::Key;

namespace {

constexpr std::string_view kUserRoot = "\\HKEY_CURRENT_USER";
constexpr std::string_view kClassesRoot = "\\HKEY_CLASSES_ROOT";

[[noreturn]] void FailMissing(std::string_view what, std::string_view path) {
  throw Error(kKeyMissing, std::string(what) + " does not exist", std::string(path));
}

std::string Below(const std::string& path, const std::string& name) {
  return path.empty() ? name : path + "\\" + name;
}

bool IsKeyName(const std::string& name) {
  constexpr std::size_t kLongest = 255;
  return !name.empty() && name.size() <= kLongest &&
         name.find_first_of(std::string_view("\\\0", 2)) == std::string::npos;
}

/// What follows the root in a path, or nothing when the path is below another root.
std::optional<std::string> PathBelow(std::string_view root, std::string_view path) {
  if (path.ends_with('\\')) path.remove_suffix(1);
  if (text::CompareIgnoringCase(path.substr(0, root.size()), root) != 0) return std::nullopt;
  path.remove_prefix(root.size());
  if (path.empty()) return std::string();
  if (path[0] != '\\') return std::nullopt;
  return std::string(path.substr(1));
}

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

}  // namespace

/// A key of the user's settings. It is opened for each thing that is done with it, with the rights that this takes:
/// who may only read it reads it, and a key that was deleted and made again meanwhile is the new one.
class UserKey : public RegistryKey {
 public:
  UserKey(WindowsRegistry& registry, std::string path) : m_registry(registry), m_path(std::move(path)) {}

  static std::unique_ptr<RegistryKey> Open(WindowsRegistry& registry, const std::string& path) {
    auto key = std::make_unique<UserKey>(registry, path);
    key->Opened(KEY_QUERY_VALUE);
    return key;
  }

  std::unique_ptr<RegistryKey> OpenSubKey(const std::string& name) override {
    return Open(m_registry, Below(m_path, name));
  }

  void AddSubKey(const std::string& name) override {
    if (!IsKeyName(name)) throw Error(kInvalidProcedureCall, "Not the name of a registry key", name);
    if (!Opened(KEY_CREATE_SUB_KEY).Create(name))
      throw Error(platform::kKeyExists, "The registry key exists already", Below(m_path, name));
  }

  std::string Value(const std::string& name) override {
    auto text = Opened(KEY_QUERY_VALUE).Text(name);
    if (text) return std::move(*text);
    const auto kept = m_registry.m_thisRuns.find(IdOf(name));
    if (kept == m_registry.m_thisRuns.end()) FailMissing("The registry value", Below(m_path, name));
    return kept->second;
  }

  void SetValue(const std::string& name, const std::string& text) override {
    Value(name);
    Opened(KEY_SET_VALUE).SetText(name, text);
  }

  void AddValue(const std::string& name, const std::string& text, int type) override {
    if (type != platform::kRegistryString)
      throw Error(kInvalidProcedureCall, "Not a string value", Below(m_path, name));
    try {
      Opened(KEY_SET_VALUE).SetText(name, text);
    } catch (const Error& error) {
      // A text that no registry could hold, and a key that is not there, are the caller's affair.
      if (error.Number() == kInvalidProcedureCall || error.Number() == kKeyMissing) throw;
      m_registry.KeepForThisRun(IdOf(name), text, error.what());
    }
  }

 private:
  Key Opened(REGSAM access) const {
    auto key = Key::Open(HKEY_CURRENT_USER, m_registry.Located(m_path), access);
    if (!key) FailMissing("The registry key", std::string(kUserRoot) + "\\" + m_path);
    return std::move(*key);
  }
  std::string IdOf(const std::string& name) const { return text::ToLower(Below(m_path, name)); }

  WindowsRegistry& m_registry;
  std::string m_path;  ///< empty for the root
};

WindowsRegistry::WindowsRegistry(ReportEvent reportEvent, std::string userRoot, DocumentClasses::Clock clock)
    : m_reportEvent(std::move(reportEvent)), m_userRoot(std::move(userRoot)), m_classes(m_userRoot, std::move(clock)) {}

std::unique_ptr<RegistryKey> WindowsRegistry::KeyFromRoot(std::uint32_t root) {
  if (root != platform::kHkeyCurrentUser) FailMissing("The registry root", std::to_string(root));
  return UserKey::Open(*this, {});
}

std::unique_ptr<RegistryKey> WindowsRegistry::KeyFromPath(const std::string& path) {
  if (const auto below = PathBelow(kClassesRoot, path)) return ClassKey::Open(m_classes, *below);
  if (const auto below = PathBelow(kUserRoot, path)) return UserKey::Open(*this, *below);
  FailMissing("The registry root", path);
}

std::string WindowsRegistry::Located(const std::string& path) const {
  return path.empty() ? m_userRoot : Below(m_userRoot, path);
}

void WindowsRegistry::KeepForThisRun(const std::string& value, const std::string& text, const std::string& reason) {
  if (m_thisRuns.empty())
    m_reportEvent("WindowsRegistry.AddValue: Settings are not stored and hold for this run alone: " + reason);
  m_thisRuns[value] = text;
}

}  // namespace dayvane
