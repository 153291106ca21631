// SPDX-License-Identifier: MIT
#include "capture/DocumentClass.h"

#include "app/IgnoreErrors.h"
#include "app/ShellServices.h"
#include "base/Text.h"

namespace dayvane {

namespace {

/// The extension with its ".", in upper case; empty for a name without one.
std::string ExtensionOf(const std::string& fileName) {
  const auto dot = fileName.rfind('.');
  return dot == std::string::npos ? std::string() : text::ToUpper(std::string_view(fileName).substr(dot));
}

std::string Capitalised(const std::string& name) {
  // The first letter may take several bytes.
  std::size_t first = 1;
  while (first < name.size() && (static_cast<unsigned char>(name[first]) & 0xC0U) == 0x80U) ++first;
  return text::ToUpper(name.substr(0, first)) + (first < name.size() ? text::ToLower(name.substr(first)) : "");
}

/// The program of an open command. What follows the place-holder of the document's path is dropped with it; a quotation
/// mark that opened before it is then the last character.
std::string ProgramOf(const std::string& commandLine) {
  std::string program(text::Trim(std::string_view(commandLine).substr(0, commandLine.find('%'))));
  if (!program.ends_with('"')) return program;
  std::erase(program, '"');
  return std::string(text::Trim(program));
}

}  // namespace

const DocumentClass& DocumentClassReader::ClassOf(const std::string& fileName) {
  std::string extension = ExtensionOf(fileName);
  const auto known = m_classes.find(extension);
  if (known != m_classes.end()) return known->second;
  DocumentClass found = Read(extension);
  return m_classes.emplace(std::move(extension), std::move(found)).first->second;
}

DocumentClass DocumentClassReader::Read(const std::string& extension) const {
  DocumentClass found;
  if (extension.empty() || extension == ".") return found;
  if (extension == ".EXE") {
    found.description = "Application";
    return found;
  }
  const auto name = DefaultValue(extension);
  if (!name) return found;
  const auto description = DefaultValue(*name);
  if (!description) return found;
  found.description = *description;
  found.icon = ReadIcon(*name);
  if (const auto command = DefaultValue(*name + "\\shell\\open\\command")) {
    found.executable = ProgramOf(*command);
    found.executableFileName = Capitalised(SplitPath(found.executable).fileName);
  }
  return found;
}

std::optional<DocumentClass::Icon> DocumentClassReader::ReadIcon(const std::string& className) const {
  const std::string value = DefaultValue(className + "\\DefaultIcon").value_or("");
  const auto comma = value.find(',');
  if (comma == std::string::npos) return std::nullopt;
  const auto index = text::ToInt32(std::string_view(value).substr(comma + 1));
  if (!index) return std::nullopt;
  return DocumentClass::Icon{value.substr(0, comma), *index};
}

std::optional<std::string> DocumentClassReader::DefaultValue(const std::string& key) const {
  std::optional<std::string> value;
  IgnoreErrors([&] { value = m_registry.KeyFromPath("\\HKEY_CLASSES_ROOT\\" + key)->Value(""); });
  return value;
}

}  // namespace dayvane
