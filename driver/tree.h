// A tree of nodes with captions.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "win32/text/windows_api.h"

namespace pelorin::driver {

std::string nodeText(HWND tree, HTREEITEM node);
std::vector<HTREEITEM> childrenOf(HWND tree, HTREEITEM parent);  // of the roots' parent when null

// Opens the nodes on the way, by a click on their mark. DriverError naming the caption that is not
// there.
HTREEITEM openPath(HWND tree, const std::vector<std::string>& captions);
void expand(HWND tree, HTREEITEM node);

bool isExpanded(HWND tree, HTREEITEM node);
HTREEITEM selectedNode(HWND tree);  // null when there is none
// Where to click for the node, in the tree's pixels, once it is in sight.
POINT nodePlace(HWND tree, HTREEITEM node);

void clickNode(HWND tree, HTREEITEM node);
void doubleClickNode(HWND tree, HTREEITEM node);

// Goes through the nodes from the top, opening them as needed; the first that is wanted, else null.
HTREEITEM findNode(HWND tree, const std::function<bool(HTREEITEM)>& wanted);

}  // namespace pelorin::driver
