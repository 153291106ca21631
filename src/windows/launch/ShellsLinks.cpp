// SPDX-License-Identifier: MIT
#include "windows/launch/ShellsLinks.h"

#include <shlwapi.h>

#include "links/ByteView.h"
#include "links/ShellLinkLayout.h"
#include "windows/files/NativePath.h"
#include "windows/files/WideText.h"
#include "windows/launch/ComObject.h"

namespace dayvane::launch {

namespace {

using links::ByteView;
using platform::ShellLink;

ComObject<IStream> StreamOf(std::string_view bytes) {
  return ComObject<IStream>(
      SHCreateMemStream(reinterpret_cast<const BYTE*>(bytes.data()), static_cast<UINT>(bytes.size())));
}

/// The items of a link, without their size, as long as each has one that fits, and the list its end.
ByteView ItemsOf(ByteView link) {
  if ((link.U32(links::layout::kLinkFlagsAt) & links::layout::kHasItemList) == 0) return {};
  const ByteView stored = link.From(links::layout::kHeaderSize);
  const ByteView items = stored.From(2).First(stored.U16(0));
  for (ByteView rest = items; rest.Size() >= 2; rest = rest.From(rest.U16(0))) {
    const std::size_t size = rest.U16(0);
    if (size == 0) return items.First(items.Size() - rest.Size() + 2);
    if (size < 2 || size > rest.Size()) break;
  }
  return {};
}

/// All bytes that were written to a stream.
std::optional<std::string> BytesOf(const ComObject<IStream>& stream) {
  STATSTG status{};
  if (FAILED(stream->Stat(&status, STATFLAG_NONAME)) || FAILED(stream->Seek({}, STREAM_SEEK_SET, nullptr)))
    return std::nullopt;
  std::string bytes(static_cast<std::size_t>(status.cbSize.QuadPart), '\0');
  ULONG count = 0;
  if (FAILED(stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &count)) || count != bytes.size())
    return std::nullopt;
  return bytes;
}

/// Hands a text to the shell; an empty one is not there.
template <class Set>
bool SetLinkText(const std::string& text, Set&& set) {
  const auto wide = files::ToWide(text);
  return wide && (wide->empty() || SUCCEEDED(set(wide->c_str())));
}

bool Fill(const ComObject<IShellLinkW>& shellLink, const ShellLink& link) {
  return SetLinkText(link.target, [&](const wchar_t* text) { return shellLink->SetPath(text); }) &&
         SetLinkText(link.workingDirectory,
                     [&](const wchar_t* text) { return shellLink->SetWorkingDirectory(text); }) &&
         SetLinkText(link.arguments, [&](const wchar_t* text) { return shellLink->SetArguments(text); }) &&
         SetLinkText(link.iconFile,
                     [&](const wchar_t* text) { return shellLink->SetIconLocation(text, link.iconIndex); }) &&
         SUCCEEDED(shellLink->SetShowCmd(link.showCommand));
}

}  // namespace

std::string PathByShell(std::string_view bytes) {
  const ByteView items = ItemsOf(ByteView(bytes));
  if (items.Size() == 0) return {};
  // Not every shell looks whether what an item tells of itself lies in the item. It then finds zeros, as far as 16 bits
  // reach.
  std::string list(items.Bytes());
  constexpr std::size_t kReachOf16Bits = 0x10000;
  list.resize(list.size() + 2 * kReachOf16Bits);
  wchar_t path[MAX_PATH] = {};
  const auto* first = reinterpret_cast<const ITEMIDLIST*>(list.data());
  return SHGetPathFromIDListW(first, path) != 0 ? files::FromNative(path).value_or("") : "";
}

std::optional<std::string> WriteByShell(const ShellLink& link) {
  const auto shellLink = ComObject<IShellLinkW>::Create(CLSID_ShellLink);
  const auto stored = shellLink.As<IPersistStream>();
  const auto stream = StreamOf({});
  if (!stored || !stream || !Fill(shellLink, link) || FAILED(stored->Save(stream.Get(), TRUE))) return std::nullopt;
  return BytesOf(stream);
}

}  // namespace dayvane::launch
