// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "windows/registry/ChangeWatch.h"

namespace dayvane::registry {

/// One key of the document classes with its default value, if there is such a key and such a value.
struct ClassKeyAnswer {
  std::string path;
  std::optional<std::string> text;
};

/// The system's document classes, HKEY_CLASSES_ROOT, with the choice that the user may have made for an ending:
///
///     .ODT                               LibreOffice.WriterDocument.1
///     <class>                            OpenDocument Text
///     <class>\DefaultIcon                C:\Program Files\LibreOffice\program\soffice.bin,1
///     <class>\shell\open\command         "C:\Program Files\LibreOffice\program\swriter.exe" -o "%1"
///
/// Which program opens documents of an ending is chosen in the desktop's dialogs, and they keep the choice apart from
/// the classes, as the name of a class. It counts where that class has a description: the class of a program that was
/// merely picked from the disk, or one of a program from the store, has none, and by it a document would be of no type.
///
/// A poll asks four such questions for each of thousands of shortcuts, so answers are kept: until the registry reports
/// a change, and for a minute at most, since not all that changes is watched.
class DocumentClasses {
 public:
  using Clock = std::function<std::chrono::milliseconds()>;
  static constexpr std::chrono::seconds kLongestKept{60};

  /// The time since the system's start by its tick, which is read without asking the system.
  static std::chrono::milliseconds Tick() { return std::chrono::milliseconds(GetTickCount64()); }

  /// `userRoot` is the path below HKEY_CURRENT_USER of the key in which the user's "Software" lies, mostly empty.
  explicit DocumentClasses(const std::string& userRoot, Clock clock = Tick);

  /// The default value of a key, by its path below the root. Never null.
  std::shared_ptr<const ClassKeyAnswer> Find(std::string_view path);

 private:
  using Answer = std::optional<std::string>;

  void ForgetWhatMayHaveChanged();
  Answer Ask(const std::string& path) const;
  Answer ChosenClass(const std::string& extension) const;

  Clock m_clock;
  std::string m_choices;  ///< the key of what the user chose, by ending
  std::array<ChangeWatch, 3> m_watches;
  std::unordered_map<std::string_view, std::shared_ptr<const ClassKeyAnswer>> m_answers;  ///< by the path inside
  std::chrono::milliseconds m_keptSince;
  std::chrono::milliseconds m_checked;
};

}  // namespace dayvane::registry
