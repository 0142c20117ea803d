// What stands in each folder of a controller: one line of data per kind of folder.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace pelorin {

enum class ItemRule { All, ExpansionInputs, ExpansionRelays };

struct FolderQuery {
  std::string_view folderPrefix;  // first two characters of the folder's key
  std::string_view beforeController;
  std::string_view afterController;
  std::string_view itemPrefix;
  std::string_view textField;
  int image;  // where every row is listed; the rules for expansion boards choose their own
  ItemRule rule = ItemRule::All;

  std::string statement(std::int32_t controllerId) const;
};

// Null when no folder has that prefix.
const FolderQuery* folderQuery(std::string_view folderPrefix);

}  // namespace pelorin
