// Passes everything on to another connection and lets the n-th act (a statement or a fetch) fail.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "database/connection.h"

namespace pelorin::test {

class FaultyConnection : public Connection {
 public:
  explicit FaultyConnection(Connection& inner) : inner_(inner) {}

  // Counted from 1 from now on; 0 lets nothing fail.
  void failAct(int number) {
    *acts_ = 0;
    *failing_ = number;
  }
  // How many acts there were since failAct.
  int acts() const { return *acts_; }

  // Told of every statement that does not fail, and of a procedure's name, before it is passed on.
  std::function<void(std::string_view)> onSent;

 protected:
  std::unique_ptr<Cursor> openCursor(std::string_view sql) override;
  void run(std::string_view sql) override;
  void call(ProcedureCall& call) override;

 private:
  void send(std::string_view statement) const;

  Connection& inner_;
  std::shared_ptr<int> acts_ = std::make_shared<int>(0);
  std::shared_ptr<int> failing_ = std::make_shared<int>(0);
};

}  // namespace pelorin::test
