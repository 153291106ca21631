// SPDX-License-Identifier: MIT
#include "windows/help/HelpMarkup.h"

#include <algorithm>

#include "windows/help/MarkupReader.h"

namespace dayvane::help {

std::vector<Block> ReadMarkup(std::string_view body) {
  if (body.size() > kLongestBody) body = body.substr(0, body.rfind('<', kLongestBody));
  return MarkupReader().Read(body);
}

}  // namespace dayvane::help
