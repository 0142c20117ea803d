// Finds a tree's nodes by their keys, without regard to case. A hundred thousand nodes are added in
// a moment: the index holds hashes and pointers and leaves the keys in the nodes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace pelorin {

class TreeNode;

class NodeIndex {
 public:
  // Null when no node has the key.
  TreeNode* find(std::string_view key) const;
  // False when the node's key is taken. The key must not change while the node is in the index.
  bool insert(TreeNode& node);
  void erase(const TreeNode& node);
  void clear();
  std::size_t size() const noexcept { return count_; }

 private:
  using Hash = std::uint32_t;  // never 0, which marks a free slot

  static Hash hashOf(std::string_view key);
  std::size_t home(Hash hash) const { return hash & (hashes_.size() - 1); }
  std::size_t next(std::size_t slot) const { return (slot + 1) & (hashes_.size() - 1); }
  // Where the key is, or else the free slot where it belongs. There must be a free one.
  std::size_t slotOf(std::string_view key, Hash hash) const;
  void grow();
  void fillGap(std::size_t gap);

  // Apart, so that the search for a key that is not there reads little memory. None, or a power of
  // two of them; at most half of them in use.
  std::vector<Hash> hashes_;
  std::vector<TreeNode*> nodes_;
  std::size_t count_ = 0;
};

}  // namespace pelorin
