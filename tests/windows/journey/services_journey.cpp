#include "tests/windows/journey/services_journey.h"

#include "host/session/window_object.h"

namespace pelorin::test {

// All objects of the component's class share what any of them is given.
ServicesJourney::ServicesJourney() {
  host.ui().run([&] {
    host.session().loadComponent();
    auto state = std::make_shared<host::HostState>();
    state->audit = &host.session().data().audit();
    services = ServicesBetween::make(
        ComPtr<IDispatch>(host::makeObject<host::ServicesObject>(state).get()));
    component_.emplace(host::Component::load(host.options().component));
    component_->connect(host::makeObject<host::WindowObject>(host.window()).get(), services.get(),
                        host.session().data().ado());
  });
}

ServicesJourney::~ServicesJourney() {
  host.ui().run([&] {
    component_.reset();
    services = {};
  });
}

}  // namespace pelorin::test
