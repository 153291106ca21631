// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace dayvane::links {

/// Puts a structure together, byte after byte. All numbers are little-endian.
class ByteWriter {
 public:
  std::size_t Size() const { return m_bytes.size(); }
  std::string Take() { return std::move(m_bytes); }

  ByteWriter& U8(unsigned value) {
    m_bytes += static_cast<char>(value & 0xFFU);
    return *this;
  }
  ByteWriter& U16(std::size_t value) { return U8(value & 0xFFU).U8(value >> 8U & 0xFFU); }
  ByteWriter& U32(std::size_t value) { return U16(value & 0xFFFFU).U16(value >> 16U & 0xFFFFU); }
  ByteWriter& Bytes(std::string_view bytes) {
    m_bytes += bytes;
    return *this;
  }
  ByteWriter& Zeros(std::size_t count) {
    m_bytes.append(count, '\0');
    return *this;
  }
  /// Texts in UTF-16 start at an even place.
  ByteWriter& Align() { return Zeros(Size() % 2); }

 private:
  std::string m_bytes;
};

}  // namespace dayvane::links
