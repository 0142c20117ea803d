// The typical request from its first step to the verdict.
#pragma once

#include "host/play/stage.h"

namespace pelorin::host {

// Over a database that is thrown away afterwards. True when all was as expected.
bool playOnOwnDatabase(Stage& stage);

// Over somebody's server: tells which rows the request left there, or removes them again. Error
// before anything is written when the demonstration site is not there.
bool playOnServer(Stage& stage, bool undo);

}  // namespace pelorin::host
