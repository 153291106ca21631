// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// The two ways in which a shell link holds text, and UTF-8.
///
/// "ANSI" text is in the code page of the computer that wrote the link, which the link does not name. Windows-1252 is
/// taken for it: the code page of most of them, with a character for every byte, and ASCII reads right in any case.
/// Its five bytes without a character stand for the control characters of the same number, as Windows itself has it.
namespace dayvane::links {

/// Adds UTF-16 (little-endian), up to its first null, to a text in UTF-8. An unpaired surrogate becomes U+FFFD.
void AppendUtf16(std::string& text, std::string_view utf16);

/// Adds ANSI text, up to its first null, to a text in UTF-8.
void AppendAnsi(std::string& text, std::string_view ansi);

/// The text up to its first null as UTF-16. Bytes that are not UTF-8 become U+FFFD.
std::string ToUtf16(std::string_view text);

/// The text up to its first null as ANSI text, with a stand-in for every character that is not in the code page.
std::string ToAnsi(std::string_view text, char standIn);

}  // namespace dayvane::links
