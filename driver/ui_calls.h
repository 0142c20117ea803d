// Runs work on the thread of the user interface, for a thread that drives its windows.
//
//   UiCalls ui;                                  // on the thread of the user interface
//   int rows = ui.run([&] { return log.size(); });  // on any other
#pragma once

#include <exception>
#include <functional>
#include <optional>
#include <type_traits>
#include <utility>

#include "win32/text/windows_api.h"

namespace pelorin::driver {

class UiCalls {
 public:
  UiCalls();
  UiCalls(const UiCalls&) = delete;
  UiCalls& operator=(const UiCalls&) = delete;
  ~UiCalls();

  // Waits for the result; what the work throws is thrown here.
  template <class Work>
  auto run(Work&& work) const {
    using Result = std::invoke_result_t<Work>;
    if constexpr (std::is_void_v<Result>) {
      send([&] { work(); });
    } else {
      std::optional<Result> result;
      send([&] { result.emplace(work()); });
      return std::move(*result);
    }
  }

  // Does not wait: for work that opens a box and comes back only when the box is closed. It must
  // not throw.
  void post(std::function<void()> work) const;

 private:
  void send(const std::function<void()>& work) const;

  HWND window_;
};

}  // namespace pelorin::driver
