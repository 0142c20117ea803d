// The journeys through the editor that the fault tests repeat, one fault at a time, and what may be
// left in the tables after a fault.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "tests/journeys/editor_journey.h"

namespace pelorin::test {

struct EditorScript {
  std::string name;
  std::function<void(EditorJourney&)> open;  // to the editor
  std::function<void(EditorJourney&)> act;   // in the editor, up to the save
  bool edits = false;
  bool raisesAlarm = false;  // and looks up between its rows what returns to normal
};

std::ostream& operator<<(std::ostream& out, const EditorScript& script);

// One for each kind of save.
const std::vector<EditorScript>& editorScripts();

// Each script with faults that pass and with faults that last.
class ScriptWithFaults : public ::testing::TestWithParam<std::tuple<EditorScript, Lasting>> {
 protected:
  static const EditorScript& script() { return std::get<0>(GetParam()); }
  static Lasting lasting() { return std::get<1>(GetParam()); }
  // `failing` reports tell of the fault itself, of all that are in `boxes` and in the log.
  static void expectCounts(int failing, const std::vector<BoxRequest>& boxes, std::size_t logLines);
};

#define PELORIN_SCRIPTS_WITH_FAULTS(suite)                                             \
  INSTANTIATE_TEST_SUITE_P(                                                            \
      Journeys, suite,                                                                 \
      ::testing::Combine(::testing::ValuesIn(editorScripts()),                         \
                         ::testing::Values(Lasting::Once, Lasting::FromThenOn)),       \
      [](const auto& param) {                                                          \
        return std::get<0>(param.param).name + "_" + nameOf(std::get<1>(param.param)); \
      })

// What was written is what the whole journey writes, in its order; only a failing look-up leaves a
// row out, after a failing row none follows.
void expectRowsOfScript(const EditorScript& script, const SiteRows& whole, const SiteRows& written);

// Rows of all tables.
std::size_t rowCount(const SiteRows& rows);

}  // namespace pelorin::test
