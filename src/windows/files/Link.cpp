// SPDX-License-Identifier: MIT
#include "windows/files/Link.h"

#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>
#include <winioctl.h>

#include "windows/files/Handle.h"
#include "windows/files/NativePath.h"

namespace dayvane::files {

namespace {

/// A reparse point's bytes ([MS-FSCC] 2.1.2), read with bounds.
class ReparseData {
 public:
  ReparseData(const char* bytes, std::size_t size) : m_bytes(bytes, size) {}

  std::uint32_t Tag() const { return Number<std::uint32_t>(0); }
  bool IsSymbolicLink() const { return Tag() == IO_REPARSE_TAG_SYMLINK; }
  bool IsJunction() const { return Tag() == IO_REPARSE_TAG_MOUNT_POINT; }
  bool IsRelative() const { return IsSymbolicLink() && (Number<std::uint32_t>(16) & 1U) != 0; }

  /// The substitute name: of both names the one that the system follows.
  std::wstring Target() const {
    const std::size_t texts = IsSymbolicLink() ? 20 : 16;
    const std::size_t start = texts + Number<std::uint16_t>(8);
    const std::size_t size = Number<std::uint16_t>(10);
    if (start > m_bytes.size() || size > m_bytes.size() - start) return {};
    std::wstring target(size / sizeof(wchar_t), L'\0');
    std::memcpy(target.data(), m_bytes.data() + start, target.size() * sizeof(wchar_t));
    return target;
  }

 private:
  template <class Integer>
  Integer Number(std::size_t at) const {
    Integer number = 0;
    if (at + sizeof number <= m_bytes.size()) std::memcpy(&number, m_bytes.data() + at, sizeof number);
    return number;
  }

  std::string_view m_bytes;
};

/// A native path for "\??\C:\folder", as the kernel names it, or for one counted from the link's folder.
std::optional<std::wstring> Named(const ReparseData& data, const std::wstring& native) {
  constexpr std::wstring_view kKernel = L"\\??\\";
  std::wstring target = data.Target();
  if (target.empty()) return std::nullopt;
  if (data.IsRelative()) {
    constexpr std::size_t kDrive = sizeof("\\\\?\\C:") - 1;
    const std::size_t folder = target[0] == L'\\' ? kDrive : native.rfind(L'\\') + 1;
    target = native.substr(0, folder) + target;
  }
  if (target.starts_with(kKernel)) target = L"\\\\?\\" + target.substr(kKernel.size());
  const auto path = FromNative(target);
  return path ? ToNative(*path) : std::nullopt;
}

}  // namespace

std::optional<std::wstring> LinkTarget(const std::wstring& native) {
  const DWORD attributes = GetFileAttributesW(native.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return std::nullopt;
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const FileHandle link(CreateFileW(native.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  std::vector<char> buffer(MAXIMUM_REPARSE_DATA_BUFFER_SIZE);
  DWORD size = 0;
  const auto room = static_cast<DWORD>(buffer.size());
  if (!link.IsOpen() ||
      DeviceIoControl(link.Get(), FSCTL_GET_REPARSE_POINT, nullptr, 0, buffer.data(), room, &size, nullptr) == 0)
    return std::nullopt;
  const ReparseData data(buffer.data(), size);
  if (!data.IsSymbolicLink() && !data.IsJunction()) return std::nullopt;
  return Named(data, native);
}

}  // namespace dayvane::files
