#include "tests/faults/named_faults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <utility>

#include "tests/fakes/bitmap_builder.h"

namespace pelorin::test {

class NamedFaults::RefusingView final : public ControlView {
 public:
  RefusingView(Aspect aspect, std::function<bool()> when)
      : aspect_(aspect), when_(std::move(when)) {}
  void modelChanged(const Change& change) override {
    if (change.aspect != aspect_ || (when_ && !when_())) return;
    if (!std::exchange(refused_, true)) throw RunTimeError(7, "Out of memory");
  }

 private:
  Aspect aspect_;
  std::function<bool()> when_;
  bool refused_ = false;
};

NamedFaults::NamedFaults() {
  services->texts[1843] = "Dial-Up";
  environment.pictures["C:\\Component\\Graphics\\pcDetail.bmp"] = stripPicture(69);
  screen.beforeAct = [this](const std::string& act, Form* form) {
    if (act == "create") attachViews(*form);
    const auto counted = acts_.find(act);
    if (counted == acts_.end() || !counted->second.nextFails()) return;
    throw RunTimeError(7, "Out of memory");
  };
}

NamedFaults::~NamedFaults() {
  screen.beforeAct = {};
  for (const Form* open : screen.openForms()) {
    for (Control* control : open->controls()) control->setView(nullptr);
  }
}

void NamedFaults::refuse(const std::string& beginning) {
  database->refuse(beginning);
}

void NamedFaults::refuseChange(const std::string& formName, const std::string& control,
                               Aspect aspect, std::function<bool()> when) {
  changes_.push_back({formName, control, std::make_unique<RefusingView>(aspect, std::move(when))});
  if (isOpen(formName)) attachViews(form(formName));
}

void NamedFaults::attachViews(Form& form) {
  for (const RefusedChange& change : changes_) {
    if (change.form != form.name()) continue;
    controlOf<Control>(form, change.control).setView(change.view.get());
  }
}

void NamedFaults::refuseAct(const std::string& act, int number) {
  acts_[act].fail(number);
}

void NamedFaults::addAction() {
  openSummary();
  add();
  tickFilter("External Events");
  checkEvent(5003);
  editor().addLocation("001.01.007.D01", "001.01.007.D01 - Door", "001.01.007.D01");
  showTab(1);
}

void NamedFaults::editAction(const std::string& deviceClass, int id) {
  openSummary();
  edit(deviceClass, id);
}

void NamedFaults::openPicker() {
  openSummary();
  add();
  press("cmdAddLocation");
}

void NamedFaults::openSinglePicker() {
  editAction("CCTV", 4);
  press("cmdSingleLocation");
}

void NamedFaults::selectNode(const std::string& key) const {
  auto& tree = on<TreeView>("FLocation", "tvTree");
  tree.userSelect(nodeOf(tree, key));
}

std::set<std::string> NamedFaults::reported() const {
  std::set<std::string> names;
  std::vector<std::string> logged;
  for (const auto& [path, line] : environment.lines) {
    logged.push_back(line.substr(environment.dateTime.size() + 2));
  }
  for (const BoxRequest& box : screen.boxes) {
    if (box.icon != BoxIcon::Critical || countsReports(box)) continue;
    if (environment.canWrite) {
      EXPECT_THAT(logged, testing::Contains(box.text));
    }
    names.insert(box.text.substr(0, box.text.find(": Line: ")));
  }
  return names;
}

std::string testName(const std::string& procedure) {
  std::string name;
  for (const char c : procedure) {
    if (std::isalnum(static_cast<unsigned char>(c)) != 0) name += c;
  }
  return name;
}

void expectReportedAlone(const NamedFault& fault) {
  NamedFaults session;
  fault.provoke(session);
  EXPECT_EQ(session.reported(), std::set<std::string>{fault.procedure});
}

}  // namespace pelorin::test
