// Which of an event's two texts is shown.
#include "catalog/event_text.h"

#include <gtest/gtest.h>

#include "base/current_error.h"
#include "tests/fakes/scripted_connection.h"

namespace pelorin::test {
namespace {

class EventTextTest : public testing::Test {
 protected:
  std::string textOf(Value description, Value defaultDescription, bool customize) {
    database.answer("rows",
                    {{"EventId", "description", "Defaultdescription"},
                     {{std::int64_t{1}, std::move(description), std::move(defaultDescription)}}});
    RecordSet rows = database.open("rows");
    rows.next();
    return eventText(rows, customize);
  }

  Journal journal;
  ScriptedConnection database{journal};
};

TEST_F(EventTextTest, CustomisedTextIsShownWhenTheHostWantsIt) {
  EXPECT_EQ(textOf("Ours", "Theirs", true), "Ours");
}

TEST_F(EventTextTest, CustomisedTextIsNotShownOtherwise) {
  EXPECT_EQ(textOf("Ours", "Theirs", false), "Theirs");
}

TEST_F(EventTextTest, EmptyAndNullAreNoCustomisedText) {
  EXPECT_EQ(textOf("", "Theirs", true), "Theirs");
  EXPECT_EQ(textOf(Null{}, "Theirs", true), "Theirs");
}

TEST_F(EventTextTest, ABlankIsACustomisedText) {
  EXPECT_EQ(textOf(" ", "Theirs", true), " ");
}

TEST_F(EventTextTest, NullDefaultIsEmpty) {
  EXPECT_EQ(textOf(Null{}, Null{}, true), "");
}

}  // namespace
}  // namespace pelorin::test
