#include "location/location_nodes.h"

#include "location/node_images.h"

namespace pelorin {

NodeTexts folderTexts(std::string key, std::string text, std::string tag) {
  return {std::move(key), std::move(text), std::move(tag), node_image::folder,
          node_image::openFolder};
}

RecordSet LocationNodes::rows(const std::string& sql, SourceLine where) const {
  stopWhenClosed();
  RecordSet rows = module_.DBConnection(where)->open(sql, where);
  rows.drain();
  return rows;
}

TreeNode& LocationNodes::add(TreeNode* parent, NodeTexts texts) {
  stopWhenClosed();
  TreeNode* added = tree_.tryAdd(parent, texts);
  if (added != nullptr) return *added;
  texts.key = freeKey(texts.key);
  return tree_.add(parent, std::move(texts));
}

std::string LocationNodes::freeKey(const std::string& key) {
  int& copies = copies_.try_emplace(key, 1).first->second;
  std::string free;
  do {
    free = key + '#' + std::to_string(++copies);
  } while (tree_.find(free) != nullptr);
  return free;
}

void LocationNodes::stopWhenClosed() const {
  if (!wanted_() || module_.connectionLost()) throw AlreadyReported{};
}

}  // namespace pelorin
