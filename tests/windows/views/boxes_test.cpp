// Message boxes: who owns them, what they hold back, and what the host may do meanwhile.
#include <functional>
#include <new>
#include <utility>

#include "tests/faults/failing_memory.h"
#include "tests/windows/views/desk.h"
#include "tests/windows/views/sample_form.h"

namespace pelorin::test {

namespace {

// Runs a step inside the box's own message loop, as the host would from a timer.
class DuringBox {
 public:
  explicit DuringBox(std::function<void(HWND box)> step) {
    step_ = std::move(step);
    timer_ = SetTimer(nullptr, 0, 20, &tick);
  }
  DuringBox(const DuringBox&) = delete;
  DuringBox& operator=(const DuringBox&) = delete;
  ~DuringBox() { stop(); }

  static void answer(HWND box, int button) {
    PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
  }

 private:
  static void stop() {
    if (timer_ != 0) KillTimer(nullptr, std::exchange(timer_, UINT_PTR{0}));
  }
  static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD) {
    const std::optional<driver::OpenBox> box = driver::findBox();
    if (!box) return;
    stop();
    const auto step = std::exchange(step_, nullptr);
    if (step) step(box->window);
  }

  static inline UINT_PTR timer_ = 0;
  static inline std::function<void(HWND)> step_;
};

class Boxes : public Desk {
 protected:
  BoxAnswer ask(BoxButtons buttons, const std::function<void(HWND)>& during) {
    const DuringBox step(during);
    return screen().messageBox({"Question & text", BoxIcon::Question, buttons});
  }
};

}  // namespace

TEST_F(Boxes, TheAnswerIsTheButtonPressed) {
  EXPECT_EQ(ask(BoxButtons::YesNo, [](HWND box) { DuringBox::answer(box, IDNO); }), BoxAnswer::No);
  EXPECT_EQ(ask(BoxButtons::YesNo, [](HWND box) { DuringBox::answer(box, IDYES); }),
            BoxAnswer::Yes);
  EXPECT_EQ(ask(BoxButtons::Ok, [](HWND box) { DuringBox::answer(box, IDOK); }), BoxAnswer::Ok);
}

TEST_F(Boxes, TheFirstButtonIsTheDefaultOne) {
  EXPECT_EQ(ask(BoxButtons::YesNo,
                [](HWND box) {
                  EXPECT_EQ(GetDlgCtrlID(GetFocus()), IDYES);
                  DuringBox::answer(box, GetDlgCtrlID(GetFocus()));
                }),
            BoxAnswer::Yes);
}

TEST_F(Boxes, WithoutWindowsOfOursTheHostOwnsTheBox) {
  ask(BoxButtons::Ok, [&](HWND box) {
    EXPECT_EQ(GetWindow(box, GW_OWNER), host());
    DuringBox::answer(box, IDOK);
  });
}

TEST_F(Boxes, TheActiveWindowOwnsTheBoxAndTheOthersAreHeldBack) {
  SampleForm summary;
  SampleForm editor;
  open(summary);
  screen().show(editor, screen().windowOf(summary));
  pump();
  ask(BoxButtons::Ok, [&](HWND box) {
    EXPECT_EQ(GetWindow(box, GW_OWNER), windowOf(editor));
    EXPECT_FALSE(IsWindowEnabled(windowOf(editor)));
    EXPECT_FALSE(IsWindowEnabled(windowOf(summary)));
    DuringBox::answer(box, IDOK);
  });
  EXPECT_TRUE(IsWindowEnabled(windowOf(editor)));
  EXPECT_TRUE(IsWindowEnabled(windowOf(summary)));
  EXPECT_TRUE(pumpUntil([&] { return GetForegroundWindow() == windowOf(editor); }));
}

TEST_F(Boxes, ABoxThatMemoryDoesNotSufficeForHoldsNothingBack) {
  SampleForm summary;
  SampleForm editor;
  open(summary);
  screen().show(editor, screen().windowOf(summary));
  pump();
  const BoxRequest request{std::string(1000, 'x'), BoxIcon::None, BoxButtons::Ok};
  int failures = 0;
  bool shown = false;
  for (int allocation = 1; !shown; ++allocation) {
    const DuringBox step([](HWND box) { DuringBox::answer(box, IDOK); });
    try {
      const FailingMemory memory(allocation);
      screen().messageBox(request);
      shown = true;
    } catch (const std::bad_alloc&) {
      ++failures;
    }
    EXPECT_TRUE(IsWindowEnabled(windowOf(summary))) << "allocation " << allocation;
    EXPECT_TRUE(IsWindowEnabled(windowOf(editor))) << "allocation " << allocation;
  }
  EXPECT_GE(failures, 3) << "the windows, those held back, the text";
  const HWND window = windowOf(editor);
  editor.unload();
  EXPECT_FALSE(IsWindow(window)) << "nothing counts as being inside a handler any more";
}

TEST_F(Boxes, AHeldBackWindowCannotBeClosed) {
  SampleForm form;
  form.cmdCancel.onClick = [&] { form.unload(); };
  open(form);
  ask(BoxButtons::Ok, [&](HWND box) {
    SendMessageW(windowOf(form), WM_CLOSE, 0, 0);
    EXPECT_TRUE(form.isOpen());
    DuringBox::answer(box, IDOK);
  });
}

TEST_F(Boxes, ABoxInsideABoxLeavesTheOuterOneInOrder) {
  SampleForm form;
  open(form);
  const BoxAnswer outer = ask(BoxButtons::YesNo, [&](HWND box) {
    const BoxAnswer inner = ask(BoxButtons::Ok, [&](HWND front) {
      DuringBox::answer(front == box ? GetLastActivePopup(box) : front, IDOK);
    });
    EXPECT_EQ(inner, BoxAnswer::Ok);
    EXPECT_FALSE(IsWindowEnabled(windowOf(form)));
    DuringBox::answer(box, IDYES);
  });
  EXPECT_EQ(outer, BoxAnswer::Yes);
  EXPECT_TRUE(IsWindowEnabled(windowOf(form)));
}

TEST_F(Boxes, ModelsAreFollowedWhileABoxIsOpenInsideAHandler) {
  SampleForm form;
  open(form);
  form.cmdHelp.onClick = [&] {
    form.lblName.setText("before");
    ask(BoxButtons::Ok, [&](HWND box) {
      EXPECT_EQ(textOf(find(form, "lblName")), "before");
      form.lblName.setText("during");
      pump();
      EXPECT_EQ(textOf(find(form, "lblName")), "during");
      DuringBox::answer(box, IDOK);
    });
  };
  clickMiddle(find(form, "cmdHelp"));
  EXPECT_EQ(textOf(find(form, "lblName")), "during");
}

TEST_F(Boxes, TheHostMayGoAwayWhileABoxIsOpen) {
  SampleForm form;
  open(form);
  form.cmdHelp.onClick = [&] {
    const BoxAnswer answer = ask(BoxButtons::YesNo, [&](HWND) { destroyHost(); });
    EXPECT_EQ(answer, BoxAnswer::No);
    EXPECT_FALSE(form.isOpen());
  };
  clickMiddle(find(form, "cmdHelp"));
  EXPECT_EQ(form.count("unload"), 1);
}

TEST_F(Boxes, ABoxInFormLoadBelongsToTheWindowInFront) {
  struct Asking : SampleForm {
    std::function<void()> whileLoading;
    void Form_Load() override { whileLoading(); }
  };
  SampleForm summary;
  open(summary);
  Asking editor;
  editor.whileLoading = [&] {
    ask(BoxButtons::Ok, [&](HWND box) {
      EXPECT_EQ(GetWindow(box, GW_OWNER), windowOf(summary));
      DuringBox::answer(box, IDOK);
    });
  };
  screen().show(editor, screen().windowOf(summary));
  EXPECT_TRUE(isShown(windowOf(editor)));
}

TEST_F(Boxes, AFormUnloadedByTheHostWhileItLoadsIsNotShown) {
  struct Asking : SampleForm {
    std::function<void()> whileLoading;
    void Form_Load() override { whileLoading(); }
  };
  Asking form;
  form.whileLoading = [&] {
    ask(BoxButtons::Ok, [&](HWND box) {
      screen().unloadAll();
      DuringBox::answer(box, IDOK);
    });
  };
  screen().show(form, hostHandle());
  pump();
  EXPECT_FALSE(form.isOpen());
  EXPECT_EQ(find(form, "cmdOK"), nullptr);
}

}  // namespace pelorin::test
