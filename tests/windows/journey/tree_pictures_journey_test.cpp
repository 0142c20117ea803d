// The picker's tree as the operator sees it: every node with its picture, and the one that it has
// while it is selected.
#include <filesystem>
#include <fstream>
#include <regex>

#include "host/core/resource_texts.h"
#include "tests/windows/journey/journey.h"
#include "win32/text/windows_api.h"

namespace pelorin::test {
namespace {

constexpr std::int32_t dialUpFolderText = 1843;

// "    PA2 |Serial port COM3| 34/34 |001.02" of the expected tree becomes
// "    Serial port COM3| 34/34".
std::vector<std::string> expectedPictures() {
  const auto file =
      std::filesystem::path(_wgetenv(L"PELORIN_ROOT")) / "tests/location/demo_tree.txt";
  std::ifstream tree(file);
  const std::regex keyAndTag(R"(^( *)\S+ \|(.*\| [0-9/]+) \|.*$)");
  std::vector<std::string> lines;
  for (std::string line; std::getline(tree, line);) {
    std::string seen = std::regex_replace(line, keyAndTag, "$1$2");
    if (seen.find("Dial-up|") != std::string::npos) {
      seen.replace(seen.find("Dial-up"), 7, host::resourceText(dialUpFolderText));
    }
    lines.push_back(std::move(seen));
  }
  return lines;
}

// Opens the node and all below it.
void appendShown(std::vector<std::string>& lines, HWND tree, HTREEITEM node, std::size_t depth) {
  TVITEMW item{};
  item.mask = TVIF_HANDLE | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
  item.hItem = node;
  SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  lines.push_back(std::string(2 * depth, ' ') + driver::nodeText(tree, node) + "| " +
                  std::to_string(item.iImage + 1) + "/" + std::to_string(item.iSelectedImage + 1));
  SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(node));
  for (const HTREEITEM child : driver::childrenOf(tree, node)) {
    appendShown(lines, tree, child, depth + 1);
  }
}

int cellsOfTheFile() {
  const auto file = std::filesystem::path(_wgetenv(L"PELORIN_DIST")) / "Graphics/pcDetail.bmp";
  auto* const strip =
      static_cast<HBITMAP>(LoadImageW(nullptr, file.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE));
  BITMAP size{};
  GetObjectW(strip, sizeof size, &size);
  DeleteObject(strip);
  return static_cast<int>(size.bmWidth) / 16;
}

using TreePicturesJourney = Journey;

TEST_F(TreePicturesJourney, EveryNodeHasThePicturesOfItsKind) {
  const HWND tree = driver::control(openPicker(openEditor(), "cmdAddLocation"), "tvTree");
  auto* const images = reinterpret_cast<HIMAGELIST>(SendMessageW(tree, TVM_GETIMAGELIST, 0, 0));
  EXPECT_EQ(ImageList_GetImageCount(images), cellsOfTheFile());
  std::vector<std::string> shown;
  host.ui().run([&] {
    SendMessageW(tree, WM_SETREDRAW, FALSE, 0);
    appendShown(shown, tree, driver::childrenOf(tree, nullptr).at(0), 0);
  });
  EXPECT_EQ(shown, expectedPictures());
}

}  // namespace
}  // namespace pelorin::test
