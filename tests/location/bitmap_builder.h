// Bitmap files for tests, of any layout.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace pelorin::test {

struct BitmapFile {
  std::int32_t width = 2;
  std::int32_t height = 2;  // negative: top row first
  std::uint16_t bits = 24;
  std::uint32_t compression = 0;
  std::uint32_t coloursUsed = 0;
  std::vector<std::uint32_t> palette = {};  // 0x00RRGGBB
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
           littleEndian(file.bits, 2) + littleEndian(file.compression, 4) + littleEndian(0, 4) +
           littleEndian(0, 4) + littleEndian(0, 4) + littleEndian(file.coloursUsed, 4) +
           littleEndian(0, 4);
  return bytes + palette + file.rows;
}

// A 24-bit strip, 16 high, whose cell n (from 1) is coloured n all over.
inline std::string stripFile(int cells) {
  BitmapFile file{.width = 16 * cells, .height = 16, .bits = 24};
  for (int row = 0; row < 16; ++row) {
    for (int x = 0; x < 16 * cells; ++x) {
      file.rows += littleEndian(static_cast<std::uint32_t>(x / 16 + 1), 3);
    }
  }
  return fileOf(file);
}

}  // namespace pelorin::test
