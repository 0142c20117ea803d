// A report list's native twin.
#include "win32/views/peers.h"
#include "win32/views/report_peer.h"

namespace pelorin {

namespace {

class ListViewPeer final : public ReportPeer {
 public:
  ListViewPeer(FormWindow& window, ListView& list) : ReportPeer(window, list), list_(list) {}

 protected:
  std::vector<Column> columns() const override {
    std::vector<Column> result;
    for (const ListColumn& column : list_.columns()) {
      result.push_back({column.header, column.width});
    }
    return result;
  }
  int rowCount() const override { return list_.count(); }
  std::string cellText(int row, int column) const override {
    if (!exists(row)) return {};
    const ListItem& item = list_.item(row + 1);
    if (column == 0) return item.text;
    const auto further = static_cast<std::size_t>(column - 1);
    return further < item.subItems.size() ? item.subItems[further] : std::string();
  }
  bool hasChecks() const override { return list_.checkBoxes(); }
  bool isChecked(int row) const override { return exists(row) && list_.item(row + 1).checked; }
  int currentRow() const override { return list_.selectedIndex() - 1; }

  void rowPicked(int row) override {
    if (row < list_.count()) list_.userSelect(row + 1);
  }
  void checkClicked(int row) override {
    if (exists(row)) list_.userCheck(row + 1, !list_.item(row + 1).checked);
  }

 private:
  bool exists(int row) const { return row >= 0 && row < list_.count(); }

  ListView& list_;
};

}  // namespace

std::unique_ptr<Peer> makeListViewPeer(FormWindow& window, ListView& list) {
  return std::make_unique<ListViewPeer>(window, list);
}

}  // namespace pelorin
