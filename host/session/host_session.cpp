#include "host/session/host_session.h"

#include <utility>

#include "host/ado/ado_command_object.h"
#include "host/ado/ado_recordset_object.h"
#include "host/session/window_object.h"
#include "win32/com/ado_ids.h"

namespace pelorin::host {

namespace {

template <class Object>
ComPtr<IDispatch> newObject() {
  return ComPtr<IDispatch>(makeObject<Object>().get());
}

}  // namespace

HostSession::HostSession(HWND window, Options options, ShowHelp showHelp, OpenConnection odbc)
    : options_(std::move(options)),
      odbc_(std::move(odbc)),
      window_(makeObject<WindowObject>(window).get()),
      services_(makeObject<ServicesObject>(state_).get()) {
  state_->showHelp = std::move(showHelp);
  use(DataSource::open(options_, statements_, odbc_));
  if (options_.source != Source::AdoConnection) offerClasses();
}

// The component goes first: it may still write to the audit log and the database.
HostSession::~HostSession() {
  component_.reset();
}

// What the component creates by itself has to fit the connection that it is given.
void HostSession::offerClasses() {
  const auto offer = [this](const CLSID& id, ClassFactory::Create create) {
    classes_.push_back(std::make_unique<ClassRegistration>(id, std::move(create)));
  };
  offer(ado::connectionClass, [odbc = odbc_] {
    return ComPtr<IDispatch>(makeObject<AdoConnectionObject>(odbc, nullptr, std::string()).get());
  });
  offer(ado::recordsetClass, newObject<AdoRecordsetObject>);
  offer(ado::commandClass, newObject<AdoCommandObject>);
}

void HostSession::use(DataSource data) {
  auto next = std::make_unique<DataSource>(std::move(data));
  next->audit().onChange = [this] {
    if (onAudit) onAudit();
  };
  state_->audit = &next->audit();
  if (component_) component_->connect(window_.get(), services_.get(), next->ado());
  data_ = std::move(next);
  if (onAudit) onAudit();
}

void HostSession::useDatabase(const std::string& file) {
  Options chosen = options_;
  chosen.source = Source::EmbeddedDatabase;
  chosen.database = file;
  use(DataSource::open(chosen, statements_, odbc_));
  options_ = chosen;
  if (classes_.empty()) offerClasses();
}

void HostSession::loadComponent() {
  if (component_) return;
  auto component = std::make_unique<Component>(Component::load(options_.component));
  component->connect(window_.get(), services_.get(), data_->ado());
  component_ = std::move(component);
}

void HostSession::raiseForm() {
  loadComponent();
  component_->raiseForm();
}

std::string HostSession::componentOrigin() const {
  return component_ ? component_->origin() : "not loaded yet";
}

}  // namespace pelorin::host
