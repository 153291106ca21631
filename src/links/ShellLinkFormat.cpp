// SPDX-License-Identifier: MIT
#include "links/ShellLinkFormat.h"

#include <algorithm>

#include "base/Error.h"
#include "links/ByteView.h"
#include "links/ByteWriter.h"
#include "links/ItemList.h"
#include "links/LinkInfo.h"
#include "links/LinkText.h"
#include "links/ShellLinkLayout.h"

namespace dayvane::links {

using namespace layout;
using platform::ShellLink;

namespace {

/// The parts of a link's bytes; those that are not there are empty.
struct Parts {
  bool unicode = false;
  ByteView itemList;
  ByteView linkInfo;
  ByteView relativePath;
  ByteView workingDirectory;
  ByteView arguments;
  ByteView iconLocation;
  ByteView environment;
  ByteView iconEnvironment;
};

bool HasShellLinkHeader(ByteView bytes) {
  return bytes.Has(0, kHeaderSize) && bytes.U32(0) == kHeaderSize &&
         bytes.From(kClassIdAt).First(kClassId.size()).Bytes() == kClassId;
}

/// 2.2: the size of the list, then the list.
ByteView TakeItemList(ByteCursor& cursor) {
  const auto size = cursor.Take(2);
  return size ? cursor.TakeUpTo(size->U16(0)) : ByteView();
}

/// 2.3: the size counts itself. A size too small for that is skipped alone.
ByteView TakeLinkInfo(ByteCursor& cursor) {
  const std::size_t size = cursor.Rest().U32(0);
  return cursor.TakeUpTo(std::max<std::size_t>(size, 4));
}

/// 2.4: the number of characters, then the characters, without a null. A text that was cut short is not taken: half a
/// path is the path of something else.
ByteView TakeText(ByteCursor& cursor, bool unicode) {
  const auto count = cursor.Take(2);
  if (!count) return {};
  return cursor.Take(std::size_t{count->U16(0)} * (unicode ? 2 : 1)).value_or(ByteView());
}

/// 2.5: blocks of a size and a signature, up to one whose size is too small to be one.
void TakeBlocks(ByteCursor& cursor, Parts& parts) {
  constexpr std::size_t kSmallest = 4;
  for (;;) {
    const std::size_t size = cursor.Rest().U32(0);
    if (size < kSmallest) return;
    const auto block = cursor.Take(size);
    if (!block) return;
    const std::uint32_t signature = block->U32(kBlockSignatureAt);
    if (signature == kEnvironmentBlock) parts.environment = *block;
    if (signature == kIconEnvironmentBlock) parts.iconEnvironment = *block;
  }
}

Parts Split(ByteView bytes) {
  Parts parts;
  const std::uint32_t flags = bytes.U32(kLinkFlagsAt);
  parts.unicode = (flags & kIsUnicode) != 0;
  ByteCursor cursor(bytes.From(kHeaderSize));
  if (flags & kHasItemList) parts.itemList = TakeItemList(cursor);
  if (flags & kHasLinkInfo) parts.linkInfo = TakeLinkInfo(cursor);
  if (flags & kForceNoLinkInfo) parts.linkInfo = {};
  if (flags & kHasName) TakeText(cursor, parts.unicode);
  if (flags & kHasRelativePath) parts.relativePath = TakeText(cursor, parts.unicode);
  if (flags & kHasWorkingDirectory) parts.workingDirectory = TakeText(cursor, parts.unicode);
  if (flags & kHasArguments) parts.arguments = TakeText(cursor, parts.unicode);
  if (flags & kHasIconLocation) parts.iconLocation = TakeText(cursor, parts.unicode);
  TakeBlocks(cursor, parts);
  return parts;
}

std::string Decoded(ByteView text, bool unicode) {
  std::string decoded;
  unicode ? AppendUtf16(decoded, text.Bytes()) : AppendAnsi(decoded, text.Bytes());
  return decoded;
}

/// 2.5.4 and 2.5.5: the same path in both encodings, each in a field of fixed size.
std::string BlockPath(ByteView block) {
  const auto field = [&](std::size_t offset, std::size_t size) {
    return block.Has(offset, size) ? block.From(offset).First(size) : ByteView();
  };
  std::string path = Decoded(field(kBlockUnicodeAt, kBlockUnicodeSize), true);
  return path.empty() ? Decoded(field(kBlockAnsiAt, kBlockAnsiSize), false) : path;
}

std::string TargetOf(const Parts& parts) {
  std::string target = UnicodePath(parts.linkInfo);
  if (target.empty()) target = ItemListPath(parts.itemList);
  if (target.empty()) target = AnsiPath(parts.linkInfo);
  if (target.empty()) target = BlockPath(parts.environment);
  if (target.empty()) target = Decoded(parts.relativePath, parts.unicode);
  return target;
}

std::uint32_t ShowCommandOf(std::uint32_t stored) {
  return stored == kShowMaximized || stored == kShowMinimized ? stored : kShowNormal;
}

/// The texts of 2.4 that are not empty, each with its flag.
class TextWriter {
 public:
  void Add(std::uint32_t flag, const std::string& text) {
    const std::string wide = ToUtf16(text);
    if (wide.empty()) return;
    const std::size_t count = wide.size() / 2;
    if (count > 0xFFFF) throw Error(kInvalidProcedureCall, "Text too long for a shell link");
    m_flags |= flag;
    m_texts.U16(count).Bytes(wide);
  }
  std::uint32_t Flags() const { return m_flags; }
  std::string Take() { return m_texts.Take(); }

 private:
  std::uint32_t m_flags = 0;
  ByteWriter m_texts;
};

/// Times and file size are left empty: they are not known without the disk.
void AppendHeader(ByteWriter& writer, std::uint32_t flags, const ShellLink& link) {
  const std::uint32_t attributes = link.targetIsFolder ? kAttributeDirectory : kAttributeArchive;
  writer.U32(kHeaderSize).Bytes(kClassId).U32(flags).U32(attributes);
  writer.Zeros(28).U32(static_cast<std::uint32_t>(link.iconIndex));
  writer.U32(ShowCommandOf(static_cast<std::uint32_t>(link.showCommand))).Zeros(12);
}

}  // namespace

std::optional<ShellLink> ParseShellLink(std::string_view bytes) {
  const ByteView view(bytes);
  if (!HasShellLinkHeader(view)) return std::nullopt;
  const Parts parts = Split(view);
  ShellLink link;
  link.target = TargetOf(parts);
  link.workingDirectory = Decoded(parts.workingDirectory, parts.unicode);
  link.arguments = Decoded(parts.arguments, parts.unicode);
  link.iconFile = Decoded(parts.iconLocation, parts.unicode);
  if (link.iconFile.empty()) link.iconFile = BlockPath(parts.iconEnvironment);
  link.iconIndex = static_cast<std::int32_t>(view.U32(kIconIndexAt));
  link.showCommand = static_cast<std::int32_t>(ShowCommandOf(view.U32(kShowCommandAt)));
  link.targetIsFolder = (view.U32(kAttributesAt) & kAttributeDirectory) != 0;
  return link;
}

std::string WriteShellLink(const ShellLink& link) {
  const std::string target = link.target.substr(0, link.target.find('\0'));
  const std::string itemList = ItemListFor(target, link.targetIsFolder);
  TextWriter texts;
  texts.Add(kHasWorkingDirectory, link.workingDirectory);
  texts.Add(kHasArguments, link.arguments);
  texts.Add(kHasIconLocation, link.iconFile);
  std::uint32_t flags = kIsUnicode | texts.Flags();
  if (!itemList.empty()) flags |= kHasItemList;
  if (!target.empty()) flags |= kHasLinkInfo;
  ByteWriter writer;
  AppendHeader(writer, flags, link);
  if (!itemList.empty()) writer.U16(itemList.size()).Bytes(itemList);
  if (!target.empty()) writer.Bytes(LinkInfoFor(target));
  // An empty block ends the extra blocks (2.5).
  return writer.Bytes(texts.Take()).U32(0).Take();
}

}  // namespace dayvane::links
