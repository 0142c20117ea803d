// A connection whose statements are written to a log.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "host/core/result_connection.h"
#include "host/core/statement_log.h"

namespace pelorin::host {

// Passes everything on to `inner`.
class WatchedConnection : public ResultConnection {
 public:
  WatchedConnection(std::shared_ptr<ResultConnection> inner, std::shared_ptr<StatementLog> log)
      : inner_(std::move(inner)), log_(std::move(log)) {}

  std::unique_ptr<ResultCursor> openResults(std::string_view sql) override;
  std::vector<ServerMessage> messages() const override { return inner_->messages(); }

 protected:
  void run(std::string_view sql) override;
  void call(ProcedureCall& call) override;

 private:
  std::shared_ptr<ResultConnection> inner_;
  std::shared_ptr<StatementLog> log_;
};

// How a procedure call is shown: "DVR_AddAction @DVRActionID=0 OUTPUT, @CameraIndex=2".
std::string callText(const ProcedureCall& call);

}  // namespace pelorin::host
