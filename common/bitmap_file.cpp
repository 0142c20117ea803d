#include "common/bitmap_file.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace pelorin {

namespace {

constexpr std::size_t fileHeaderSize = 14;
constexpr std::uint32_t coreHeaderSize = 12;
constexpr std::uint32_t infoHeaderSize = 40;
constexpr std::int64_t largestSide = 1 << 16;

namespace compression {
constexpr std::uint32_t none = 0;
constexpr std::uint32_t bitFields = 3;
constexpr std::uint32_t alphaBitFields = 6;
}  // namespace compression

struct BitmapHeader {
  std::uint32_t size = 0;
  std::int64_t width = 0;
  std::int64_t height = 0;
  std::uint32_t bits = 0;
  std::uint32_t compression = compression::none;
  std::uint32_t compressedSize = 0;
  std::uint32_t coloursUsed = 0;
};

std::uint32_t numberAt(std::string_view file, std::size_t at, std::size_t width) {
  std::uint32_t number = 0;
  for (std::size_t i = width; i-- > 0;) {
    number = number << 8U | static_cast<unsigned char>(file[at + i]);
  }
  return number;
}

std::int64_t sideAt(std::string_view file, std::size_t at) {
  return std::int64_t{static_cast<std::int32_t>(numberAt(file, at, 4))};
}

BitmapHeader readCoreHeader(std::string_view header) {
  return {.size = coreHeaderSize,
          .width = numberAt(header, 4, 2),
          .height = numberAt(header, 6, 2),
          .bits = numberAt(header, 10, 2)};
}

// The longer headers begin with the same fields.
BitmapHeader readInfoHeader(std::string_view header, std::uint32_t size) {
  return {.size = size,
          .width = sideAt(header, 4),
          .height = std::max(sideAt(header, 8), -sideAt(header, 8)),
          .bits = numberAt(header, 14, 2),
          .compression = numberAt(header, 16, 4),
          .compressedSize = numberAt(header, 20, 4),
          .coloursUsed = numberAt(header, 32, 4)};
}

std::optional<BitmapHeader> readBitmapHeader(std::string_view file) {
  if (file.size() < fileHeaderSize + 4 || !file.starts_with("BM")) return std::nullopt;
  const std::uint32_t size = numberAt(file, fileHeaderSize, 4);
  if (size != coreHeaderSize && size < infoHeaderSize) return std::nullopt;
  const std::string_view header = file.substr(fileHeaderSize);
  if (header.size() < size) return std::nullopt;
  return size == coreHeaderSize ? readCoreHeader(header) : readInfoHeader(header, size);
}

// Masks stand behind the shortest header that knows them, and in the longer ones.
std::uint64_t masksSize(const BitmapHeader& header) {
  if (header.size != infoHeaderSize) return 0;
  if (header.compression == compression::bitFields) return 12;
  return header.compression == compression::alphaBitFields ? 16 : 0;
}

std::uint64_t paletteSize(const BitmapHeader& header) {
  if (header.bits == 0 || header.bits > 8) return 0;
  const std::uint32_t possible = 1U << header.bits;
  const std::uint32_t used =
      header.coloursUsed == 0 ? possible : std::min(header.coloursUsed, possible);
  return std::uint64_t{used} * (header.size == coreHeaderSize ? 3 : 4);
}

// Nothing when the header does not say.
std::optional<std::uint64_t> pixelsSize(const BitmapHeader& header) {
  switch (header.compression) {
    case compression::none:
    case compression::bitFields:
    case compression::alphaBitFields: {
      const std::uint64_t row = (static_cast<std::uint64_t>(header.width) * header.bits + 31) / 32;
      return row * 4 * static_cast<std::uint64_t>(header.height);
    }
    default:
      if (header.compressedSize == 0) return std::nullopt;
      return header.compressedSize;
  }
}

bool isPossibleSide(std::int64_t side) {
  return side >= 1 && side <= largestSide;
}

}  // namespace

bool isWholeBitmapFile(std::string_view content) {
  const std::optional<BitmapHeader> header = readBitmapHeader(content);
  if (!header || !isPossibleSide(header->width) || !isPossibleSide(header->height)) return false;
  const std::uint64_t colours =
      fileHeaderSize + header->size + masksSize(*header) + paletteSize(*header);
  const std::uint32_t given = numberAt(content, 10, 4);
  const std::uint64_t pixelsAt = given == 0 ? colours : given;
  const std::optional<std::uint64_t> pixels = pixelsSize(*header);
  return pixels && colours <= content.size() && pixelsAt + *pixels <= content.size();
}

}  // namespace pelorin
