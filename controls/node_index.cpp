#include "controls/node_index.h"

#include <algorithm>
#include <utility>

#include "base/text_key.h"
#include "controls/tree_view.h"

namespace pelorin {

namespace {

constexpr std::size_t firstSize = 64;

}  // namespace

// Keys that differ in their last character only lie side by side, so that nodes of consecutive rows
// meet memory that is at hand.
NodeIndex::Hash NodeIndex::hashOf(std::string_view key) {
  constexpr Hash eitherCase = 0x20;
  if (key.empty()) return 1;
  const Hash last = static_cast<unsigned char>(key.back()) | eitherCase;
  key.remove_suffix(1);
  const Hash hash = static_cast<Hash>(NoCaseHash{}(key)) ^ last;
  return hash == 0 ? 1 : hash;
}

std::size_t NodeIndex::slotOf(std::string_view key, Hash hash) const {
  std::size_t slot = home(hash);
  while (hashes_[slot] != 0) {
    if (hashes_[slot] == hash && equalNoCase(nodes_[slot]->key, key)) break;
    slot = next(slot);
  }
  return slot;
}

TreeNode* NodeIndex::find(std::string_view key) const {
  if (hashes_.empty()) return nullptr;
  const std::size_t slot = slotOf(key, hashOf(key));
  return hashes_[slot] == 0 ? nullptr : nodes_[slot];
}

bool NodeIndex::insert(TreeNode& node) {
  if (2 * (count_ + 1) > hashes_.size()) grow();
  const Hash hash = hashOf(node.key);
  const std::size_t slot = slotOf(node.key, hash);
  if (hashes_[slot] != 0) return false;
  hashes_[slot] = hash;
  nodes_[slot] = &node;
  ++count_;
  return true;
}

void NodeIndex::grow() {
  const std::size_t size = std::max(firstSize, 2 * hashes_.size());
  const std::vector<Hash> oldHashes = std::exchange(hashes_, std::vector<Hash>(size));
  const std::vector<TreeNode*> oldNodes = std::exchange(nodes_, std::vector<TreeNode*>(size));
  for (std::size_t old = 0; old < oldHashes.size(); ++old) {
    if (oldHashes[old] == 0) continue;
    std::size_t slot = home(oldHashes[old]);
    while (hashes_[slot] != 0) slot = next(slot);
    hashes_[slot] = oldHashes[old];
    nodes_[slot] = oldNodes[old];
  }
}

void NodeIndex::erase(const TreeNode& node) {
  if (hashes_.empty()) return;
  const std::size_t slot = slotOf(node.key, hashOf(node.key));
  if (hashes_[slot] == 0 || nodes_[slot] != &node) return;
  fillGap(slot);
  --count_;
}

// Moves what stands behind the gap forward, as long as that brings it nearer to where it belongs.
void NodeIndex::fillGap(std::size_t gap) {
  const std::size_t mask = hashes_.size() - 1;
  for (std::size_t slot = next(gap); hashes_[slot] != 0; slot = next(slot)) {
    const std::size_t distance = (slot - home(hashes_[slot])) & mask;
    if (distance < ((slot - gap) & mask)) continue;
    hashes_[gap] = hashes_[slot];
    nodes_[gap] = nodes_[slot];
    gap = slot;
  }
  hashes_[gap] = 0;
}

void NodeIndex::clear() {
  hashes_.clear();
  nodes_.clear();
  count_ = 0;
}

}  // namespace pelorin
