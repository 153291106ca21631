// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

#include "platform/Registry.h"

namespace dayvane {

/// What the file-type registry says of the documents of one extension. What it does not say is empty.
struct DocumentClass {
  struct Icon {
    std::string file;
    std::int32_t index = 0;  ///< within the file
  };

  std::string description;
  std::optional<Icon> icon;        ///< the class's default icon
  std::string executable;          ///< path of the program that opens such documents
  std::string executableFileName;  ///< its name, the first letter upper case, the rest lower
};

/// Reads document classes, each once in its life: short-lived, because the user may choose another program meanwhile.
class DocumentClassReader {
 public:
  explicit DocumentClassReader(platform::Registry& registry) : m_registry(registry) {}

  /// The class of a file name by its extension: "Application" for a program, an empty one for a name without an
  /// extension or with one that the registry does not know.
  const DocumentClass& ClassOf(const std::string& fileName);

 private:
  DocumentClass Read(const std::string& extension) const;
  std::optional<DocumentClass::Icon> ReadIcon(const std::string& className) const;
  std::optional<std::string> DefaultValue(const std::string& key) const;

  platform::Registry& m_registry;
  std::unordered_map<std::string, DocumentClass> m_classes;  ///< by upper-cased extension with its "."
};

}  // namespace dayvane
