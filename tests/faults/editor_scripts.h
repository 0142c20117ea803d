// The journeys through the editor that the fault tests repeat, one fault at a time, and what may be
// left in the tables after a fault.
#pragma once

#include <functional>
#include <ostream>
#include <string>
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

// What was written is what the whole journey writes, in its order; only a failing look-up leaves a
// row out, after a failing row none follows.
void expectRowsOfScript(const EditorScript& script, const SiteRows& whole, const SiteRows& written);

// Rows of all tables.
std::size_t rowCount(const SiteRows& rows);

}  // namespace pelorin::test
