// SPDX-License-Identifier: MIT
#include "windows/widgets/Icons.h"

#include <utility>

#include "resources/MResourceConstants.h"
#include "windows/launch/SystemIcon.h"
#include "windows/widgets/Pictures.h"

namespace dayvane::widgets {

namespace {

constexpr int kFirstImages = 16;
constexpr int kMoreImages = 16;

std::string NameOf(const controls::Picture& picture) {
  std::string name = std::to_string(picture.resource);
  for (const std::string& icon : picture.iconNames) name += '\n' + icon;
  return name;
}

int WidthOf(HIMAGELIST images) {
  int width = 0;
  int height = 0;
  return ImageList_GetIconSize(images, &width, &height) != 0 ? width : 0;
}

/// One of the shell's lists for as long as this lives.
class SystemImages {
 public:
  explicit SystemImages(int kind) {
    if (FAILED(SHGetImageList(kind, __uuidof(IImageList), &m_list))) m_list = nullptr;
  }
  SystemImages(const SystemImages&) = delete;
  SystemImages& operator=(const SystemImages&) = delete;
  ~SystemImages() {
    if (m_list != nullptr) static_cast<IUnknown*>(m_list)->Release();
  }
  HIMAGELIST Get() const { return static_cast<HIMAGELIST>(m_list); }

 private:
  void* m_list = nullptr;
};

/// From the shell's smallest list that is large enough, else from the largest.
Icon SystemIcon(int index, int pixels) {
  Icon icon;
  for (const int kind : {SHIL_SMALL, SHIL_LARGE, SHIL_EXTRALARGE, SHIL_JUMBO}) {
    const SystemImages images(kind);
    if (images.Get() == nullptr || index >= ImageList_GetImageCount(images.Get())) continue;
    if (Icon found{ImageList_GetIcon(images.Get(), index, ILD_TRANSPARENT)}) icon = std::move(found);
    if (icon != nullptr && WidthOf(images.Get()) >= pixels) break;
  }
  if (icon == nullptr) return icon;
  auto* sized = static_cast<HICON>(CopyImage(icon.get(), IMAGE_ICON, pixels, pixels, 0));
  return sized != nullptr ? Icon(sized) : std::move(icon);
}

Icon FindIcon(const controls::Picture& picture, int pixels) {
  for (const std::string& name : picture.iconNames)
    if (const auto index = launch::SystemIconIndex(name))
      if (Icon icon = SystemIcon(*index, pixels)) return icon;
  if (Icon own = PictureIcon(picture.resource, pixels)) return own;
  return PictureIcon(kDefaultDocumentPicture, pixels);
}

}  // namespace

Icons::List& Icons::ListOf(int pixels) {
  const auto [list, added] = m_lists.try_emplace(pixels);
  if (added)
    list->second.images.reset(ImageList_Create(pixels, pixels, ILC_COLOR32 | ILC_MASK, kFirstImages, kMoreImages));
  return list->second;
}

int Icons::IndexOf(const controls::Picture& picture, int pixels) {
  List& list = ListOf(pixels);
  const std::string name = NameOf(picture);
  const auto found = list.known.find(name);
  if (found != list.known.end()) return found->second;
  const Icon icon = FindIcon(picture, pixels);
  return list.known[name] = ImageList_ReplaceIcon(list.images.get(), -1, icon.get());
}

int Icons::IndexOf(const controls::ImageList* images, int number, int pixels) {
  if (images == nullptr || number < 1 || number > images->Count()) return IndexOf(controls::Picture{}, pixels);
  return IndexOf(images->At(number), pixels);
}

}  // namespace dayvane::widgets
