// The embedded site database as a connection with results.
#pragma once

#include <memory>

#include "host/core/result_connection.h"
#include "site/site_session.h"

namespace pelorin::host {

class EmbeddedConnection : public ResultConnection {
 public:
  explicit EmbeddedConnection(std::shared_ptr<SiteSession> session)
      : session_(std::move(session)) {}

  std::unique_ptr<ResultCursor> openResults(std::string_view sql) override;
  std::vector<ServerMessage> messages() const override { return {}; }

 protected:
  void run(std::string_view sql) override { session_->run(sql); }
  void call(ProcedureCall& call) override { session_->call(call); }

 private:
  std::shared_ptr<SiteSession> session_;
};

}  // namespace pelorin::host
