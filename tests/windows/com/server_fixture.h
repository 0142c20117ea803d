// A host around the built DLL: a window, services and a database, all of them fakes.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Pelorin.h"
#include "tests/windows/com/box_watcher.h"
#include "tests/windows/com/component_dll.h"
#include "tests/windows/com/fake_ado.h"
#include "tests/windows/com/test_window.h"

namespace pelorin::test {

class ServerTest : public ::testing::Test {
 protected:
  ServerTest();
  // Closes the component's windows; the last object then lets go of what it was given.
  ~ServerTest() override;

  static ComPtr<_TAManager> create();
  HRESULT invoke(const wchar_t* member, WORD kind, std::initializer_list<Variant> arguments = {},
                 Variant* result = nullptr);
  // The summary's window; null when it is not open.
  static HWND summary();
  static void closeWindows();
  static void pump();

  const ComponentDll& dll = ComponentDll::instance();
  TestWindow window;
  bool permitted = true;
  ComPtr<FakeObject> form = FakeObject::make();
  ComPtr<FakeObject> services = FakeObject::make();
  FakeAdo ado;
  ComPtr<_TAManager> manager = create();

 private:
  void offerServices();
};

}  // namespace pelorin::test
