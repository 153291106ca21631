// SPDX-License-Identifier: MIT
#include "tests/links/RandomLinks.h"

#include <array>
#include <iterator>
#include <utility>

#include "base/Utf8.h"

namespace dayvane::testing {

using platform::ShellLink;

ShellLink RandomLinks::Next() {
  ShellLink link;
  link.target = OneIn(3) ? Share() : Drive();
  for (std::size_t names = Below(6); names > 0; --names) link.target += '\\' + Name();
  if (OneIn(2)) link.workingDirectory = Drive() + '\\' + Name();
  if (OneIn(2)) link.arguments = Text(OneIn(20) ? 5000 : 60);
  if (OneIn(2)) link.iconFile = Drive() + '\\' + Name();
  link.iconIndex = static_cast<std::int32_t>(m_random());
  link.showCommand = std::array{1, 3, 7}[Below(3)];
  link.targetIsFolder = OneIn(4);
  return link;
}

std::string RandomLinks::Share() {
  std::string share = "\\\\" + Name();  // one after the other, for compilers choose their own order
  return share += '\\' + Name();
}

std::string RandomLinks::Text(std::size_t longest) {
  std::string text = Character();
  for (std::size_t length = Below(longest); length > 0; --length) text += OneIn(10) ? " " : Character();
  return text + Character();
}

std::string RandomLinks::Character() {
  if (m_characters == Characters::All) return AnyCharacter();
  static constexpr std::pair<char32_t, char32_t> kRanges[] = {
      {'!', '['},         {']', '~'},         {0xA1, 0xAC},     {0xAE, 0x17F},    {0x391, 0x3A1},
      {0x410, 0x44F},     {0x5D0, 0x5EA},     {0x627, 0x63A},   {0x905, 0x939},   {0x2013, 0x2026},
      {0x3041, 0x3096},   {0x4E00, 0x9FA5},   {0xAC00, 0xD7A3}, {0xF022, 0xF022}, {0xF05C, 0xF05C},
      {0x1F600, 0x1F64F}, {0x20000, 0x20010}, {0x20AC, 0x20AC}, {0x0301, 0x0301}, {0xFFFD, 0xFFFD}};
  const auto& [first, last] = kRanges[OneIn(2) ? Below(2) : Below(std::size(kRanges))];
  std::string text;
  utf8::Append(text, first + static_cast<char32_t>(Below(last - first + 1)));
  return text;
}

std::string RandomLinks::AnyCharacter() {
  constexpr char32_t kSurrogates = 0xD800;
  constexpr std::size_t kSurrogateCount = 0x800;
  const auto number = static_cast<char32_t>(1 + (OneIn(2) ? Below(0x7F) : Below(0x10FFFF - kSurrogateCount)));
  std::string text;
  utf8::Append(text, number < kSurrogates ? number : number + kSurrogateCount);
  return text;
}

}  // namespace dayvane::testing
