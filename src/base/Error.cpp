// SPDX-License-Identifier: MIT
#include "base/Error.h"

#include <utility>

namespace dayvane {

namespace {

std::string WithPath(const std::string& description, const std::string& path) {
  return path.empty() ? description : description + ": " + path;
}

}  // namespace

Error::Error(int number, std::string description, std::string path)
    : std::runtime_error(WithPath(description, path)),
      m_number(number),
      m_description(std::move(description)),
      m_path(std::move(path)) {}

}  // namespace dayvane
