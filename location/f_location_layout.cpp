// How the picker's controls follow its size. The bottom row and the tree leave the sides a gap of
// their own, another one than in the design, and widths follow in proportion: no anchor says that.
#include <algorithm>

#include "location/f_location.h"

namespace pelorin {

void FLocation::placeControls() {
  constexpr int gap = 80;
  const Size client = MhStretch1.extents();
  for (Control* label : std::initializer_list<Control*>{&Label1, &lblLocation, &txtCaption}) {
    Place place = label->design().place();
    place.width = MhStretch1.width(place.width);
    label->setPlace(place);
  }
  const DesignPlace& tree = tvTree.design();
  const DesignPlace& button = cmdMain[okButton].design();
  const int buttonTop = std::max(tree.top + gap, client.height - gap - button.height);
  const auto placeButton = [&](int index, int left) {
    cmdMain[static_cast<std::size_t>(index)].setPlace(
        {left, buttonTop, button.width, button.height});
  };
  const int closeLeft = client.width - gap - button.width;
  placeButton(helpButton, gap);
  placeButton(closeButton, closeLeft);
  placeButton(okButton, closeLeft - gap - button.width);
  tvTree.setPlace({gap, tree.top, std::max(0, client.width - 2 * gap), buttonTop - gap - tree.top});
}

}  // namespace pelorin
