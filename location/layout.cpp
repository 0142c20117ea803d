#include "location/layout.h"

#include <algorithm>

namespace pelorin {

namespace {

constexpr int gap = 80;
constexpr int treeTop = 810;
constexpr int buttonWidth = 1005;
constexpr int buttonHeight = 375;

}  // namespace

LocationLayout designLayout() {
  LocationLayout design;
  design.label1 = {90, 135, 4380, 420};
  design.locationLabel = {90, 585, 735, 195};
  design.location = {1080, 585, 3435, 195};
  design.captionLabel = {90, 195, 960, 195};
  design.caption = {1080, 135, 3435, 315};
  design.tree = {90, treeTop, 4965, 4335};
  design.ok = {2925, 5310, buttonWidth, buttonHeight};
  design.close = {4050, 5310, buttonWidth, buttonHeight};
  design.help = {90, 5310, buttonWidth, buttonHeight};
  return design;
}

LocationLayout layOut(const MhStretch& stretch) {
  const Size client = stretch.extents();
  LocationLayout layout = designLayout();
  for (Place* label : {&layout.label1, &layout.location, &layout.caption}) {
    label->width = stretch.width(label->width);
  }
  const int buttonTop = std::max(treeTop + gap, client.height - gap - buttonHeight);
  const int closeLeft = client.width - gap - buttonWidth;
  layout.help = {gap, buttonTop, buttonWidth, buttonHeight};
  layout.close = {closeLeft, buttonTop, buttonWidth, buttonHeight};
  layout.ok = {closeLeft - gap - buttonWidth, buttonTop, buttonWidth, buttonHeight};
  layout.tree = {gap, treeTop, std::max(0, client.width - 2 * gap), buttonTop - gap - treeTop};
  return layout;
}

}  // namespace pelorin
