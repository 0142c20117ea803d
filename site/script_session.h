// What the server scripts have in common. Some clients go on after an error and end as if there had
// been none, so that a script keeps its own count, in a table that lives as long as its session,
// and ends with a sentence that stands there only when all went well.
#pragma once

#include <string>

#include "site/transact_sql.h"

namespace pelorin::site {

// The settings that the scripts rely on, and the table of marks.
void beginScript(const BatchSink& sink);
// Writes a mark into the table: "insert into ...".
std::string setMark(const std::string& mark);
// A condition on the marks: "exists (select 1 from ...)".
std::string hasMark(const std::string& mark);

// A sink that looks after each batch whether it failed.
BatchSink noticingErrors(const BatchSink& sink);
// The last batch after batches that were sent so.
void endScript(const std::string& script, const BatchSink& sink);

// What a script prints as its last line when all went well, followed by `more`. The text of the
// batch does not hold the sentence, so that a client which shows its input does not pretend.
std::string printDone(const std::string& script, const std::string& more = ".");

namespace mark {
inline constexpr const char* error = "error";
inline constexpr const char* begun = "begun";  // gone when the transaction is undone
inline constexpr const char* passed = "passed";
inline constexpr const char* skipped = "skipped";
inline constexpr const char* ended = "ended";  // a statement that ended the transaction around it
}  // namespace mark

inline constexpr const char* markTable = "[#PelorinScript]";

}  // namespace pelorin::site
