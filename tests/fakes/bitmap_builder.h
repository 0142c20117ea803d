// Bitmap files for tests, of any layout, and the picture of a strip.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "common/picture.h"

namespace pelorin::test {

struct BitmapFile {
  std::int32_t width = 2;
  std::int32_t height = 2;  // negative: top row first
  std::uint16_t bits = 24;
  std::uint32_t compression = 0;
  std::uint32_t compressedSize = 0;
  std::uint32_t coloursUsed = 0;
  std::vector<std::uint32_t> palette = {};  // 0x00RRGGBB; or the masks of bit fields
  std::string rows = {};                    // as they stand in the file, padded
};

inline std::string littleEndian(std::uint32_t number, int width) {
  std::string bytes;
  for (int i = 0; i < width; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
  return bytes;
}

inline std::string fileOf(const BitmapFile& file) {
  std::string palette;
  for (std::uint32_t colour : file.palette) palette += littleEndian(colour, 4);
  const auto pixelsAt = static_cast<std::uint32_t>(14 + 40 + palette.size());
  const auto size = static_cast<std::uint32_t>(pixelsAt + file.rows.size());
  std::string bytes = "BM" + littleEndian(size, 4) + littleEndian(0, 4) + littleEndian(pixelsAt, 4);
  bytes += littleEndian(40, 4) + littleEndian(static_cast<std::uint32_t>(file.width), 4) +
           littleEndian(static_cast<std::uint32_t>(file.height), 4) + littleEndian(1, 2) +
           littleEndian(file.bits, 2) + littleEndian(file.compression, 4) +
           littleEndian(file.compressedSize, 4) + littleEndian(0, 4) + littleEndian(0, 4) +
           littleEndian(file.coloursUsed, 4) + littleEndian(0, 4);
  return bytes + palette + file.rows;
}

// 16 high, opaque; cell n (from 1) is coloured n all over.
inline Picture stripPicture(int cells) {
  Picture picture{16 * cells, 16, {}};
  for (int pixel = 0; pixel < 16 * 16 * cells; ++pixel) {
    const auto cell = static_cast<std::uint32_t>(pixel % (16 * cells) / 16 + 1);
    picture.pixels.push_back(0xFF000000U | cell);
  }
  return picture;
}

}  // namespace pelorin::test
