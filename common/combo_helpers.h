// Small helpers on drop-down lists.
#pragma once

#include <cstdint>

#include "controls/item_lists.h"

namespace pelorin {

// Selects the first row whose item data equals `itemData`; with none the selection stays.
void SelectComboItemByData(ComboBox& combo, std::int32_t itemData);

// Selects the first row, if there is one.
void selectFirstRow(ComboBox& combo);

}  // namespace pelorin
