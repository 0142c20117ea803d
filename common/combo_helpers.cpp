#include "common/combo_helpers.h"

namespace pelorin {

void SelectComboItemByData(ComboBox& combo, std::int32_t itemData) {
  for (int index = 0; index < combo.listCount(); ++index) {
    if (combo.row(index).itemData == itemData) {
      combo.setListIndex(index);
      return;
    }
  }
}

void selectFirstRow(ComboBox& combo) {
  if (combo.listCount() > 0) combo.setListIndex(0);
}

}  // namespace pelorin
