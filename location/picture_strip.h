// The pictures of the tree's nodes, cut from one strip.
#pragma once

#include "common/picture.h"
#include "controls/tree_view.h"

namespace pelorin {

// Cuts the picture into cells from left to right; what is left at the right and below the first 16
// rows is dropped. In a picture without alpha a colour is transparent when the top left pixel of
// every cell has it.
ImageStrip cutIntoCells(const Picture& picture);

}  // namespace pelorin
