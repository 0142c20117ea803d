// An operator's session in which one thing fails: a statement, a member of the host, a control's
// native side, a window. What was reported can then be asked for.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "tests/journeys/editor_journey.h"

namespace pelorin::test {

class NamedFaults : public EditorJourney {
 public:
  NamedFaults();
  ~NamedFaults();

  // Every statement that begins like this fails from now on.
  void refuse(const std::string& beginning);
  // The host's member fails from now on.
  void failMember(const std::string& member) { services->failing.insert(member); }
  // The native side of a form's control fails once when it is told of this change (and `when`
  // holds); from the form's opening on when it is not open yet.
  void refuseChange(const std::string& formName, const std::string& control, Aspect aspect,
                    std::function<bool()> when = {});
  // The n-th window or pointer act of this kind ("create", "own", "destroy", "point") from now on
  // fails.
  void refuseAct(const std::string& act, int number = 1);

  // From the start to the editor's tab with the actions, with one event and one location chosen.
  void addAction();
  void editAction(const std::string& deviceClass, int id);
  // The picker of a new editor, or of an edited trigger.
  void openPicker();
  void openSinglePicker();
  void selectNode(const std::string& key) const;

  // Names in the reports' boxes so far. Each box must have its line of the log.
  std::set<std::string> reported() const;

 private:
  class RefusingView;

  void attachViews(Form& form);

  struct RefusedChange {
    std::string form;
    std::string control;
    std::unique_ptr<RefusingView> view;
  };

  std::vector<RefusedChange> changes_;
  std::map<std::string, Faults> acts_;
};

// One procedure, and a session in which nothing but it has something to report.
struct NamedFault {
  const char* procedure;
  void (*provoke)(NamedFaults& session);
};

inline std::ostream& operator<<(std::ostream& out, const NamedFault& fault) {
  return out << fault.procedure;
}

// The procedure's name as a test may be called.
std::string testName(const std::string& procedure);

// That the fault is reported under the procedure's name, and under no other.
void expectReportedAlone(const NamedFault& fault);

}  // namespace pelorin::test
