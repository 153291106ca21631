// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Sizes, offsets and flags of the shell link format, by section of [MS-SHLLINK], "Shell Link (.LNK) Binary File
/// Format". A file is: header, item list, link info, texts, extra blocks; all but the header may be missing.
namespace dayvane::links::layout {

using namespace std::string_view_literals;

// 2.1 ShellLinkHeader
inline constexpr std::size_t kHeaderSize = 0x4C;
inline constexpr std::string_view kClassId = "\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46"sv;
inline constexpr std::size_t kClassIdAt = 4;
inline constexpr std::size_t kLinkFlagsAt = 20;
inline constexpr std::size_t kAttributesAt = 24;
inline constexpr std::size_t kIconIndexAt = 56;
inline constexpr std::size_t kShowCommandAt = 60;

// 2.1, ShowCommand: every other value counts as normal.
inline constexpr std::uint32_t kShowNormal = 1;
inline constexpr std::uint32_t kShowMaximized = 3;
inline constexpr std::uint32_t kShowMinimized = 7;

// 2.1.1 LinkFlags
inline constexpr std::uint32_t kHasItemList = 0x1;
inline constexpr std::uint32_t kHasLinkInfo = 0x2;
inline constexpr std::uint32_t kHasName = 0x4;
inline constexpr std::uint32_t kHasRelativePath = 0x8;
inline constexpr std::uint32_t kHasWorkingDirectory = 0x10;
inline constexpr std::uint32_t kHasArguments = 0x20;
inline constexpr std::uint32_t kHasIconLocation = 0x40;
inline constexpr std::uint32_t kIsUnicode = 0x80;
inline constexpr std::uint32_t kForceNoLinkInfo = 0x100;

// 2.1.2 FileAttributesFlags
inline constexpr std::uint32_t kAttributeDirectory = 0x10;
inline constexpr std::uint32_t kAttributeArchive = 0x20;

// 2.3 LinkInfo
inline constexpr std::uint32_t kInfoHeaderSize = 0x1C;         ///< without the two offsets of Unicode texts
inline constexpr std::uint32_t kInfoUnicodeHeaderSize = 0x24;  ///< with them
inline constexpr std::size_t kInfoHeaderSizeAt = 4;
inline constexpr std::size_t kInfoFlagsAt = 8;
inline constexpr std::size_t kLocalPathAt = 16;
inline constexpr std::size_t kNetworkAt = 20;
inline constexpr std::size_t kSuffixAt = 24;
inline constexpr std::size_t kLocalPathUnicodeAt = 28;
inline constexpr std::size_t kSuffixUnicodeAt = 32;
inline constexpr std::uint32_t kInfoHasLocalPath = 0x1;
inline constexpr std::uint32_t kInfoHasNetwork = 0x2;

// 2.3.1 VolumeID
inline constexpr std::uint32_t kVolumeHeaderSize = 0x10;
inline constexpr std::uint32_t kDriveFixed = 3;

// 2.3.2 CommonNetworkRelativeLink
inline constexpr std::uint32_t kNetworkHeaderSize = 0x14;         ///< without the two offsets of Unicode texts
inline constexpr std::uint32_t kNetworkUnicodeHeaderSize = 0x1C;  ///< with them
inline constexpr std::size_t kNetNameAt = 8;
inline constexpr std::size_t kDeviceNameAt = 12;
inline constexpr std::size_t kNetNameUnicodeAt = 20;
inline constexpr std::size_t kDeviceNameUnicodeAt = 24;
inline constexpr std::uint32_t kNetworkHasType = 0x2;
inline constexpr std::uint32_t kNetworkTypeLanman = 0x00020000;

// 2.5.4 EnvironmentVariableDataBlock and 2.5.5 IconEnvironmentDataBlock
inline constexpr std::uint32_t kEnvironmentBlock = 0xA0000001;
inline constexpr std::uint32_t kIconEnvironmentBlock = 0xA0000007;
inline constexpr std::size_t kBlockSignatureAt = 4;
inline constexpr std::size_t kBlockAnsiAt = 8;
inline constexpr std::size_t kBlockAnsiSize = 260;
inline constexpr std::size_t kBlockUnicodeAt = 268;
inline constexpr std::size_t kBlockUnicodeSize = 520;

// 2.2.2 ItemID says that an item's bytes are its shell folder's own affair. The values below are those of the Windows
// shell, written down in "Windows Shell Item format" of the libfwsi project.
inline constexpr std::size_t kItemTypeAt = 2;
inline constexpr unsigned kItemKindMask = 0x70;
inline constexpr unsigned kItemRoot = 0x1F;
inline constexpr unsigned kItemVolumeKind = 0x20;
inline constexpr unsigned kItemVolume = 0x2F;
inline constexpr std::size_t kItemVolumeSize = 25;
inline constexpr std::size_t kItemVolumeNameAt = 3;
inline constexpr unsigned kItemFileKind = 0x30;
inline constexpr unsigned kItemFolder = 0x31;
inline constexpr unsigned kItemFile = 0x32;
inline constexpr unsigned kItemUnicodeFlag = 0x04;
inline constexpr std::size_t kItemFileNameAt = 14;
inline constexpr unsigned kItemNetworkKind = 0x40;
inline constexpr unsigned kItemShare = 0xC3;
inline constexpr std::size_t kItemLocationAt = 5;
inline constexpr std::string_view kMyComputer = "\xE0\x4F\xD0\x20\xEA\x3A\x69\x10\xA2\xD8\x08\x00\x2B\x30\x30\x9D"sv;
inline constexpr std::string_view kNetworkPlaces = "\x60\x2C\x8D\x20\xEA\x3A\x69\x10\xA2\xD7\x08\x00\x2B\x30\x30\x9D"sv;

// The extension block of a file item that carries its long name in UTF-16.
inline constexpr std::uint32_t kLongNameBlock = 0xBEEF0004;
inline constexpr std::size_t kExtensionHeaderSize = 8;
inline constexpr std::size_t kExtensionVersionAt = 2;
inline constexpr std::size_t kExtensionSignatureAt = 4;
inline constexpr std::size_t kLongNameOffsetAt = 16;  ///< this field holds where the name starts in the block
inline constexpr unsigned kLongNameVersionXp = 3;     ///< the first version that has a long name
inline constexpr std::size_t kLongNameHeaderSizeXp = 20;

}  // namespace dayvane::links::layout
