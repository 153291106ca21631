// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>

#include "windows/files/Handle.h"

namespace dayvane {

/// The right to be the user's one running instance in this session, held for as long as the object lives. It is a named
/// object of the system's, which goes with the process, however that ends.
class SingleInstance {
 public:
  static constexpr const wchar_t* kName = L"Local\\Korvath.Dayvane";

  /// Nothing when another instance runs; one that was started with more rights may not even be asked for, and counts.
  static std::optional<SingleInstance> Acquire(const wchar_t* name = kName);

 private:
  explicit SingleInstance(files::ObjectHandle mutex) : m_mutex(std::move(mutex)) {}

  files::ObjectHandle m_mutex;
};

}  // namespace dayvane
