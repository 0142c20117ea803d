// Passes everything on to another connection and lets acts (statements and fetches) fail.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "database/connection.h"
#include "tests/fakes/faults.h"

namespace pelorin::test {

class FaultyConnection : public Connection {
 public:
  explicit FaultyConnection(Connection& inner) : inner_(inner) {}

  void failAct(int number, Lasting lasting = Lasting::Once) { faults_->fail(number, lasting); }
  // How many acts there were since failAct.
  int acts() const { return faults_->acts(); }
  // Every statement and procedure that begins like this is refused from now on.
  void refuse(const std::string& beginning) { refused_ = beginning; }

  // Told of every statement that does not fail, and of a procedure's name, before it is passed on.
  std::function<void(std::string_view)> onSent;

 protected:
  std::unique_ptr<Cursor> openCursor(std::string_view sql) override;
  void run(std::string_view sql) override;
  void call(ProcedureCall& procedure) override;

 private:
  void send(std::string_view statement) const;

  Connection& inner_;
  std::string refused_;
  // Its cursors may outlive it.
  std::shared_ptr<Faults> faults_ = std::make_shared<Faults>();
};

}  // namespace pelorin::test
