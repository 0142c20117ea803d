// ADO's Connection over a database connection of the host.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/automation/automation_object.h"
#include "host/core/result_connection.h"

namespace pelorin::host {

using OpenConnection = std::function<std::shared_ptr<ResultConnection>(const std::string&)>;

// All that a server said about an error.
std::vector<ServerMessage> messagesOf(const RunTimeError& error);

class AdoConnectionObject : public AutomationObject<AdoConnectionObject> {
 public:
  // `open` serves the method Open; `database` is null for a closed connection.
  AdoConnectionObject(OpenConnection open, std::shared_ptr<ResultConnection> database,
                      std::string connectionString);

  static constexpr const wchar_t* sourceName = L"ADODB.Connection";
  static const Member members[18];

  // The object behind an interface of it; null for any other object.
  static ComPtr<AdoConnectionObject> from(IDispatch* object);

  // Error 3709 when closed.
  std::shared_ptr<ResultConnection> database() const;

  // Runs `work` and keeps what the server said for the Errors collection.
  template <class Work>
  auto recorded(Work&& work) {
    return errorRecorded([&] {
      messages_.clear();
      auto result = work(*database());
      messages_ = database()->messages();
      return result;
    });
  }

  // Runs `work` on a result that is open, and keeps what the server says if it fails.
  template <class Work>
  auto errorRecorded(Work&& work) {
    try {
      return work();
    } catch (const RunTimeError& error) {
      messages_ = messagesOf(error);
      throw;
    }
  }

 protected:
  bool answersTo(REFIID id) const override;

 private:
  Variant connectionString(const MemberCall& call);
  Variant execute(const MemberCall& call);
  Variant openMember(const MemberCall& call);
  Variant close(const MemberCall& call);
  Variant stateMember(const MemberCall& call);
  Variant beginTrans(const MemberCall& call);
  Variant commitTrans(const MemberCall& call);
  Variant rollbackTrans(const MemberCall& call);
  Variant errors(const MemberCall& call);
  Variant version(const MemberCall& call);
  Variant provider(const MemberCall& call);
  Variant cancel(const MemberCall& call);
  template <std::int32_t AdoConnectionObject::*field>
  Variant number(const MemberCall& call);
  Variant transaction(const char* statement, int levelChange);

  OpenConnection open_;
  std::shared_ptr<ResultConnection> database_;
  std::string connectionString_;
  std::vector<ServerMessage> messages_;
  std::int32_t transactionLevel_ = 0;
  std::int32_t commandTimeout_ = 30;
  std::int32_t connectionTimeout_ = 15;
  std::int32_t cursorLocation_ = 2;
  std::int32_t mode_ = 0;
  std::int32_t isolationLevel_ = 4096;
  std::int32_t attributes_ = 0;
};

}  // namespace pelorin::host
