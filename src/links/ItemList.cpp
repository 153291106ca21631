// SPDX-License-Identifier: MIT
#include "links/ItemList.h"

#include <optional>

#include "base/Text.h"
#include "links/ByteWriter.h"
#include "links/LinkText.h"
#include "links/ShellLinkLayout.h"
#include "links/TargetForm.h"

namespace dayvane::links {

using namespace layout;

namespace {

/// Where the long name starts, by version of the block, should the block's own field not lead to one.
std::size_t LongNameOffset(unsigned version) {
  return version >= 9 ? 46 : version == 8 ? 42 : version == 7 ? 38 : kLongNameHeaderSizeXp;
}

/// Adds the long name; false when it is not there or has lost its end.
bool AppendLongName(std::string& path, ByteView block) {
  const std::size_t byField = block.U16(kLongNameOffsetAt);
  for (const std::size_t offset : {byField, LongNameOffset(block.U16(kExtensionVersionAt))}) {
    if (offset < kLongNameHeaderSizeXp) continue;
    const auto name = block.WideText(offset);
    if (!name || name->empty()) continue;
    AppendUtf16(path, *name);
    return true;
  }
  return false;
}

/// The long-name block among the extension blocks that follow each other from `offset` on.
std::optional<ByteView> FindLongNameBlock(ByteView item, std::size_t offset) {
  while (item.Has(offset, kExtensionHeaderSize)) {
    const std::size_t size = item.U16(offset);
    if (size < kExtensionHeaderSize) return std::nullopt;
    const ByteView block = item.From(offset).First(size);
    if (block.U32(kExtensionSignatureAt) == kLongNameBlock) return block;
    offset += size;
  }
  return std::nullopt;
}

/// The shell of Wine leaves the block's version and signature empty. It is known by filling its item, and by its name;
/// the name beside it is in a code page, where it may have lost its letters.
std::optional<ByteView> UnsignedLongNameBlock(ByteView item, std::size_t offset) {
  const ByteView block = item.From(offset);
  const bool isUnsigned = block.U16(kExtensionVersionAt) == 0 && block.U32(kExtensionSignatureAt) == 0;
  const auto name = block.WideText(kLongNameHeaderSizeXp);
  if (!isUnsigned || block.U16(0) != block.Size() || !name || name->empty()) return std::nullopt;
  return block;
}

/// The last 16 bits of an item tell where its extension blocks start. Where they do not, the blocks start after the
/// primary name, at an even place.
std::optional<ByteView> LongNameBlock(ByteView item, std::size_t afterName) {
  const std::size_t byLastField = item.U16(item.Size() - 2);
  if (byLastField >= kItemFileNameAt) {
    if (const auto block = FindLongNameBlock(item, byLastField)) return block;
    if (const auto block = UnsignedLongNameBlock(item, byLastField)) return block;
  }
  return FindLongNameBlock(item, afterName + afterName % 2);
}

/// Adds the name of a file or folder; false when the item does not spell one.
bool AppendFileName(std::string& path, ByteView item) {
  const bool wide = (item.U8(kItemTypeAt) & kItemUnicodeFlag) != 0;
  const auto primary = wide ? item.WideText(kItemFileNameAt) : item.AnsiText(kItemFileNameAt);
  if (!primary) return false;
  if (!path.ends_with('\\')) path += '\\';
  const std::size_t start = path.size();
  if (const auto block = LongNameBlock(item, kItemFileNameAt + primary->size() + (wide ? 2 : 1))) {
    // The primary name beside a damaged block is at best a short alias of the real name.
    if (!AppendLongName(path, *block)) return false;
  } else if (wide) {
    AppendUtf16(path, *primary);
  } else {
    AppendAnsi(path, *primary);
  }
  return path.size() > start && path.find('\\', start) == std::string::npos;
}

/// "C:\" of a drive. The type's low bits do not tell reliably whether a name is there, so that the name itself is
/// asked.
bool AppendDrive(std::string& path, ByteView item) {
  const unsigned letter = item.U8(kItemVolumeNameAt);
  const bool isLetter = (letter | 0x20U) >= 'a' && (letter | 0x20U) <= 'z';
  if (!isLetter || item.U8(kItemVolumeNameAt + 1) != ':') return false;
  path = {static_cast<char>(letter), ':', '\\'};
  return true;
}

/// A share spells "\\server\share"; the items above it (the network, a workgroup, a server) only lead there.
bool AppendNetworkPlace(std::string& path, ByteView item) {
  const auto location = item.AnsiText(kItemLocationAt);
  if (!location) return false;
  std::string place;
  AppendAnsi(place, *location);
  if (ShareLength(place) == place.size()) path = std::move(place);
  return true;
}

bool AppendItem(std::string& path, ByteView item) {
  const unsigned type = item.U8(kItemTypeAt);
  const unsigned kind = type & kItemKindMask;
  if (!path.empty()) return kind == kItemFileKind && AppendFileName(path, item);
  if (type == kItemRoot) return true;
  return kind == kItemVolumeKind    ? AppendDrive(path, item)
         : kind == kItemNetworkKind ? AppendNetworkPlace(path, item)
                                    : false;
}

std::string RootItem(unsigned sortIndex, std::string_view folder) {
  return ByteWriter().U16(4 + folder.size()).U8(kItemRoot).U8(sortIndex).Bytes(folder).Take();
}

std::string DriveItem(std::string_view drive) {
  return ByteWriter()
      .U16(kItemVolumeSize)
      .U8(kItemVolume)
      .Bytes(drive)
      .Zeros(kItemVolumeSize - kItemVolumeNameAt - drive.size())
      .Take();
}

/// A share as "My Network Places" has it: its location, then the network's name, which the flag 0x80 announces.
std::string ShareItem(std::string_view share) {
  ByteWriter data;
  data.U8(kItemShare).U8(1).U8(0x81).Bytes(share).U8(0).Bytes("Microsoft Network").U8(0).U16(2);
  return ByteWriter().U16(2 + data.Size()).Bytes(data.Take()).Take();
}

/// A file or folder with its long name in a block of Windows XP's version, which every later one reads. Sizes beyond
/// 16 bits come out wrong here; a list with such an item is not used.
std::string FileItem(std::string_view name, bool isFolder) {
  ByteWriter data;
  data.U8(isFolder ? kItemFolder : kItemFile).Zeros(9).U16(isFolder ? kAttributeDirectory : kAttributeArchive);
  data.Bytes(ToAnsi(name, '_')).U8(0).Align();
  const std::size_t blockAt = 2 + data.Size();
  const std::string wide = ToUtf16(name);
  data.U16(kLongNameHeaderSizeXp + wide.size() + 4).U16(kLongNameVersionXp).U32(kLongNameBlock).Zeros(8);
  data.U16(kLongNameHeaderSizeXp).U16(0).Bytes(wide).U16(0).U16(blockAt);
  return ByteWriter().U16(2 + data.Size()).Bytes(data.Take()).Take();
}

}  // namespace

std::string ItemListPath(ByteView list) {
  std::string path;
  while (list.Size() >= 2) {
    const std::size_t size = list.U16(0);
    if (size == 0) return path;
    if (size <= kItemTypeAt || size > list.Size()) break;
    if (!AppendItem(path, list.First(size))) break;
    list = list.From(size);
  }
  return {};
}

std::string ItemListFor(std::string_view path, bool isFolder) {
  constexpr std::size_t kLongest = 0xFFFF;
  const std::size_t share = ShareLength(path);
  if (share == 0 && !IsDrivePath(path)) return {};
  // A share's item has no Unicode form: the link info alone can spell such a name.
  if (!text::IsAscii(path.substr(0, share))) return {};
  std::string_view rest = path.substr(share == 0 ? 3 : share);
  std::string list = share == 0 ? RootItem(0x50, kMyComputer) + DriveItem(path.substr(0, 3))
                                : RootItem(0x58, kNetworkPlaces) + ShareItem(path.substr(0, share));
  while (!rest.empty() && list.size() <= kLongest) {
    const std::string_view name = rest.substr(0, rest.find('\\'));
    const bool isOnTheWay = name.size() < rest.size();
    rest.remove_prefix(isOnTheWay ? name.size() + 1 : name.size());
    if (!name.empty()) list += FileItem(name, isOnTheWay || isFolder);
  }
  list.append(2, '\0');
  return list.size() <= kLongest ? list : std::string();
}

}  // namespace dayvane::links
