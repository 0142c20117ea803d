#include "addin/picture_file.h"

#include <algorithm>

#include "addin/files.h"
#include "base/run_time_error.h"
#include "common/bitmap_file.h"
#include "win32/views/handles.h"

namespace pelorin {

namespace {

constexpr std::uint32_t opaque = 0xFF000000U;

[[noreturn]] void refusePicture(const std::string& path) {
  throw RunTimeError(error_number::invalidPicture, "Invalid picture: " + path);
}

BITMAPINFO topDown32Bits(const Picture& picture) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = picture.width;
  info.bmiHeader.biHeight = -picture.height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return info;
}

bool readPixels(const Bitmap& bitmap, Picture& picture) {
  picture.pixels.resize(static_cast<std::size_t>(picture.width) *
                        static_cast<std::size_t>(picture.height));
  BITMAPINFO info = topDown32Bits(picture);
  const WindowDc screen(nullptr);
  return GetDIBits(screen.get(), bitmap.get(), 0, static_cast<UINT>(picture.height),
                   picture.pixels.data(), &info, DIB_RGB_COLORS) == picture.height;
}

// Without alpha the fourth byte is 0 everywhere.
void completeAlpha(Picture& picture) {
  const bool used = std::any_of(picture.pixels.begin(), picture.pixels.end(),
                                [](std::uint32_t pixel) { return (pixel & opaque) != 0; });
  if (used) return;
  for (std::uint32_t& pixel : picture.pixels) pixel |= opaque;
}

}  // namespace

Picture readPictureFile(const std::string& path) {
  if (!isWholeBitmapFile(files::read(path))) refusePicture(path);
  // A section keeps the file's own bits, alpha included.
  const Bitmap bitmap(
      static_cast<HBITMAP>(LoadImageW(nullptr, files::nativeName(path).c_str(), IMAGE_BITMAP, 0, 0,
                                      LR_LOADFROMFILE | LR_CREATEDIBSECTION)));
  BITMAP shape{};
  if (!bitmap || GetObjectW(bitmap.get(), sizeof shape, &shape) == 0) refusePicture(path);
  Picture picture{shape.bmWidth, std::max(shape.bmHeight, -shape.bmHeight), {}};
  if (!readPixels(bitmap, picture)) refusePicture(path);
  completeAlpha(picture);
  return picture;
}

}  // namespace pelorin
