#include "location/bitmap.h"

#include <algorithm>
#include <cstdlib>

#include "controls/run_time_error.h"

namespace pelorin {

namespace {

constexpr std::int32_t invalidPicture = 481;
constexpr std::size_t fileHeaderSize = 14;
constexpr std::uint32_t coreHeaderSize = 12;
constexpr std::uint32_t infoHeaderSize = 40;
constexpr std::int64_t largestSide = 1 << 16;
constexpr std::uint32_t opaque = 0xFF000000U;

[[noreturn]] void refuse() {
  throw RunTimeError(invalidPicture, "Invalid picture");
}

// Little-endian numbers of a file; reading past its end refuses the picture.
class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : bytes_(bytes) {}

  std::uint32_t number(std::size_t at, std::size_t width) const {
    if (at > bytes_.size() || width > bytes_.size() - at) refuse();
    std::uint32_t result = 0;
    for (std::size_t i = width; i-- > 0;) {
      result = result << 8U | static_cast<unsigned char>(bytes_[at + i]);
    }
    return result;
  }
  void require(std::uint64_t end) const {
    if (end > bytes_.size()) refuse();
  }

 private:
  std::string_view bytes_;
};

struct Header {
  std::int64_t width = 0;
  std::int64_t height = 0;
  bool topDown = false;
  std::uint32_t bits = 0;
  std::vector<std::uint32_t> palette;
  std::size_t pixelsAt = 0;

  std::size_t stride() const { return (static_cast<std::size_t>(width) * bits + 31) / 32 * 4; }
};

std::vector<std::uint32_t> readPalette(const Bytes& file, std::size_t at, std::size_t entrySize,
                                       std::uint32_t bits, std::uint32_t used) {
  if (bits > 8) return {};
  const std::uint32_t possible = 1U << bits;
  const std::uint32_t count = used == 0 ? possible : std::min(used, possible);
  std::vector<std::uint32_t> palette(possible, opaque);
  for (std::uint32_t i = 0; i < count; ++i) {
    palette[i] = opaque | file.number(at + i * entrySize, 3);
  }
  return palette;
}

Header readCoreHeader(const Bytes& file) {
  Header header;
  header.width = file.number(fileHeaderSize + 4, 2);
  header.height = file.number(fileHeaderSize + 6, 2);
  header.bits = file.number(fileHeaderSize + 10, 2);
  header.palette = readPalette(file, fileHeaderSize + coreHeaderSize, 3, header.bits, 0);
  return header;
}

Header readInfoHeader(const Bytes& file, std::uint32_t headerSize) {
  const auto signedNumber = [&file](std::size_t at) {
    return std::int64_t{static_cast<std::int32_t>(file.number(fileHeaderSize + at, 4))};
  };
  Header header;
  header.width = signedNumber(4);
  header.height = signedNumber(8);
  header.topDown = header.height < 0;
  header.height = std::abs(header.height);
  header.bits = file.number(fileHeaderSize + 14, 2);
  if (file.number(fileHeaderSize + 16, 4) != 0) refuse();  // compressed
  header.palette = readPalette(file, fileHeaderSize + headerSize, 4, header.bits,
                               file.number(fileHeaderSize + 32, 4));
  return header;
}

Header readHeader(const Bytes& file) {
  constexpr std::uint32_t signature = 0x4D42;  // "BM"
  if (file.number(0, 2) != signature) refuse();
  const std::uint32_t size = file.number(fileHeaderSize, 4);
  if (size != coreHeaderSize && size < infoHeaderSize) refuse();
  Header header = size == coreHeaderSize ? readCoreHeader(file) : readInfoHeader(file, size);
  header.pixelsAt = file.number(10, 4);
  constexpr std::uint32_t widths[] = {1, 4, 8, 24, 32};
  if (std::find(std::begin(widths), std::end(widths), header.bits) == std::end(widths)) refuse();
  if (header.width < 1 || header.width > largestSide) refuse();
  if (header.height < 1 || header.height > largestSide) refuse();
  return header;
}

std::uint32_t readPixel(const Bytes& file, const Header& header, std::size_t row, std::size_t x) {
  if (header.bits >= 24) {
    const std::size_t width = header.bits / 8;
    return file.number(row + x * width, width) | (header.bits == 24 ? opaque : 0);
  }
  const std::size_t perByte = 8 / header.bits;
  const std::size_t shift = (perByte - 1 - x % perByte) * header.bits;
  const std::uint32_t index = file.number(row + x / perByte, 1) >> shift;
  return header.palette[index & ((1U << header.bits) - 1)];
}

bool usesAlpha(const Bitmap& bitmap) {
  return std::any_of(bitmap.pixels.begin(), bitmap.pixels.end(),
                     [](std::uint32_t pixel) { return (pixel & opaque) != 0; });
}

}  // namespace

Bitmap readBitmap(std::string_view content) {
  const Bytes file(content);
  const Header header = readHeader(file);
  const auto width = static_cast<std::size_t>(header.width);
  const auto height = static_cast<std::size_t>(header.height);
  file.require(header.pixelsAt + std::uint64_t{header.stride()} * height);
  Bitmap bitmap{static_cast<int>(header.width), static_cast<int>(header.height), {}};
  bitmap.pixels.reserve(width * height);
  for (std::size_t y = 0; y < height; ++y) {
    const std::size_t row = header.topDown ? y : height - 1 - y;
    const std::size_t at = header.pixelsAt + row * header.stride();
    for (std::size_t x = 0; x < width; ++x) {
      bitmap.pixels.push_back(readPixel(file, header, at, x));
    }
  }
  if (!usesAlpha(bitmap)) {
    for (std::uint32_t& pixel : bitmap.pixels) pixel |= opaque;
  }
  return bitmap;
}

}  // namespace pelorin
