// The kinds of connection that there are on Windows: the component's ADO adapter over the host's
// objects, and ODBC where Wine has it.
#include "host/ado/ado_command_object.h"
#include "host/ado/ado_connection_object.h"
#include "host/automation/class_registration.h"
#include "host/core/embedded_connection.h"
#include "tests/contract/connection_contract.h"
#include "tests/site/fresh_site.h"
#include "win32/ado/ado_connection.h"
#include "win32/com/ado_ids.h"
#ifdef _WIN64
#include "tests/contract/odbc_kind.h"
#endif

namespace pelorin::test {
namespace {

class OverAdoObjects : public ContractSubject {
 public:
  Connection& connection() override { return adapter_; }

 private:
  static std::shared_ptr<host::ResultConnection> opensNothing(const std::string&) {
    throw RunTimeError(5, "not here");
  }
  ComPtr<IDispatch> lent() const {
    return ComPtr<IDispatch>(
        host::makeObject<host::AdoConnectionObject>(
            opensNothing, std::make_shared<host::EmbeddedConnection>(site_.session()), "site")
            .get());
  }

  SiteDatabase site_ = freshDemonstration();
  host::ClassRegistration commands_{
      ado::commandClass,
      [] { return ComPtr<IDispatch>(host::makeObject<host::AdoCommandObject>().get()); }};
  AdoConnection adapter_{lent()};
};

const std::vector<ConnectionKind>& kinds() {
  static const std::vector<ConnectionKind> all = {
      kindOf<OverAdoObjects>("OverAdoObjects"),
#ifdef _WIN64
      odbcKind(),
#endif
  };
  return all;
}

PELORIN_CONNECTION_CONTRACT(kinds());

}  // namespace
}  // namespace pelorin::test
