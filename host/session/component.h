// The component, known through COM alone.
#pragma once

#include <memory>
#include <string>

#include "win32/com/late_bound.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

class Component {
 public:
  // By its registered name, else from Pelorin.dll beside this program; `file` is taken instead of
  // both when it is not empty. RunTimeError when there is none.
  static Component load(const std::string& file);

  Component(const Component&) = delete;
  Component(Component&&) = default;
  Component& operator=(const Component&) = delete;
  Component& operator=(Component&&) = delete;
  // Tells the component that it is let go of.
  ~Component();

  // In the order that the component asks for.
  void connect(IDispatch* window, IDispatch* services, IDispatch* database);
  void raiseForm();

  // How it was loaded, for the status bar.
  const std::string& origin() const noexcept { return origin_; }

 private:
  Component(ComPtr<IDispatch> object, std::string origin);

  std::unique_ptr<LateBound> object_;
  std::string origin_;
};

std::wstring fullPath(const std::wstring& file);

// The folder of this program, without a closing separator.
std::wstring programFolder();

}  // namespace pelorin::host
