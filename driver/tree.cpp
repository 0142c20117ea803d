#include "driver/tree.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "driver/find_window.h"
#include "driver/operate.h"
#include "driver/waiting.h"
#include "win32/text/utf16.h"

namespace pelorin::driver {

namespace {

HTREEITEM nextItem(HWND tree, HTREEITEM node, UINT which) {
  return reinterpret_cast<HTREEITEM>(
      SendMessageW(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(node)));
}

bool hasChildren(HWND tree, HTREEITEM node) {
  TVITEMW item{};
  item.mask = TVIF_HANDLE | TVIF_CHILDREN;
  item.hItem = node;
  SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  return item.cChildren != 0;
}

// A tree that scrolls at the click would take it for a click on another node.
RECT textPlace(HWND tree, HTREEITEM node) {
  SendMessageW(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(node));
  RECT place{};
  std::memcpy(&place, &node, sizeof(HTREEITEM));  // the message takes the node where the place goes
  SendMessageW(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place));
  return place;
}

// The mark stands somewhere left of the picture.
POINT markPlace(HWND tree, HTREEITEM node) {
  const RECT text = textPlace(tree, node);
  TVHITTESTINFO hit{};
  hit.pt = {text.left, (text.top + text.bottom) / 2};
  for (; hit.pt.x >= 0; --hit.pt.x) {
    SendMessageW(tree, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if ((hit.flags & TVHT_ONITEMBUTTON) != 0) return hit.pt;
  }
  throw DriverError("node without a mark: " + nodeText(tree, node));
}

}  // namespace

std::string nodeText(HWND tree, HTREEITEM node) {
  std::array<wchar_t, 512> text{};
  TVITEMW item{};
  item.mask = TVIF_HANDLE | TVIF_TEXT;
  item.hItem = node;
  item.pszText = text.data();
  item.cchTextMax = static_cast<int>(text.size());
  SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  return toUtf8(item.pszText);
}

std::vector<HTREEITEM> childrenOf(HWND tree, HTREEITEM parent) {
  std::vector<HTREEITEM> children;
  HTREEITEM child =
      parent == nullptr ? nextItem(tree, nullptr, TVGN_ROOT) : nextItem(tree, parent, TVGN_CHILD);
  for (; child != nullptr; child = nextItem(tree, child, TVGN_NEXT)) children.push_back(child);
  return children;
}

bool isExpanded(HWND tree, HTREEITEM node) {
  const LRESULT state =
      SendMessageW(tree, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(node), TVIS_EXPANDED);
  return (state & TVIS_EXPANDED) != 0;
}

HTREEITEM selectedNode(HWND tree) {
  return nextItem(tree, nullptr, TVGN_CARET);
}

POINT nodePlace(HWND tree, HTREEITEM node) {
  return middleOf(textPlace(tree, node));
}

void expand(HWND tree, HTREEITEM node) {
  if (isExpanded(tree, node)) return;
  clickAt(tree, markPlace(tree, node));
  waitFor("open node " + nodeText(tree, node),
          [&] { return isExpanded(tree, node) || !hasChildren(tree, node); });
}

HTREEITEM openPath(HWND tree, const std::vector<std::string>& captions) {
  HTREEITEM node = nullptr;
  for (const std::string& caption : captions) {
    if (node != nullptr) expand(tree, node);
    const std::vector<HTREEITEM> children = childrenOf(tree, node);
    const auto found = std::find_if(children.begin(), children.end(), [&](HTREEITEM child) {
      return nodeText(tree, child) == caption;
    });
    if (found == children.end()) throw DriverError("no node " + caption);
    node = *found;
  }
  return node;
}

void clickNode(HWND tree, HTREEITEM node) {
  clickAt(tree, nodePlace(tree, node));
  waitFor("selected node", [&] { return selectedNode(tree) == node; });
}

void doubleClickNode(HWND tree, HTREEITEM node) {
  clickNode(tree, node);
  doubleClickAt(tree, nodePlace(tree, node));
}

HTREEITEM findNode(HWND tree, const std::function<bool(HTREEITEM)>& wanted) {
  const std::function<HTREEITEM(HTREEITEM)> searchBelow = [&](HTREEITEM parent) -> HTREEITEM {
    for (const HTREEITEM child : childrenOf(tree, parent)) {
      if (wanted(child)) return child;
      if (!hasChildren(tree, child)) continue;
      expand(tree, child);
      if (const HTREEITEM found = searchBelow(child)) return found;
    }
    return nullptr;
  };
  return searchBelow(nullptr);
}

}  // namespace pelorin::driver
