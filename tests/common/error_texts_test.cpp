// Numbers and texts of the errors that an operator's box or a log can show.
#include <gmock/gmock.h>

#include <functional>
#include <new>

#include "base/current_error.h"
#include "common/guard.h"
#include "controls/grid.h"
#include "controls/item_lists.h"
#include "controls/list_view.h"
#include "controls/tab_control.h"
#include "controls/tree_view.h"
#include "tests/fakes/surroundings.h"

namespace pelorin::test {
namespace {

struct KnownError {
  std::string name;
  std::int32_t number;
  std::string text;
  std::function<void(Surroundings&)> provoke;
};

std::ostream& operator<<(std::ostream& out, const KnownError& error) {
  return out << error.name;
}

ListItem rowWithKey(const std::string& key) {
  ListItem row;
  row.key = key;
  return row;
}

struct OneColumn : ListView {
  OneColumn() : ListView(noParent, "lvw", {}, {{"One", 100}}, false) {}
};

RecordSet oneRecord(Surroundings& around) {
  around.database->answer("select", {{"ID"}, {{1}}});
  return around.database->open("select");
}

class ErrorTexts : public testing::TestWithParam<KnownError> {
 protected:
  Surroundings around;
};

TEST_P(ErrorTexts, AreThoseThatOperatorsKnow) {
  const auto error = errorOf([&] { GetParam().provoke(around); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->number(), GetParam().number);
  EXPECT_EQ(error->description(), GetParam().text);
}

TEST_P(ErrorTexts, StandInTheBoxAndInTheLog) {
  guarded(around.module, "Module1.Work", [&] { GetParam().provoke(around); });
  const std::string end = " :" + GetParam().text;
  EXPECT_THAT(around.screen.boxTexts(), testing::ElementsAre(testing::EndsWith(end)));
  ASSERT_EQ(around.environment.lines.size(), 1U);
  EXPECT_THAT(around.environment.lines[0].second, testing::EndsWith(end));
}

const std::string notSet = "Object variable or With block variable not set";

const KnownError valueErrors[] = {
    {"overflowOfAnInteger", 6, "Overflow", [](Surroundings&) { toInt16(std::int64_t{32768}); }},
    {"overflowOfAText", 6, "Overflow", [](Surroundings&) { parseInt32("2147483648"); }},
    {"outOfMemory", 7, "Out of memory", [](Surroundings&) { throw std::bad_alloc(); }},
    {"errorOfTheLanguage", 51, "beyond", [](Surroundings&) { throw std::out_of_range("beyond"); }},
    {"foreignError", 51, "Internal error", [](Surroundings&) { throw 42; }},
    {"servicesMissing", 91, notSet,
     [](Surroundings& s) {
       s.module.setNTConnection(nullptr);
       s.module.NTConnection();
     }},
    {"connectionMissing", 91, notSet,
     [](Surroundings& s) {
       s.module.setDBConnection(nullptr);
       s.module.DBConnection();
     }},
    {"noRecord", 3021, "There is no current record.",
     [](Surroundings& s) { oneRecord(s).int32("ID"); }},
    {"fieldMissing", 3265, "Item cannot be found in the collection: Name.",
     [](Surroundings& s) {
       RecordSet rows = oneRecord(s);
       rows.next();
       rows.text("Name");
     }},
    {"columnMissing", 3265, "Item cannot be found in the collection: column 4.",
     [](Surroundings& s) {
       RecordSet rows = oneRecord(s);
       rows.next();
       rows.text(4);
     }}};

INSTANTIATE_TEST_SUITE_P(Values, ErrorTexts, testing::ValuesIn(valueErrors),
                         [](const auto& error) { return error.param.name; });

const KnownError controlErrors[] = {
    {"comboWithoutTheRow", 380, "Invalid property value",
     [](Surroundings&) { ComboBox(noParent, "cmb", {}).setListIndex(0); }},
    {"nothingSelected", 380, "Invalid property value",
     [](Surroundings&) { ComboBox(noParent, "cmb", {}).selectedData(); }},
    {"listWithoutTheRow", 380, "Invalid property value",
     [](Surroundings&) { ListBox(noParent, "lst", {}).setSelected(0, true); }},
    {"tabMissing", 380, "Invalid property value",
     [](Surroundings&) { TabControl(noParent, "tab", {}, {"One"}).setTab(1); }},
    {"cellMissing", 380, "Invalid property value",
     [](Surroundings&) { Grid(noParent, "grid", {}, 2).cell(0, 2); }},
    {"lastRowOfTheGrid", 30015, "Cannot remove last non-fixed row",
     [](Surroundings&) { Grid(noParent, "grid", {}, 2).removeItem(1); }},
    {"itemMissing", 35600, "Index out of bounds", [](Surroundings&) { OneColumn().item(1); }},
    {"insertionBeyondTheEnd", 35600, "Index out of bounds",
     [](Surroundings&) {
       OneColumn().insert({{2, {}}});
     }},
    {"keyOfAListTwice", 35602, "Key is not unique in collection",
     [](Surroundings&) {
       OneColumn list;
       list.add(0, rowWithKey("A"));
       list.add(0, rowWithKey("a"));
     }},
    {"keyOfATreeTwice", 35602, "Key is not unique in collection", [](Surroundings&) {
       TreeView tree(noParent, "tv", {});
       tree.add(nullptr, {"SA", "Hardware", "", 1});
       tree.add(nullptr, {"sa", "Hardware", "", 1});
     }}};

INSTANTIATE_TEST_SUITE_P(Controls, ErrorTexts, testing::ValuesIn(controlErrors),
                         [](const auto& error) { return error.param.name; });

}  // namespace
}  // namespace pelorin::test
