// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace dayvane::help {

/// The words of a topic's body, with one blank between them: without tags, which part words unless they only change
/// the letters (b, i), and with the characters that references stand for. What breaks off inside a tag or a reference
/// ends there.
std::string PlainText(std::string_view body);

}  // namespace dayvane::help
