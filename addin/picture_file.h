// Bitmap files, read by the platform.
#pragma once

#include <string>

#include "common/picture.h"

namespace pelorin {

// Error 53 when the file is missing, 75 when it cannot be read, 481 when it is damaged or no
// picture; all name it. Where a 32-bit file uses its fourth byte it is alpha.
Picture readPictureFile(const std::string& path);

}  // namespace pelorin
