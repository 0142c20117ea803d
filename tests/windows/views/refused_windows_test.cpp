// A system that has no room for another window: whatever it refuses, the caller hears of it and
// nothing half-made is left.
#include "base/run_time_error.h"
#include "tests/windows/views/desk.h"
#include "tests/windows/views/sample_form.h"

namespace pelorin::test {

namespace {

// Refuses one window of this thread: the one before which `allowed` others were made.
class Refusal {
 public:
  explicit Refusal(int allowed) {
    left_ = allowed;
    refused_ = false;
    hook_ = SetWindowsHookExW(WH_CBT, &decide, nullptr, GetCurrentThreadId());
  }
  Refusal(const Refusal&) = delete;
  Refusal& operator=(const Refusal&) = delete;
  ~Refusal() { UnhookWindowsHookEx(hook_); }

  static bool happened() { return refused_; }

 private:
  static LRESULT CALLBACK decide(int code, WPARAM w, LPARAM l) {
    if (code != HCBT_CREATEWND || left_-- != 0) return CallNextHookEx(nullptr, code, w, l);
    refused_ = true;
    return 1;
  }

  static inline int left_ = 0;
  static inline bool refused_ = false;
  HHOOK hook_;
};

class RefusedWindows : public Desk {
 protected:
  // Opens as the component does: a form whose opening failed is unloaded. True when it opened.
  bool opens(Form& form) {
    try {
      screen().show(form, hostHandle());
      return true;
    } catch (const RunTimeError& error) {
      errors.push_back(error.description());
      EXPECT_NE(error.number(), 0);
      EXPECT_FALSE(IsWindowVisible(windowOf(form)));
      form.unload();
      return false;
    }
  }
  bool hasEveryControl(const SampleForm& form) const {
    for (const Control* control : form.controls()) {
      if (find(form, control->name()) == nullptr) return false;
    }
    return true;
  }

  std::vector<std::string> errors;
};

}  // namespace

TEST_F(RefusedWindows, ARefusedFrameIsAnErrorOfTheCaller) {
  SampleForm form;
  const Refusal refusal(0);
  EXPECT_FALSE(opens(form));
  EXPECT_EQ(errors.size(), 1U);
  EXPECT_FALSE(form.isOpen());
  EXPECT_EQ(form.count("load"), 0);
}

TEST_F(RefusedWindows, AFormIsShownWithEveryControlOrNotAtAll) {
  pump();
  const std::size_t before = topLevelWindows().size();
  int refused = 0;
  for (bool complete = false; !complete; ++refused) {
    SampleForm form;
    const Refusal refusal(refused);
    const bool opened = opens(form);
    // What the system's own controls do without is their affair.
    complete = !Refusal::happened();
    EXPECT_EQ(opened, hasEveryControl(form)) << "refused window " << refused;
    form.unload();
    pump();
    EXPECT_EQ(topLevelWindows().size(), before) << "refused window " << refused;
  }
  // The frame, the pages and every control were refused in their turn.
  EXPECT_GT(errors.size(), SampleForm().controls().size());
  EXPECT_GT(refused, static_cast<int>(errors.size()));
}

TEST_F(RefusedWindows, TheFormOpensOnceThereIsRoomAgain) {
  SampleForm form;
  {
    const Refusal refusal(3);
    EXPECT_FALSE(opens(form));
  }
  open(form);
  EXPECT_TRUE(hasEveryControl(form));
}

TEST_F(RefusedWindows, AHandlersErrorReachesTheHandler) {
  SampleForm first;
  SampleForm second;
  open(first);
  first.cmdHelp.onClick = [&] { opens(second); };
  {
    const Refusal refusal(5);
    clickMiddle(find(first, "cmdHelp"));
  }
  EXPECT_EQ(errors.size(), 1U);
  EXPECT_FALSE(second.isOpen());
  EXPECT_TRUE(isShown(windowOf(first)));
}

}  // namespace pelorin::test
