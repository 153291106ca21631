// SPDX-License-Identifier: MIT
#include "windows/widgets/DayWords.h"

#include <array>

#include "windows/files/WideText.h"
#include "windows/widgets/SystemDay.h"

namespace dayvane::widgets {

namespace {

std::string Numbers(const SYSTEMTIME& day) {
  return std::to_string(day.wYear) + '-' + std::to_string(day.wMonth) + '-' + std::to_string(day.wDay);
}

}  // namespace

std::string DayWords(std::chrono::local_days day) {
  const SYSTEMTIME date = ToSystemDay(day);
  std::array<wchar_t, 200> words{};
  const int length = GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_LONGDATE, &date, nullptr, words.data(),
                                     static_cast<int>(words.size()), nullptr);
  return length == 0 ? Numbers(date) : files::FromWide(words.data()).value_or(Numbers(date));
}

std::string NodeWords(const controls::TreeNode* node) {
  if (node == nullptr || node->parent == nullptr) return {};
  if (node->day) return DayWords(*node->day);
  const std::string above = NodeWords(node->parent);
  return above.empty() ? node->text : node->text + ' ' + above;
}

}  // namespace dayvane::widgets
