#include "tests/windows/journey/kept_triggers.h"

#include <algorithm>
#include <iterator>

#include "base/value.h"
#include "site/engine.h"

namespace pelorin::test {

namespace {

// The last one belongs to the engine: the highest number that each table has given.
constexpr const char* tables[] = {"CCTV_TriggerAction", "IntegratedDeviceTriggers",
                                  "DVR_TriggerActions", "sqlite_sequence"};

using Rows = std::vector<std::string>;

Rows without(const Rows& rows, const Rows& others) {
  Rows left;
  std::set_difference(rows.begin(), rows.end(), others.begin(), others.end(),
                      std::back_inserter(left));
  return left;
}

bool ofSequence(const std::string& row) {
  return row.starts_with("sqlite_sequence");
}

}  // namespace

KeptTriggers::KeptTriggers(const std::string& file)
    : engine_(site::Engine::open(file, site::Engine::Mode::Open)), before_(rows()) {
  for (const std::string table : tables) {
    engine_->script("create temporary table Kept_" + table + " as select * from " + table);
  }
}

Rows KeptTriggers::written() const {
  Rows found = without(rows(), before_);
  std::erase_if(found, ofSequence);
  return found;
}

std::size_t KeptTriggers::lost() const {
  const Rows gone = without(before_, rows());
  return gone.size() -
         static_cast<std::size_t>(std::count_if(gone.begin(), gone.end(), ofSequence));
}

void KeptTriggers::restore() const {
  std::string script = "begin immediate;";
  for (const std::string table : tables) {
    script +=
        "delete from " + table + "; insert into " + table + " select * from Kept_" + table + ";";
  }
  engine_->script(script + "commit;");
}

Rows KeptTriggers::rows() const {
  Rows found;
  for (const std::string table : tables) {
    site::EngineStatement statement(engine_, "select * from " + table);
    while (statement.step()) {
      std::string row = table;
      for (std::size_t column = 0; column < statement.columns().size(); ++column) {
        const Value value = statement.value(column);
        row += '|' + (isNull(value) ? std::string("null") : toText(value));
      }
      found.push_back(std::move(row));
    }
  }
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace pelorin::test
