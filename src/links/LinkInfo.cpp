// SPDX-License-Identifier: MIT
#include "links/LinkInfo.h"

#include <optional>

#include "links/ByteWriter.h"
#include "links/LinkText.h"
#include "links/ShellLinkLayout.h"
#include "links/TargetForm.h"

namespace dayvane::links {

using namespace layout;

namespace {

using Text = std::optional<std::string_view>;

/// The two ways in which every text may be there: how to find one at an offset, and how to decode it.
struct Encoding {
  Text (ByteView::*find)(std::size_t) const;
  void (*append)(std::string&, std::string_view);
};
constexpr Encoding kAnsi{&ByteView::AnsiText, &AppendAnsi};
constexpr Encoding kUnicode{&ByteView::WideText, &AppendUtf16};

/// The text whose offset stands in a field. Nothing for an offset that points into the header.
Text TextOf(ByteView structure, std::size_t field, std::size_t headerSize, const Encoding& encoding) {
  const std::size_t offset = structure.U32(field);
  return offset < headerSize ? std::nullopt : (structure.*encoding.find)(offset);
}

/// A suffix that is not there is empty; one that cannot be read is lost.
Text SuffixOf(ByteView info, std::size_t field, const Encoding& encoding) {
  return info.U32(field) == 0 ? Text("") : TextOf(info, field, kInfoHeaderSize, encoding);
}

bool HasUnicode(ByteView info) {
  return info.U32(kInfoHeaderSizeAt) >= kInfoUnicodeHeaderSize;
}

ByteView NetworkOf(ByteView info) {
  const std::size_t offset = info.U32(kNetworkAt);
  const bool isThere = (info.U32(kInfoFlagsAt) & kInfoHasNetwork) != 0 && offset >= kInfoHeaderSize;
  const ByteView network = isThere ? info.From(offset) : ByteView();
  return network.First(network.U32(0));
}

bool HasLocalPath(ByteView info) {
  return (info.U32(kInfoFlagsAt) & kInfoHasLocalPath) != 0;
}

bool IsThere(const Text& text) {
  return text && !text->empty();
}

std::string Joined(const Text& base, const Text& suffix, const Encoding& encoding) {
  std::string path;
  if (!IsThere(base) || !suffix) return path;
  encoding.append(path, *base);
  std::string rest;
  encoding.append(rest, *suffix);
  if (!rest.empty() && !path.ends_with('\\') && !rest.starts_with('\\')) path += '\\';
  return path += rest;
}

/// Where the two halves of a target part. What lies below the share goes into the suffix; a doubled or last "\" stays
/// with the share, since joining puts exactly one between the two.
std::size_t BaseLength(std::string_view target) {
  const std::size_t share = ShareLength(target);
  if (share == 0 || share == target.size()) return target.size();
  const bool plain = target.size() > share + 1 && target[share + 1] != '\\';
  return plain ? share : share + 1;
}

std::string VolumeId() {
  // No serial number and an empty label: nothing is known about the volume, and the disk is not asked.
  return ByteWriter().U32(kVolumeHeaderSize + 1).U32(kDriveFixed).U32(0).U32(kVolumeHeaderSize).U8(0).Take();
}

std::string NetworkFor(std::string_view share) {
  const std::string ansi = ToAnsi(share, '?');
  ByteWriter names;
  names.Bytes(ansi).U8(0).Align();
  const std::size_t wideAt = kNetworkUnicodeHeaderSize + names.Size();
  names.Bytes(ToUtf16(share)).U16(0);
  return ByteWriter()
      .U32(kNetworkUnicodeHeaderSize + names.Size())
      .U32(kNetworkHasType)
      .U32(kNetworkUnicodeHeaderSize)
      .U32(0)
      .U32(kNetworkTypeLanman)
      .U32(wideAt)
      .U32(0)
      .Bytes(names.Take())
      .Take();
}

/// Puts the header before the parts, in the order of 2.3; a part that is missing has offset 0.
struct InfoParts {
  std::uint32_t flags = 0;
  std::string volume, localPath, network, suffix, localPathWide, suffixWide;
};

std::string Assembled(const InfoParts& parts) {
  ByteWriter body;
  const auto place = [&](const std::string& part) {
    const std::size_t offset = part.empty() ? 0 : kInfoUnicodeHeaderSize + body.Align().Size();
    body.Bytes(part);
    return offset;
  };
  const std::size_t volume = place(parts.volume);
  const std::size_t localPath = place(parts.localPath);
  const std::size_t network = place(parts.network);
  const std::size_t suffix = place(parts.suffix);
  const std::size_t localPathWide = place(parts.localPathWide);
  const std::size_t suffixWide = place(parts.suffixWide);
  ByteWriter info;
  info.U32(kInfoUnicodeHeaderSize + body.Size()).U32(kInfoUnicodeHeaderSize).U32(parts.flags);
  info.U32(volume).U32(localPath).U32(network).U32(suffix).U32(localPathWide).U32(suffixWide);
  return info.Bytes(body.Take()).Take();
}

std::string AnsiPart(std::string_view text) {
  return ToAnsi(text, '?') + '\0';
}
std::string WidePart(std::string_view text) {
  return ToUtf16(text).append(2, '\0');
}

}  // namespace

std::string UnicodePath(ByteView info) {
  if (!HasUnicode(info)) return {};
  const Text suffix = SuffixOf(info, kSuffixUnicodeAt, kUnicode);
  // A suffix in ANSI alone belongs to the Unicode path too, but may not spell it.
  if (info.U32(kSuffixUnicodeAt) == 0 && IsThere(SuffixOf(info, kSuffixAt, kAnsi))) return {};
  if (HasLocalPath(info)) {
    const Text base = TextOf(info, kLocalPathUnicodeAt, kInfoHeaderSize, kUnicode);
    if (IsThere(base)) return Joined(base, suffix, kUnicode);
  }
  const ByteView network = NetworkOf(info);
  // 2.3.2: the Unicode names are there when the first name does not follow right after the short header.
  if (network.U32(kNetNameAt) <= kNetworkHeaderSize) return {};
  return Joined(TextOf(network, kNetNameUnicodeAt, kNetworkHeaderSize, kUnicode), suffix, kUnicode);
}

std::string AnsiPath(ByteView info) {
  const Text suffix = SuffixOf(info, kSuffixAt, kAnsi);
  Text base;
  if (HasLocalPath(info)) base = TextOf(info, kLocalPathAt, kInfoHeaderSize, kAnsi);
  const ByteView network = NetworkOf(info);
  if (!IsThere(base)) base = TextOf(network, kNetNameAt, kNetworkHeaderSize, kAnsi);
  if (!IsThere(base)) base = TextOf(network, kDeviceNameAt, kNetworkHeaderSize, kAnsi);
  return Joined(base, suffix, kAnsi);
}

std::string LinkInfoFor(std::string_view target) {
  const bool onShare = ShareLength(target) != 0;
  const std::string_view base = target.substr(0, BaseLength(target));
  const std::string_view suffix = target.substr(std::min(target.size(), base.size() + (base.ends_with('\\') ? 0 : 1)));
  InfoParts parts;
  parts.suffix = AnsiPart(onShare ? suffix : "");
  parts.suffixWide = WidePart(onShare ? suffix : "");
  if (onShare) {
    parts.flags = kInfoHasNetwork;
    parts.network = NetworkFor(base);
  } else {
    parts.flags = kInfoHasLocalPath;
    parts.volume = VolumeId();
    parts.localPath = AnsiPart(target);
    parts.localPathWide = WidePart(target);
  }
  return Assembled(parts);
}

}  // namespace dayvane::links
