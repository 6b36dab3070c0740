#include "desktop/win32/picture_store.h"

#include <wincodec.h>

#include <algorithm>
#include <charconv>
#include <string>

#include "desktop/common/scale.h"
#include "desktop/win32/dib.h"
#include "desktop/win32/resource.h"
#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

constexpr std::uint32_t kMagenta = 0xFFFF00FF;

std::span<const std::byte> File(const Picture& picture, double scale) {
  std::string name(picture.name);
  if (scale != 1) {
    char digits[16];
    const auto [end, error] = std::to_chars(digits, digits + sizeof digits, scale);
    name += '@' + std::string(digits, end) + 'x';
  }
  return Resource(Wide(name), L"PICTURE");
}

/// Nothing where the file does not hold a picture.
common::Pixels Decode(IWICImagingFactory& factory, std::span<const std::byte> file) {
  const auto stream = Made<IWICStream>([&](auto** made) { return factory.CreateStream(made); });
  auto* bytes = reinterpret_cast<BYTE*>(const_cast<std::byte*>(file.data()));
  if (!stream || FAILED(stream->InitializeFromMemory(bytes, static_cast<DWORD>(file.size())))) return {};
  const auto decoder = Made<IWICBitmapDecoder>([&](auto** made) {
    return factory.CreateDecoderFromStream(stream.get(), nullptr, WICDecodeMetadataCacheOnDemand, made);
  });
  if (!decoder) return {};
  const auto frame = Made<IWICBitmapFrameDecode>([&](auto** made) { return decoder->GetFrame(0, made); });
  const auto converter = Made<IWICFormatConverter>([&](auto** made) { return factory.CreateFormatConverter(made); });
  if (!frame || !converter) return {};
  if (FAILED(converter->Initialize(frame.get(), GUID_WICPixelFormat32bppPBGRA, WICBitmapDitherTypeNone, nullptr, 0,
                                   WICBitmapPaletteTypeCustom)))
    return {};
  UINT width = 0;
  UINT height = 0;
  if (FAILED(converter->GetSize(&width, &height))) return {};
  common::Pixels pixels{{static_cast<int>(width), static_cast<int>(height)},
                        std::vector<std::uint32_t>(std::size_t{width} * height)};
  auto* values = reinterpret_cast<BYTE*>(pixels.values.data());
  const UINT size = width * height * 4;
  return SUCCEEDED(converter->CopyPixels(nullptr, width * 4, size, values)) ? pixels : common::Pixels{};
}

}  // namespace

PictureStore::PictureStore()
    : factory_(Made<IWICImagingFactory>([](IWICImagingFactory** made) {
        return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                                reinterpret_cast<void**>(made));
      })) {}

PictureStore::~PictureStore() = default;

common::Pixels PictureStore::Load(const Picture& picture, common::Size size) {
  const auto isCarried = [&](double scale) { return !File(picture, scale).empty(); };
  const auto file = File(picture, common::CarriedScale(picture.width, size.width, isCarried));
  common::Pixels pixels = factory_ && !file.empty() ? Decode(*factory_, file) : common::Pixels{};
  if (pixels.values.empty()) return {size, std::vector<std::uint32_t>(std::size_t(size.width * size.height), kMagenta)};
  if (common::IsCut(pixels.size, size)) return common::Cut(pixels, size);
  return pixels.size == size ? pixels : common::AreaAveraged(pixels, size);
}

HBITMAP PictureStore::Sized(const Picture& picture, common::Size size) {
  const auto [at, fresh] = bitmaps_.try_emplace({&picture, size.width, size.height});
  if (!fresh) return at->second.get();
  const common::Pixels pixels = Load(picture, size);
  Dib dib = MakeDib(size);
  std::ranges::copy(pixels.values, dib.pixels);
  at->second = std::move(dib.bitmap);
  return at->second.get();
}

}  // namespace desktop::win32
