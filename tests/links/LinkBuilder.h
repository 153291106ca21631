// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "platform/Shell.h"

namespace dayvane::platform {

/// How a failed test shows a link.
void PrintTo(const ShellLink& link, std::ostream* out);

}  // namespace dayvane::platform

/// Bytes of links as other programs write them, put together field by field and apart from the program's own writer.
namespace dayvane::testing {

std::string Number16(std::uint32_t value);
std::string Number32(std::uint32_t value);
std::string Utf16(const std::u16string& text);

/// An item with its size in front.
std::string Item(const std::string& data);
std::string RootItem();
std::string DriveItem(const std::string& name);
std::string ShareItem(const std::string& location, unsigned type = 0xC3);

/// An extension block 0xBEEF0004 of a version, which stands `at` in its item.
std::string LongNameBlock(unsigned version, const std::u16string& name, std::size_t at);

/// A file item: its primary name (with its nulls), then a long-name block of the given version.
std::string FileItem(const std::string& primary, const std::u16string& name, unsigned version = 9);

/// A file item as before Windows XP: two ANSI names.
std::string OldFileItem(const std::string& name, const std::string& alias = "");

/// The items one after the other, with the item of size 0 that ends a list.
std::string ItemList(const std::vector<std::string>& items);

/// A link info; texts that are not set are not there.
struct Info {
  std::optional<std::string> localPath;
  std::optional<std::u16string> localPathWide;
  std::optional<std::string> netName;
  std::optional<std::u16string> netNameWide;
  std::optional<std::string> deviceName;
  std::optional<std::string> suffix = "";
  std::optional<std::u16string> suffixWide;
  std::uint32_t headerSize = 0x24;

  std::string Bytes() const;
};

/// A whole link.
struct Link {
  std::uint32_t flags = 0x80;  ///< those of the parts below come by themselves; 0x80 texts are Unicode
  std::int32_t iconIndex = 0;
  std::uint32_t showCommand = 1;
  std::optional<std::string> items;
  std::optional<std::string> info;
  /// Characters of the texts 2.4, already encoded.
  std::optional<std::string> name, relativePath, workingDirectory, arguments, iconLocation;
  std::string blocks;

  std::string Bytes() const;
};

/// An environment block (0xA0000001) or icon environment block (0xA0000007).
std::string EnvironmentBlock(std::uint32_t signature, const std::string& ansi, const std::u16string& wide);

/// A link with every part there is, as a current Windows writes it.
std::string TypicalLink();

/// What TypicalLink holds.
platform::ShellLink TypicalFields();

/// Text in UTF-8 from Unicode literals, whatever the compiler takes a narrow literal for.
std::string Utf8(const char8_t* text);

}  // namespace dayvane::testing
