// The pictures of a tree as a native image list.
#pragma once

#include "controls/tree_view.h"
#include "win32/views/handles.h"

namespace pelorin {

// Edge of a picture at that resolution; 16 pixels at 96.
int pictureSize(int dpi) noexcept;

// Empty when the strip has no cells.
ImageList makeImageList(const ImageStrip& strip, int dpi);

}  // namespace pelorin
