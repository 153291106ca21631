// SPDX-License-Identifier: MIT
#include "windows/help/HelpPicture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <shlwapi.h>
#include <wincodec.h>

namespace dayvane::help {

namespace {

struct Releaser {
  void operator()(IUnknown* object) const { object->Release(); }
};

template <class Interface>
using Com = std::unique_ptr<Interface, Releaser>;

/// What a function of COM gives through its last argument.
template <class Interface, class Call>
Com<Interface> Got(Call&& call) {
  Interface* object = nullptr;
  return SUCCEEDED(call(&object)) ? Com<Interface>(object) : nullptr;
}

Com<IWICBitmapSource> OpenPicture(IWICImagingFactory& factory, IStream& bytes) {
  const auto decoder = Got<IWICBitmapDecoder>([&](auto** result) {
    return factory.CreateDecoderFromStream(&bytes, nullptr, WICDecodeMetadataCacheOnDemand, result);
  });
  if (!decoder) return nullptr;
  const auto frame = Got<IWICBitmapFrameDecode>([&](auto** result) { return decoder->GetFrame(0, result); });
  auto converter = Got<IWICFormatConverter>([&](auto** result) { return factory.CreateFormatConverter(result); });
  if (!frame || !converter) return nullptr;
  const HRESULT ready = converter->Initialize(frame.get(), GUID_WICPixelFormat32bppPBGRA, WICBitmapDitherTypeNone,
                                              nullptr, 0, WICBitmapPaletteTypeCustom);
  return SUCCEEDED(ready) ? std::move(converter) : nullptr;
}

std::optional<Picture> PixelsOf(IWICBitmapSource& source) {
  UINT width = 0;
  UINT height = 0;
  if (FAILED(source.GetSize(&width, &height)) || width == 0 || height == 0) return std::nullopt;
  if (width > kLongestSide || height > kLongestSide) return std::nullopt;
  Picture picture{static_cast<int>(width), static_cast<int>(height), {}};
  picture.pixels.resize(static_cast<std::size_t>(width) * height);
  const HRESULT copied =
      source.CopyPixels(nullptr, width * 4, width * height * 4, reinterpret_cast<BYTE*>(picture.pixels.data()));
  return SUCCEEDED(copied) ? std::optional(std::move(picture)) : std::nullopt;
}

/// Which pixels of `from` one of `to` stands for.
struct Span {
  int first;
  int end;
};

Span SpanOf(int index, int from, int to) {
  const int first = static_cast<int>(static_cast<std::int64_t>(index) * from / to);
  const int end = static_cast<int>((static_cast<std::int64_t>(index + 1) * from + to - 1) / to);
  return {first, std::clamp(end, first + 1, from)};
}

std::uint32_t Mean(const Picture& picture, Span columns, Span rows, COLORREF background) {
  std::array<std::uint64_t, 4> sums{};
  for (int y = rows.first; y < rows.end; y++) {
    for (int x = columns.first; x < columns.end; x++) {
      const std::uint32_t pixel = picture.pixels[static_cast<std::size_t>(y) * picture.width + x];
      for (std::size_t part = 0; part < 4; part++) sums[part] += pixel >> (8 * part) & 0xFF;
    }
  }
  const auto count = static_cast<std::uint64_t>(columns.end - columns.first) * (rows.end - rows.first);
  const std::array<std::uint64_t, 3> behind{GetBValue(background), GetGValue(background), GetRValue(background)};
  std::uint32_t mean = 0xFF000000;
  for (std::size_t part = 0; part < 3; part++) {
    const std::uint64_t shining = behind[part] * (255 * count - sums[3]) / 255;
    mean |= static_cast<std::uint32_t>(std::min<std::uint64_t>((sums[part] + shining) / count, 255) << (8 * part));
  }
  return mean;
}

void AppendHex(std::string& text, const void* bytes, std::size_t size) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  const auto* byte = static_cast<const unsigned char*>(bytes);
  for (std::size_t index = 0; index < size; index++) {
    text += kDigits[byte[index] >> 4];
    text += kDigits[byte[index] & 0xF];
  }
}

}  // namespace

std::optional<Picture> DecodePicture(std::string_view png) {
  const Com<IStream> bytes(SHCreateMemStream(reinterpret_cast<const BYTE*>(png.data()), static_cast<UINT>(png.size())));
  const auto factory = Got<IWICImagingFactory>([](auto** result) {
    return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                            reinterpret_cast<void**>(result));
  });
  if (!bytes || !factory || png.empty()) return std::nullopt;
  const Com<IWICBitmapSource> source = OpenPicture(*factory, *bytes);
  return source ? PixelsOf(*source) : std::nullopt;
}

Picture Drawn(const Picture& picture, int width, int height, COLORREF background) {
  Picture drawn{width, height, {}};
  drawn.pixels.reserve(static_cast<std::size_t>(width) * height);
  for (int y = 0; y < height; y++) {
    const Span rows = SpanOf(y, picture.height, height);
    for (int x = 0; x < width; x++)
      drawn.pixels.push_back(Mean(picture, SpanOf(x, picture.width, width), rows, background));
  }
  return drawn;
}

std::string RichPicture(const Picture& picture, int twipsWide, int twipsHigh) {
  std::string text = "{\\pict\\dibitmap0\\picw" + std::to_string(picture.width) + "\\pich" +
                     std::to_string(picture.height) + "\\picwgoal" + std::to_string(twipsWide) + "\\pichgoal" +
                     std::to_string(twipsHigh) + " ";
  BITMAPINFOHEADER header{};
  header.biSize = sizeof header;
  header.biWidth = picture.width;
  header.biHeight = picture.height;  // from the bottom: not every reader knows the other way
  header.biPlanes = 1;
  header.biBitCount = 32;
  header.biSizeImage = static_cast<DWORD>(picture.pixels.size() * 4);
  text.reserve(text.size() + 2 * (sizeof header + header.biSizeImage) + 1);
  AppendHex(text, &header, sizeof header);
  for (int row = picture.height - 1; row >= 0; row--)
    AppendHex(text, &picture.pixels[static_cast<std::size_t>(row) * picture.width], picture.width * std::size_t{4});
  return text + "}";
}

}  // namespace dayvane::help
