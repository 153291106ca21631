#include "linux/recent/XmlMending.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

#include "base/Utf8.h"

namespace dayvane::recent {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t\r\n";

std::string_view Body(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  const auto declarationEnd = text.starts_with("<?xml ") ? text.find("?>") : std::string_view::npos;
  if (declarationEnd != std::string_view::npos) text.remove_prefix(declarationEnd + 2);
  return text;
}

std::string Escaped(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string escaped;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    escaped += {'%', kDigits[byte >> 4U], kDigits[byte & 15U]};
  }
  return escaped;
}

/// https://www.w3.org/TR/xml/#charsets
bool IsXmlCharacter(std::uint32_t codePoint) {
  if (codePoint < 0x20) return codePoint == '\t' || codePoint == '\n' || codePoint == '\r';
  return codePoint < 0xD800 || (codePoint > 0xDFFF && codePoint < 0xFFFE) ||
         (codePoint > 0xFFFF && codePoint <= 0x10FFFF);
}

/// A part of the text that cannot stay as it is, and what takes its place.
struct Fault {
  std::size_t length = 0;
  std::string replacement;
  bool isBreach = true;  ///< a strict reader would refuse the text for it
};

/// At an ampersand.
std::optional<Fault> FaultyReference(std::string_view text) {
  constexpr std::size_t kLongestReference = 12;
  const Fault literal{1, "&amp;"};
  const auto end = text.substr(0, kLongestReference).find(';');
  if (end == std::string_view::npos) return literal;
  std::string_view name = text.substr(1, end - 1);
  for (const std::string_view known : {"amp", "lt", "gt", "quot", "apos"})
    if (name == known) return std::nullopt;
  if (!name.starts_with('#')) return literal;
  name.remove_prefix(1);
  const int base = name.starts_with('x') ? 16 : 10;
  if (base == 16) name.remove_prefix(1);
  std::uint32_t codePoint = 0;
  const auto [stop, error] = std::from_chars(name.data(), name.data() + name.size(), codePoint, base);
  if (error != std::errc{} || name.empty() || stop != name.data() + name.size()) return literal;
  if (IsXmlCharacter(codePoint)) return std::nullopt;
  // GLib escapes control characters this way, so they are no sign of damage; nothing above them is ever written.
  const char control = static_cast<char>(codePoint);
  return codePoint < 0x20 ? Fault{end + 1, Escaped({&control, 1}), false} : literal;
}

/// Bytes of the character that starts here: 1 where they are no UTF-8.
std::size_t CharacterLength(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  if (lead < 0x80) return 1;
  const std::size_t length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  return utf8::IsValid(text.substr(0, length)) ? std::min(length, text.size()) : 1;
}

std::optional<Fault> FaultyCharacter(std::string_view character) {
  const bool isForbidden = character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF";
  if (character.size() > 1 && !isForbidden) return std::nullopt;
  return Fault{character.size(), Escaped(character)};
}

std::optional<Fault> FaultAt(std::string_view text) {
  const auto byte = static_cast<unsigned char>(text[0]);
  if (byte >= 0x80) return FaultyCharacter(text.substr(0, CharacterLength(text)));
  if (byte == '&') return FaultyReference(text);
  if (!IsXmlCharacter(byte)) return Fault{1, Escaped(text.substr(0, 1))};
  return std::nullopt;
}

/// Almost every byte of a list is none of these, and is passed over fast.
bool MayBeFaulty(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte == '&' || byte >= 0x80 || !IsXmlCharacter(byte);
}

}  // namespace

MendedXml MendXml(std::string_view bytes) {
  const std::string_view body = Body(bytes);
  MendedXml mended;
  std::size_t copied = 0;
  for (std::size_t i = 0; i < body.size();) {
    if (!MayBeFaulty(body[i])) {
      ++i;
      continue;
    }
    const auto fault = FaultAt(body.substr(i));
    if (!fault) {
      i += CharacterLength(body.substr(i));
      continue;
    }
    mended.text.append(body, copied, i - copied).append(fault->replacement);
    mended.wasBroken = mended.wasBroken || fault->isBreach;
    i += fault->length;
    copied = i;
  }
  mended.text.append(body, copied);
  return mended;
}

}  // namespace dayvane::recent
