// Building the location tree of a large site, as a ratio of the builder's own work to the time its
// statements take in the same run: below a quarter, whatever machine it is measured on.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <memory>

#include "location/hardware_tree.h"
#include "site/large_site.h"
#include "tests/fakes/surroundings.h"

namespace pelorin::test {
namespace {

constexpr SiteSize size{.controllers = 2000, .locations = 100000, .triggers = 0, .events = 0};

using Clock = std::chrono::steady_clock;

// Adds the time of one act to a sum.
class Stopwatch {
 public:
  explicit Stopwatch(Clock::duration& sum) : sum_(sum) {}
  Stopwatch(const Stopwatch&) = delete;
  Stopwatch& operator=(const Stopwatch&) = delete;
  ~Stopwatch() { sum_ += Clock::now() - start_; }

 private:
  Clock::duration& sum_;
  Clock::time_point start_ = Clock::now();
};

class TimedCursor : public Cursor {
 public:
  TimedCursor(std::unique_ptr<Cursor> inner, Clock::duration& sum)
      : inner_(std::move(inner)), sum_(sum) {}
  TimedCursor(const TimedCursor&) = delete;
  TimedCursor& operator=(const TimedCursor&) = delete;
  ~TimedCursor() override {
    const Stopwatch watch(sum_);
    inner_.reset();
  }
  const std::vector<std::string>& columns() const override { return inner_->columns(); }
  std::size_t fetch(std::size_t rows, std::vector<Value>& cells) override {
    const Stopwatch watch(sum_);
    return inner_->fetch(rows, cells);
  }

 private:
  std::unique_ptr<Cursor> inner_;
  Clock::duration& sum_;
};

// Passes statements to a session and adds up the time they take.
class TimedConnection : public Connection {
 public:
  explicit TimedConnection(SiteSession& session) : session_(session) {}
  Clock::duration statements{};

 protected:
  std::unique_ptr<Cursor> openCursor(std::string_view sql) override {
    const Stopwatch watch(statements);
    return std::make_unique<TimedCursor>(session_.run(sql).rows, statements);
  }
  void run(std::string_view sql) override { session_.run(sql); }
  void call(ProcedureCall& procedure) override { session_.call(procedure); }

 private:
  SiteSession& session_;
};

struct Load {
  Clock::duration own = Clock::duration::max();
  Clock::duration statements = Clock::duration::max();
  int nodes = 0;
};

Load buildOnce(Module1& module, TimedConnection& connection) {
  TreeView tree(noParent, "tvTree", {});
  LocationNodes builder(module, tree, [] { return true; });
  connection.statements = {};
  const Clock::time_point start = Clock::now();
  const bool whole = HardwareTree(builder, true).RefreshHardware();
  const Clock::duration total = Clock::now() - start;
  return {total - connection.statements, connection.statements, whole ? tree.count() : 0};
}

// The quickest of each counts: the others were held up by whatever else the machine does.
void buildLocationTree(benchmark::State& state) {
  const SiteDatabase site = SiteDatabase::inMemory(largeSite(size));
  Surroundings surroundings;
  auto connection = std::make_shared<TimedConnection>(*site.session());
  surroundings.module.setDBConnection(connection);
  Load best;
  for (auto iteration : state) {
    const Load load = buildOnce(surroundings.module, *connection);
    if (load.nodes == 0) state.SkipWithError("the tree failed");
    best = {std::min(best.own, load.own), std::min(best.statements, load.statements), load.nodes};
  }
  const auto seconds = [](Clock::duration time) {
    return std::chrono::duration<double>(time).count();
  };
  state.counters["nodes"] = best.nodes;
  state.counters["own_s"] = seconds(best.own);
  state.counters["statements_s"] = seconds(best.statements);
  state.counters["own_to_statements"] = seconds(best.own) / seconds(best.statements);
}

BENCHMARK(buildLocationTree)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pelorin::test
