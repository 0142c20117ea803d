// The contract with the site's database: statements sent as text, rows read forward-only.
//
//   RecordSet rows = connection.open("select ID, DVRName from DVR_Config");
//   while (rows.next()) combo.addItem(rows.text("DVRName"), rows.int32("ID"));
//
// Errors carry the source line of the caller.
#pragma once

#include <memory>
#include <string_view>

#include "base/source_line.h"
#include "database/cursor.h"
#include "database/procedure_call.h"
#include "database/record_set.h"

namespace pelorin {

class Connection {
 public:
  virtual ~Connection() = default;

  // Reads forward-only and read-only.
  RecordSet open(std::string_view sql, SourceLine where = SourceLine::current());
  void execute(std::string_view sql, SourceLine where = SourceLine::current());
  void execute(ProcedureCall& procedure, SourceLine where = SourceLine::current());

 protected:
  virtual std::unique_ptr<Cursor> openCursor(std::string_view sql) = 0;
  virtual void run(std::string_view sql) = 0;
  virtual void call(ProcedureCall& call) = 0;
};

}  // namespace pelorin
