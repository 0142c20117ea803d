#include "win32/views/peers.h"

namespace pelorin {

std::unique_ptr<Peer> makePeer(FormWindow& window, Control& control) {
  switch (control.kind()) {
    case ControlKind::Label:
      return makeLabelPeer(window, static_cast<Label&>(control));
    case ControlKind::TextBox:
      return makeTextBoxPeer(window, static_cast<TextBox&>(control));
    case ControlKind::CheckBox:
      return makeCheckBoxPeer(window, static_cast<CheckBox&>(control));
    case ControlKind::Button:
      return makeButtonPeer(window, static_cast<Button&>(control));
    case ControlKind::ComboBox:
      return makeComboPeer(window, static_cast<ComboBox&>(control));
    case ControlKind::ListBox:
      return makeListBoxPeer(window, static_cast<ListBox&>(control));
    case ControlKind::ListView:
      return makeListViewPeer(window, static_cast<ListView&>(control));
    case ControlKind::TreeView:
      return makeTreePeer(window, static_cast<TreeView&>(control));
    case ControlKind::Grid:
      return makeGridPeer(window, static_cast<Grid&>(control));
    case ControlKind::TabControl:
      return makeTabPeer(window, static_cast<TabControl&>(control));
    case ControlKind::Frame:
      return makeGroupPeer(window, static_cast<Frame&>(control));
  }
  return nullptr;
}

}  // namespace pelorin
