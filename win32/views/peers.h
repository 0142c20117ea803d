// One peer for each kind of control.
#pragma once

#include "controls/grid.h"
#include "controls/item_lists.h"
#include "controls/list_view.h"
#include "controls/simple_controls.h"
#include "controls/tab_control.h"
#include "controls/tree_view.h"
#include "win32/views/peer.h"

namespace pelorin {

std::unique_ptr<Peer> makeLabelPeer(FormWindow& window, Label& label);
std::unique_ptr<Peer> makeGroupPeer(FormWindow& window, Frame& group);
std::unique_ptr<Peer> makeButtonPeer(FormWindow& window, Button& button);
std::unique_ptr<Peer> makeCheckBoxPeer(FormWindow& window, CheckBox& box);
std::unique_ptr<Peer> makeTextBoxPeer(FormWindow& window, TextBox& box);
std::unique_ptr<Peer> makeComboPeer(FormWindow& window, ComboBox& combo);
std::unique_ptr<Peer> makeListBoxPeer(FormWindow& window, ListBox& list);
std::unique_ptr<Peer> makeListViewPeer(FormWindow& window, ListView& list);
std::unique_ptr<Peer> makeTreePeer(FormWindow& window, TreeView& tree);
std::unique_ptr<Peer> makeGridPeer(FormWindow& window, Grid& grid);
std::unique_ptr<Peer> makeTabPeer(FormWindow& window, TabControl& tabs);

}  // namespace pelorin
