#include <filesystem>
#include <fstream>

#include "tests/windows/views/desk.h"
#include "tests/windows/views/sample_form.h"
#include "win32/views/window_picture.h"

namespace pelorin::test {

namespace {

class Pictures : public Desk {};

std::filesystem::path pictureFile(const std::string& name) {
  return std::filesystem::temp_directory_path() / (name + ".bmp");
}

}  // namespace

TEST_F(Pictures, AWindowIsSavedAsItsOwnSize) {
  SampleForm form;
  open(form);
  RECT bounds{};
  GetWindowRect(windowOf(form), &bounds);
  const auto file = pictureFile("pelorin-sample");
  ASSERT_TRUE(saveWindowPicture(windowOf(form), file));
  const auto rowBytes = static_cast<std::uintmax_t>(((bounds.right - bounds.left) * 3 + 3) / 4 * 4);
  EXPECT_EQ(std::filesystem::file_size(file),
            54 + rowBytes * static_cast<std::uintmax_t>(bounds.bottom - bounds.top));
}

}  // namespace pelorin::test
