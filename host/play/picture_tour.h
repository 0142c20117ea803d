// The pictures for the documents that the typical request does not make by itself.
#pragma once

#include "host/play/stage.h"

namespace pelorin::host {

// Starts from the open summary and ends there: the editor to add a DVR action, both kinds of
// trigger being edited, the picker for one location and in other sizes. Saves nothing. DriverError
// when a window does not do what is expected of it.
void makePictureTour(Stage& stage);

}  // namespace pelorin::host
