// What the builders of the location tree share: rows of the database, nodes of the tree, and errors
// that stop one branch but not the others.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "base/text_key.h"
#include "common/guard.h"
#include "controls/tree_view.h"

namespace pelorin {

// Texts of a node that shows a folder: closed, and open while it is selected.
NodeTexts folderTexts(std::string key, std::string text, std::string tag = {});

class LocationNodes {
 public:
  // `wanted` tells whether the window is still there: a report's box lets the host run, and the
  // operator may close the picker meanwhile. From then on, or when the connection is lost, rows()
  // and add() throw AlreadyReported, which ends the building without a further report.
  LocationNodes(Module1& module, TreeView& tree, std::function<bool()> wanted)
      : module_(module), tree_(tree), wanted_(std::move(wanted)) {}

  Module1& module() const noexcept { return module_; }
  TreeView& tree() const noexcept { return tree_; }

  // Every row of a statement, fetched already, so that inner statements can run between them.
  RecordSet rows(const std::string& sql, SourceLine where = SourceLine::current()) const;

  // Adds a root (parent null) or the last child of `parent`. A key that is taken gets a suffix
  // ("CA7#2"), so that every row stands under its own parent.
  TreeNode& add(TreeNode* parent, NodeTexts texts);

  // Reports an error of `work` under the procedure's name; the tree counts as incomplete then.
  template <class Work>
  void building(std::string_view procedure, Work&& work) {
    if (!guarded(module_, procedure, std::forward<Work>(work))) complete_ = false;
  }

  // The same, but the tree counts as complete all the same.
  template <class Work>
  void populating(std::string_view procedure, Work&& work) {
    guarded(module_, procedure, std::forward<Work>(work));
  }

  bool complete() const noexcept { return complete_; }

 private:
  void stopWhenClosed() const;
  std::string freeKey(const std::string& key);

  Module1& module_;
  TreeView& tree_;
  std::function<bool()> wanted_;
  bool complete_ = true;
  std::unordered_map<std::string, int, NoCaseHash, NoCaseEqual> copies_;  // of taken keys
};

}  // namespace pelorin
