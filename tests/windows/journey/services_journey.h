// Journeys with something between the component and its host's services that lets a call fail.
#pragma once

#include <optional>

#include "host/session/component.h"
#include "tests/windows/journey/component_log.h"
#include "tests/windows/journey/journey.h"
#include "tests/windows/journey/services_between.h"

namespace pelorin::test {

class ServicesJourney : public Journey {
 protected:
  ServicesJourney();
  ~ServicesJourney() override;

  ComponentLog log;
  ComPtr<ServicesBetween> services;

 private:
  std::optional<host::Component> component_;
};

}  // namespace pelorin::test
