// Rows of a report list: order, keys and check marks.
#include "controls/list_view.h"

#include <gtest/gtest.h>

#include "tests/controls/error_number_of.h"
#include "tests/controls/listening_view.h"

namespace pelorin::test {

namespace {

constexpr std::int32_t indexOutOfBounds = 35600;

ListItem keyed(const std::string& key) {
  ListItem item;
  item.key = key;
  item.text = "text of " + key;
  return item;
}

class Rows : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* key : {"A", "B", "C"}) list.add(0, keyed(key));
    list.onSelect = [this] { ++selections; };
    list.onCheck = [this](int index) { checks.push_back(index); };
  }
  std::string keys() const {
    std::string all;
    for (int i = 1; i <= list.count(); ++i) all += list.item(i).key;
    return all;
  }

  ListView list{noParent, "lvw", {}, {{"One", 100}}, true};
  int selections = 0;
  std::vector<int> checks;
};

}  // namespace

TEST_F(Rows, AreNumberedFromOne) {
  EXPECT_EQ(list.item(1).key, "A");
  EXPECT_EQ(errorNumberOf([&] { list.item(0); }), indexOutOfBounds);
  EXPECT_EQ(errorNumberOf([&] { list.item(4); }), indexOutOfBounds);
}

TEST_F(Rows, AreInsertedBeforeTheNumberGiven) {
  list.add(1, keyed("D"));
  list.add(5, keyed("E"));
  list.add(3, keyed("F"));
  EXPECT_EQ(keys(), "DAFBCE");
  EXPECT_EQ(errorNumberOf([&] { list.add(9, keyed("G")); }), indexOutOfBounds);
}

TEST_F(Rows, AKeyIsUniqueWhateverItsCase) {
  EXPECT_EQ(errorNumberOf([&] { list.add(0, keyed("b")); }), error_number::keyNotUnique);
  EXPECT_EQ(list.count(), 3);
}

TEST_F(Rows, RowsWithoutAKeyMayRepeat) {
  list.add(0, {});
  list.add(0, {});
  EXPECT_EQ(list.count(), 5);
}

TEST_F(Rows, ARemovedKeyIsFreeAgain) {
  list.remove(2);
  EXPECT_EQ(keys(), "AC");
  list.add(0, keyed("B"));
  EXPECT_EQ(keys(), "ACB");
}

TEST_F(Rows, TheItemReturnedTakesItsTag) {
  list.add(0, keyed("D")).tag = "tag";
  EXPECT_EQ(list.item(4).tag, "tag");
}

TEST_F(Rows, TheSelectionStaysWithItsItem) {
  list.setSelectedIndex(2);
  list.add(1, keyed("D"));
  EXPECT_EQ(list.selectedIndex(), 3);
  list.remove(1);
  EXPECT_EQ(list.selectedIndex(), 2);
  list.remove(2);
  EXPECT_EQ(list.selectedIndex(), 0);
  EXPECT_EQ(selections, 0) << "no act of the operator";
}

TEST_F(Rows, RemoveIfKeepsOrderSelectionAndKeys) {
  list.setSelectedIndex(3);
  list.removeIf([](const ListItem& item) { return item.key == "A"; });
  EXPECT_EQ(keys(), "BC");
  EXPECT_EQ(list.selectedIndex(), 2);
  EXPECT_EQ(list.add(0, keyed("A")).key, "A") << "the key is free again";
}

TEST_F(Rows, RemoveIfWalksFromTheLastToTheFirst) {
  std::string order;
  list.removeIf([&](const ListItem& item) {
    order += item.key;
    return false;
  });
  EXPECT_EQ(order, "CBA");
}

TEST_F(Rows, ClearingForgetsKeysAndSelection) {
  list.setSelectedIndex(1);
  list.clear();
  EXPECT_EQ(list.count(), 0);
  EXPECT_EQ(list.selectedIndex(), 0);
  EXPECT_EQ(list.add(0, keyed("A")).key, "A") << "the key is free again";
}

TEST_F(Rows, ManyRowsAreInsertedAtOnceInTheirPlaces) {
  list.setSelectedIndex(2);
  std::vector<ListInsertion> insertions(3);
  insertions[0] = {1, {}};
  insertions[1] = {3, {}};
  insertions[2] = {4, {}};
  for (std::size_t i = 0; i < 3; ++i) insertions[i].item.text = std::to_string(i);
  list.insert(std::move(insertions));
  std::string texts;
  for (int i = 1; i <= list.count(); ++i) texts += list.item(i).text.back();
  EXPECT_EQ(texts, "0AB1C2");
  EXPECT_EQ(list.selectedIndex(), 3);
}

TEST_F(Rows, InsertionsOutOfOrderAreAnError) {
  std::vector<ListInsertion> insertions(2);
  insertions[0].before = 3;
  insertions[1].before = 1;
  EXPECT_EQ(errorNumberOf([&] { list.insert(std::move(insertions)); }), indexOutOfBounds);
  EXPECT_EQ(list.count(), 3);
}

TEST_F(Rows, TheOperatorSelectsAndChecks) {
  list.userSelect(2);
  EXPECT_EQ(list.selectedIndex(), 2);
  EXPECT_EQ(selections, 1);
  list.userCheck(3, true);
  list.userCheck(3, true);
  EXPECT_TRUE(list.item(3).checked);
  EXPECT_EQ(checks, std::vector<int>{3});
}

TEST_F(Rows, TheProgramChecksWithoutAnEvent) {
  const ListeningView view(list);
  list.setChecked(1, true);
  EXPECT_TRUE(view.heard(Aspect::Checks, 1));
  list.setAllChecked(true);
  EXPECT_TRUE(view.heard(Aspect::Checks));
  EXPECT_TRUE(checks.empty());
  EXPECT_TRUE(list.item(3).checked);
}

TEST_F(Rows, ADisabledListTakesNoActs) {
  list.setEnabled(false);
  list.userSelect(1);
  list.userCheck(1, true);
  EXPECT_EQ(list.selectedIndex(), 0);
  EXPECT_FALSE(list.item(1).checked);
}

}  // namespace pelorin::test
