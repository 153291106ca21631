// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace dayvane::links {

/// Bytes that somebody else wrote. Nothing read through a view ever comes from outside it: a number that lies beyond
/// the end reads as 0, a part as an empty view, a text as none. All numbers are little-endian.
class ByteView {
 public:
  ByteView() = default;
  explicit ByteView(std::string_view bytes) : m_bytes(bytes) {}

  std::size_t Size() const { return m_bytes.size(); }
  std::string_view Bytes() const { return m_bytes; }
  bool Has(std::size_t offset, std::size_t count) const { return offset <= Size() && count <= Size() - offset; }

  std::uint8_t U8(std::size_t offset) const { return Has(offset, 1) ? Byte(offset) : std::uint8_t{0}; }
  std::uint16_t U16(std::size_t offset) const {
    return Has(offset, 2) ? static_cast<std::uint16_t>(Byte(offset) | Byte(offset + 1) << 8U) : std::uint16_t{0};
  }
  std::uint32_t U32(std::size_t offset) const {
    return Has(offset, 4) ? U16(offset) | static_cast<std::uint32_t>(U16(offset + 2)) << 16U : 0;
  }

  ByteView From(std::size_t offset) const { return ByteView(m_bytes.substr(std::min(offset, Size()))); }
  ByteView First(std::size_t count) const { return ByteView(m_bytes.substr(0, count)); }

  /// The bytes from here up to a null byte; nothing when there is none, because such a text has lost its end.
  std::optional<std::string_view> AnsiText(std::size_t offset) const {
    const std::size_t end = offset < Size() ? m_bytes.find('\0', offset) : std::string_view::npos;
    if (end == std::string_view::npos) return std::nullopt;
    return m_bytes.substr(offset, end - offset);
  }

  /// The same for UTF-16: the bytes up to a null code unit.
  std::optional<std::string_view> WideText(std::size_t offset) const {
    for (std::size_t end = offset; Has(end, 2); end += 2)
      if (U16(end) == 0) return m_bytes.substr(offset, end - offset);
    return std::nullopt;
  }

 private:
  std::uint8_t Byte(std::size_t offset) const { return static_cast<std::uint8_t>(m_bytes[offset]); }

  std::string_view m_bytes;
};

/// Takes one part after the other from a view. A part that is not wholly there is not taken: the cursor then stands at
/// the end, since there is no telling where the next part would start.
class ByteCursor {
 public:
  explicit ByteCursor(ByteView rest) : m_rest(rest) {}

  ByteView Rest() const { return m_rest; }

  std::optional<ByteView> Take(std::size_t count) {
    if (!m_rest.Has(0, count)) {
      m_rest = {};
      return std::nullopt;
    }
    const ByteView part = m_rest.First(count);
    m_rest = m_rest.From(count);
    return part;
  }

  /// What there is of a part.
  ByteView TakeUpTo(std::size_t count) {
    const ByteView part = m_rest.First(count);
    m_rest = m_rest.From(count);
    return part;
  }

 private:
  ByteView m_rest;
};

}  // namespace dayvane::links
