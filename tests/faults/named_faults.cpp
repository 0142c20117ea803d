#include "tests/faults/named_faults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <utility>

#include "tests/fakes/bitmap_builder.h"

namespace pelorin::test {

class NamedFaults::RefusingConnection : public Connection {
 public:
  explicit RefusingConnection(Connection& inner) : inner_(inner) {}
  void refuse(std::string beginning) { beginning_ = std::move(beginning); }

 protected:
  std::unique_ptr<Cursor> openCursor(std::string_view sql) override;
  void run(std::string_view sql) override {
    look(sql);
    inner_.execute(sql);
  }
  void call(ProcedureCall& call) override {
    look(call.procedure);
    inner_.execute(call);
  }

 private:
  class Rows;

  void look(std::string_view sql) const {
    if (beginning_.empty() || !sql.starts_with(beginning_)) return;
    throw RunTimeError(-2147217911, "Permission denied.");
  }

  Connection& inner_;
  std::string beginning_;
};

class NamedFaults::RefusingConnection::Rows : public Cursor {
 public:
  explicit Rows(RecordSet rows) : rows_(std::move(rows)), columns_(rows_.columns()) {}
  const std::vector<std::string>& columns() const override { return columns_; }
  std::size_t fetch(std::size_t count, std::vector<Value>& cells) override {
    std::size_t fetched = 0;
    for (; fetched < count && rows_.next(); ++fetched) {
      for (int i = 0; i < static_cast<int>(columns_.size()); ++i) cells.push_back(rows_.value(i));
    }
    return fetched;
  }

 private:
  RecordSet rows_;
  std::vector<std::string> columns_;
};

std::unique_ptr<Cursor> NamedFaults::RefusingConnection::openCursor(std::string_view sql) {
  look(sql);
  return std::make_unique<Rows>(inner_.open(sql));
}

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

NamedFaults::NamedFaults() : refusing_(std::make_shared<RefusingConnection>(*direct)) {
  component.module().setDBConnection(refusing_);
  services->texts[1843] = "Dial-Up";
  environment.pictures["C:\\Component\\Graphics\\pcDetail.bmp"] = stripPicture(69);
  screen.beforeAct = [this](const std::string& act, Form* form) {
    if (act == "create") attachViews(*form);
    const auto counted = acts_.find(act);
    if (counted == acts_.end() || --counted->second != 0) return;
    acts_.erase(counted);
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
  refusing_->refuse(beginning);
}

void NamedFaults::refuseChange(const std::string& formName, const std::string& control,
                               Aspect aspect, std::function<bool()> when) {
  changes_.push_back({formName, control, std::make_unique<RefusingView>(aspect, std::move(when))});
  if (isOpen(formName)) attachViews(form(formName));
}

void NamedFaults::attachViews(Form& form) {
  for (const RefusedChange& change : changes_) {
    if (change.form != form.name()) continue;
    Control* control = form.find(change.control);
    if (control == nullptr) throw std::logic_error("no control " + change.control);
    control->setView(change.view.get());
  }
}

void NamedFaults::refuseAct(const std::string& act, int number) {
  acts_[act] = number;
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

void NamedFaults::selectTrigger(const std::string& deviceClass, int id) const {
  Grid& grid = on<Grid>("frmTASummary", "MSFlexGrid1");
  for (int row = 1; row < grid.rows(); ++row) {
    if (grid.cell(row, summary_column::type) == deviceClass &&
        grid.cell(row, summary_column::triggerId) == std::to_string(id)) {
      return grid.userSelectRow(row);
    }
  }
  throw std::logic_error("the summary has no such trigger");
}

void NamedFaults::selectNode(const std::string& key) const {
  auto& tree = on<TreeView>("FLocation", "tvTree");
  TreeNode* node = tree.find(key);
  if (node == nullptr) throw std::logic_error("no node " + key);
  tree.userSelect(*node);
}

std::set<std::string> NamedFaults::reported() const {
  std::set<std::string> names;
  std::vector<std::string> logged;
  for (const auto& [path, line] : environment.lines) {
    logged.push_back(line.substr(environment.dateTime.size() + 2));
  }
  for (const BoxRequest& box : screen.boxes) {
    const bool counts = box.text.find(" more errors were written to ") != std::string::npos;
    if (box.icon != BoxIcon::Critical || counts) continue;
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
