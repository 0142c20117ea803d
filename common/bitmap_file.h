// Whether a bitmap file holds what its header promises. The platform's own reader believes the
// header, and reads on behind the end of a file that was cut short.
#pragma once

#include <string_view>

namespace pelorin {

// Whatever the depth and compression. False also for what is no bitmap file, and for sides beyond
// 65536.
bool isWholeBitmapFile(std::string_view content);

}  // namespace pelorin
