// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace dayvane {

/// Numbers that an Error carries: the trappable run-time errors of the classic Basic run-time library, whose meaning
/// users of the error log can look up, and those of its collections and registry objects.
enum ErrorNumber : int {
  kInvalidProcedureCall = 5,
  kSubscriptOutOfRange = 9,
  kTypeMismatch = 13,
  kBadFileName = 52,
  kFileNotFound = 53,
  kDeviceIoError = 57,
  kFileAlreadyExists = 58,
  kDiskFull = 61,
  kInputPastEnd = 62,
  kPermissionDenied = 70,
  kPathFileAccess = 75,
  kPathNotFound = 76,
  kObjectNotSet = 91,
  kInvalidFileFormat = 321,
  kKeyMissing = 35001,       ///< a registry key or value that does not exist
  kElementNotFound = 35601,  ///< a collection has no element of that key
  kKeyNotUnique = 35602,     ///< a collection has an element of that key already
};

/// The one kind of failure in the program: a number, a description for the error log and, where there is one, the
/// path that it is about. Its text is never parsed.
class Error : public std::runtime_error {
 public:
  Error(int number, std::string description, std::string path = {})
      : std::runtime_error(path.empty() ? description : description + ": " + path),
        m_number(number),
        m_description(std::move(description)),
        m_path(std::move(path)) {}

  int Number() const { return m_number; }
  const std::string& Description() const { return m_description; }
  const std::string& Path() const { return m_path; }

 private:
  int m_number;
  std::string m_description;
  std::string m_path;
};

}  // namespace dayvane
