#include "host/play/played_request.h"

#include <exception>
#include <string>
#include <vector>

#include "host/play/leftovers.h"
#include "host/play/outcome.h"
#include "host/play/typical_request.h"
#include "host/window/output.h"

namespace pelorin::host {

namespace {

bool playAndCheck(Stage& stage, const Standing& before) {
  const SummaryRows rows = playTypicalRequest(stage);
  const std::vector<std::string> faults = tellOutcome(stage, before, rows);
  for (const std::string& fault : faults) printError("FAILED: " + fault);
  if (faults.empty()) stage.tell("\nAll as expected.");
  return faults.empty();
}

}  // namespace

bool playOnOwnDatabase(Stage& stage) {
  return playAndCheck(stage, standing(stage));
}

bool playOnServer(Stage& stage, bool undo) {
  stage.ui().run([&] { checkDemonstrationSite(*stage.session().data().another()); });
  const Standing before = standing(stage);
  bool allWell = false;
  try {
    allWell = playAndCheck(stage, before);
  } catch (const std::exception& error) {
    // What was written before is there all the same.
    printError(std::string("FAILED: ") + error.what());
  }
  return settleRows(stage, before, undo) && allWell;
}

}  // namespace pelorin::host
