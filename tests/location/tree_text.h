// A tree as text, to be compared whole: a line per node, indented by its depth.
//
//   SA | Hardware| 3/1 |
//     LA1 | Lumet Configuration (MAIN)| 3/1 |\\MAIN.001
#pragma once

#include <string>

#include "controls/tree_view.h"

namespace pelorin::test {

std::string treeText(const TreeView& tree);
// The lines of the nodes below `parent`.
std::string childrenText(const TreeNode& parent);

}  // namespace pelorin::test
