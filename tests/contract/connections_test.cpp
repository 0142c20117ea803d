// The kinds of connection that there are without Windows.
#include "host/core/embedded_connection.h"
#include "host/core/watched_connection.h"
#include "tests/contract/odbc_kind.h"
#include "tests/fakes/faulty_connection.h"
#include "tests/fakes/scripted_connection.h"
#include "tests/site/fresh_site.h"

namespace pelorin::test {
namespace {

class Scripted : public ContractSubject {
 public:
  Scripted() {
    database_.fail("select * from Nowhere", "Invalid object name 'Nowhere'.");
    database_.onCall = [next = 900](ProcedureCall& call) mutable {
      call.parameters.front().value = std::int64_t{++next};
    };
  }
  Connection& connection() override { return database_; }
  void fill(const std::vector<ViewGroup>& rows) override {
    Result result{{"ID", "Description"}, {}};
    for (const auto& [id, description] : rows) result.rows.push_back({id, description});
    database_.answer(viewGroups, std::move(result));
  }
  std::string failingFrom(std::size_t row) override {
    database_.failFetch(viewGroups, row);
    return viewGroups;
  }

 private:
  Journal journal_;
  ScriptedConnection database_{journal_};
};

class Embedded : public ContractSubject {
 public:
  Connection& connection() override { return *connection_; }

 protected:
  SiteDatabase site_ = freshDemonstration();
  std::shared_ptr<Connection> connection_ = site_.connect();
};

// As the component's own tests have it between themselves and the site.
class Faulty : public Embedded {
 public:
  Connection& connection() override { return faulty_; }

 private:
  FaultyConnection faulty_{*connection_};
};

class OfTheHost : public Embedded {
 public:
  OfTheHost() { connection_ = std::make_shared<host::EmbeddedConnection>(site_.session()); }
};

class Watched : public Embedded {
 public:
  Watched() {
    connection_ = std::make_shared<host::WatchedConnection>(
        std::make_shared<host::EmbeddedConnection>(site_.session()),
        std::make_shared<host::StatementLog>());
  }
};

const std::vector<ConnectionKind>& kinds() {
  static const std::string unread = "no statement is read, only answered";
  static const std::vector<ConnectionKind> all = {
      kindOf<Scripted>("Scripted", {{Ability::ServerErrors, unread},
                                    {Ability::TextComparison, unread},
                                    {Ability::KeysWithoutNulls, unread}}),
      kindOf<Embedded>("Embedded"),
      kindOf<Faulty>("Faulty"),
      kindOf<OfTheHost>("OfTheHost"),
      kindOf<Watched>("Watched"),
      odbcKind()};
  return all;
}

PELORIN_CONNECTION_CONTRACT(kinds());

}  // namespace
}  // namespace pelorin::test
