// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "help/HelpFile.h"

namespace dayvane::help {

/// Takes the bytes of a help file apart. It reads forward only and hands out nothing beyond its end.
class HelpFileReader {
 public:
  /// The bytes must outlive it.
  explicit HelpFileReader(std::string_view bytes) : m_rest(bytes) {}

  /// The whole file, or an Error.
  HelpFile Read();

 private:
  using Header = std::vector<std::string_view>;

  std::string_view TakeLine();
  std::string_view TakePayload(std::string_view size);
  void TakeTopic(const Header& header);
  void TakePicture(const Header& header);
  void TakeContents(const Header& header);
  void TakeContext(std::string_view number);
  void CheckContents() const;

  std::string_view m_rest;
  HelpFile m_file;
};

}  // namespace dayvane::help
