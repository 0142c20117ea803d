// A tree's native twin.
#include "win32/views/form_window.h"
#include "win32/views/image_strip.h"
#include "win32/views/peers.h"
#include "win32/views/tree_items.h"

namespace pelorin {

namespace {

class TreePeer final : public Peer {
 public:
  TreePeer(FormWindow& window, TreeView& tree) : Peer(window, tree), tree_(tree) {}

  LRESULT onNotify(NMHDR& header) override {
    switch (header.code) {
      case static_cast<UINT>(TVN_ITEMEXPANDINGW):
        expanding(reinterpret_cast<const NMTREEVIEWW&>(header));
        return 0;
      case static_cast<UINT>(TVN_ITEMEXPANDEDW):
        expanded(reinterpret_cast<const NMTREEVIEWW&>(header));
        return 0;
      case static_cast<UINT>(TVN_SELCHANGEDW):
        act(selectAct);
        return 0;
      case static_cast<UINT>(NM_CLICK):
        if (itemAtPointer() != nullptr) act(selectAct | clickAct);
        return 0;
      case static_cast<UINT>(NM_DBLCLK):
        if (itemAtPointer() != nullptr) act(selectAct | doubleClickAct);
        return 0;
      default:
        return 0;
    }
  }

  void resolutionChanged() override {
    Peer::resolutionChanged();
    showImages();
  }

 protected:
  NativeKind nativeKind() const override {
    return {WC_TREEVIEWW,
            WS_TABSTOP | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS |
                TVS_DISABLEDRAGDROP,
            WS_EX_CLIENTEDGE};
  }

  void fill() override {
    items_ = std::make_unique<TreeItems>(hwnd(), tree_);
    showImages();
    items_->follow();
    showSelection();
  }

  void apply(Aspects changed) override {
    if ((changed & bit(Aspect::Columns)) != 0) showImages();
    if ((changed & bit(Aspect::Items)) != 0) {
      const RedrawHeld held(hwnd());
      items_->follow();
    }
    if ((changed & (bit(Aspect::Items) | bit(Aspect::Selection))) != 0) showSelection();
  }

  LRESULT handle(UINT message, WPARAM w, LPARAM l) override {
    if (message == WM_CHAR && live()) tree_.userKey(static_cast<char32_t>(w));
    return native(message, w, l);
  }

  void runActs(unsigned acts) override {
    TreeNode* node = items_->nodeOf(selectedItem());
    const bool moved = node != nullptr && node != tree_.selectedNode();
    if (node != nullptr && (moved || (acts & clickAct) != 0)) tree_.userSelect(*node);
    if (live() && (acts & doubleClickAct) != 0) tree_.userDoubleClick();
  }

 private:
  static constexpr unsigned selectAct = 1;
  static constexpr unsigned clickAct = 2;
  static constexpr unsigned doubleClickAct = 4;

  HTREEITEM selectedItem() const { return TreeView_GetSelection(hwnd()); }

  HTREEITEM itemAtPointer() const {
    const DWORD position = GetMessagePos();
    TVHITTESTINFO hit{};
    hit.pt = {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
    ScreenToClient(hwnd(), &hit.pt);
    auto* const item = TreeView_HitTest(hwnd(), &hit);
    return (hit.flags & TVHT_ONITEM) != 0 ? item : nullptr;
  }

  void expanding(const NMTREEVIEWW& notice) {
    if ((notice.action & TVE_EXPAND) == 0) return;
    const Applying quiet(*this);
    const RedrawHeld held(hwnd());
    items_->makeChildren(notice.itemNew.hItem);
  }

  void expanded(const NMTREEVIEWW& notice) {
    if (applying() || !live()) return;
    if (TreeNode* node = items_->nodeOf(notice.itemNew.hItem)) {
      tree_.userExpand(*node, (notice.action & TVE_EXPAND) != 0);
    }
  }

  void showImages() {
    ImageList images = makeImageList(tree_.images(), window().dpi());
    TreeView_SetImageList(hwnd(), images.get(), TVSIL_NORMAL);
    images_ = std::move(images);
  }

  void showSelection() {
    const HTREEITEM item =
        tree_.selectedNode() == nullptr ? nullptr : items_->reach(*tree_.selectedNode());
    if (item == selectedItem()) return;
    TreeView_SelectItem(hwnd(), item);
    if (item != nullptr) TreeView_EnsureVisible(hwnd(), item);
  }

  TreeView& tree_;
  ImageList images_;
  std::unique_ptr<TreeItems> items_;
};

}  // namespace

std::unique_ptr<Peer> makeTreePeer(FormWindow& window, TreeView& tree) {
  return std::make_unique<TreePeer>(window, tree);
}

}  // namespace pelorin
