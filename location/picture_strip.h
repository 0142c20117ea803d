// The pictures of the tree's nodes, cut from one strip.
#pragma once

#include "controls/tree_view.h"
#include "location/bitmap.h"

namespace pelorin {

// Cuts the bitmap into cells from left to right; what is left at the right and below the first 16
// rows is dropped. In a bitmap without alpha the colour of its top left pixel is transparent.
ImageStrip cutIntoCells(const Bitmap& bitmap);

}  // namespace pelorin
