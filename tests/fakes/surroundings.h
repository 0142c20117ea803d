// Everything a form needs around it, recording: one journal for statements, host calls and boxes.
#pragma once

#include <memory>

#include "common/module1.h"
#include "tests/fakes/fake_environment.h"
#include "tests/fakes/recording_screen.h"
#include "tests/fakes/recording_services.h"
#include "tests/fakes/scripted_connection.h"

namespace pelorin::test {

struct Surroundings {
  Journal journal;
  RecordingScreen screen{journal};
  FakeEnvironment environment;
  std::shared_ptr<RecordingServices> services = std::make_shared<RecordingServices>(journal);
  std::shared_ptr<ScriptedConnection> database = std::make_shared<ScriptedConnection>(journal);
  Module1 module{screen, environment};

  Surroundings() {
    module.setNTConnection(services);
    module.setDBConnection(database);
  }
};

}  // namespace pelorin::test
