// The same code in two modules of one process, the DLL and this program: each has its own windows.
#include "driver/find_window.h"
#include "tests/windows/com/server_fixture.h"
#include "win32/views/native_window.h"

namespace pelorin::test {

namespace {

class ModuleWindows : public ServerTest {
 protected:
  void SetUp() override {
    manager->putref_Parent(form.get());
    manager->putref_NTConnection(services.get());
    manager->putref_DBConnection(ado.connection.get());
  }
};

}  // namespace

TEST_F(ModuleWindows, AWindowOfTheDllIsNoneOfTheProgramsThatHoldsTheSameCode) {
  ASSERT_EQ(manager->RaiseForm(), S_OK);
  ASSERT_NE(summary(), nullptr);
  EXPECT_EQ(NativeWindow::of(summary()), nullptr);
  EXPECT_EQ(NativeWindow::of(driver::control(summary(), "cmdClose")), nullptr);
}

}  // namespace pelorin::test
