// The one rule that tells locations from groupings, and how a location is written.
#pragma once

#include <string>

#include "controls/tree_view.h"

namespace pelorin {

// A tag that is empty or begins with "!" makes the node a grouping.
inline bool isLocation(const TreeNode& node) {
  return !node.tag.empty() && node.tag.front() != '!';
}

// The address comes first, so that the first word of the text gives it back.
inline std::string locationText(const TreeNode& node) {
  return node.tag + " - " + node.text;
}

}  // namespace pelorin
