// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "shell/FMain.h"

namespace dayvane::testing {

/// What the program shows and keeps, in words that are the same on every desktop.
class ScenarioText {
 public:
  /// Native paths of folders with the names that stand for them, and the folder of the programs in the program's form.
  ScenarioText(const std::vector<std::pair<std::string, std::string>>& folders, const std::string& programs);

  /// Of a window over a native folder, with the texts of the messages that it has shown: the sections that are not as
  /// they were the last time.
  std::string ChangesIn(const FMain& window, const std::vector<std::string>& messages, const std::string& record);

 private:
  using Lines = std::vector<std::string>;

  std::string Section(const std::string& title, const Lines& lines);
  std::string Plain(std::string line) const;

  std::vector<std::pair<std::string, std::string>> m_names;  ///< by the folder, longest forms first
  std::map<std::string, std::string> m_sections;             ///< of the last time, by title
};

}  // namespace dayvane::testing
