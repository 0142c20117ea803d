// The whole component over recording surroundings and a demonstration site in memory.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "component/component.h"
#include "site/site_database.h"
#include "tests/fakes/lookups.h"
#include "tests/fakes/surroundings.h"
#include "tests/site/fresh_site.h"

namespace pelorin::test {

// Can refuse a window, its controls or the hourglass, as a machine without resources would.
class FailingScreen : public RecordingScreen {
 public:
  using RecordingScreen::RecordingScreen;

  bool windowsFail = false;
  bool controlsFail = false;
  bool hourglassFails = false;

  void setMousePointer(MousePointer pointer) override {
    RecordingScreen::setMousePointer(pointer);
    if (hourglassFails && pointer == MousePointer::Hourglass) {
      throw RunTimeError(7, "Out of memory");
    }
  }

 protected:
  void createWindow(Form& form, WindowHandle owner) override {
    if (windowsFail) throw RunTimeError(7, "Out of memory");
    RecordingScreen::createWindow(form, owner);
  }
  void presentWindow(Form& form) override {
    if (controlsFail) throw RunTimeError(7, "Out of memory");
    RecordingScreen::presentWindow(form);
  }
};

struct ComponentTest : ::testing::Test, OpenForms {
  static constexpr WindowHandle hostWindow = 0x77;

  Journal journal;
  FailingScreen screen{journal};
  FakeEnvironment environment;
  std::shared_ptr<RecordingServices> services = std::make_shared<RecordingServices>(journal);
  SiteDatabase site = freshDemonstration();
  std::shared_ptr<Connection> database = site.connect();
  Component component{screen, environment};

  ComponentTest() : OpenForms(screen) {
    component.module().setNTConnection(services);
    component.module().setDBConnection(database);
  }

  Grid& grid() { return on<Grid>("frmTASummary", "MSFlexGrid1"); }
  std::vector<std::string> openForms() const {
    std::vector<std::string> names;
    for (const Form* open : screen.openForms()) names.push_back(open->name());
    return names;
  }
};

}  // namespace pelorin::test
