// Where the picker's controls stand, in twips.
#pragma once

#include "controls/form.h"
#include "location/mh_stretch.h"

namespace pelorin {

struct LocationLayout {
  Place label1;
  Place locationLabel;
  Place location;
  Place captionLabel;
  Place caption;
  Place tree;
  Place ok;
  Place close;
  Place help;
};

// As designed, for a client area of 5145 x 5820.
LocationLayout designLayout();

// For the stretch's extents: the tree fills the space between the labels and the buttons, which
// keep their row along the bottom edge; the labels' widths follow in proportion.
LocationLayout layOut(const MhStretch& stretch);

}  // namespace pelorin
