// A class that CoCreateInstance finds in this process while this lives, ahead of the registry.
#pragma once

#include <functional>

#include "tests/windows/com/fake_object.h"

namespace pelorin::test {

class ClassObject {
 public:
  using Make = std::function<ComPtr<FakeObject>()>;

  ClassObject(REFCLSID id, Make make);
  ClassObject(const ClassObject&) = delete;
  ClassObject& operator=(const ClassObject&) = delete;
  ~ClassObject() { revoke(); }

  void revoke() noexcept;

 private:
  class Factory;
  DWORD registration_ = 0;
};

}  // namespace pelorin::test
