// Windows as a whole: opening, owners, closing, boxes, resolution, size, and what is left behind.
#include <algorithm>
#include <limits>

#include "tests/windows/views/desk.h"
#include "tests/windows/views/sample_form.h"

namespace pelorin::test {

namespace {

class Windows : public Desk {
 protected:
  RECT clientOf(HWND window) const {
    RECT client{};
    GetClientRect(window, &client);
    return client;
  }
  SIZE sizeOf(HWND window) const {
    RECT rect{};
    GetWindowRect(window, &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
  }
  void drag(const Form& form, int width, int height) {
    SetWindowPos(windowOf(form), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
    pump();
  }
};

class StretchForm : public SampleForm {
 public:
  StretchForm() { setResizable({4000, 3000}); }
  void Form_Resize() override {
    SampleForm::Form_Resize();
    cmdHelp.setPlace({client().width - 1200, client().height - 500, 1100, 375});
  }
};

// Gives its owner back before it goes, as the picker does.
class GivingBackForm : public SampleForm {
 public:
  void Form_Unload() override { screen()->setOwner(*this, 0); }
};

class LoadingForm : public SampleForm {
 public:
  void Form_Load() override {
    handleWhileLoading = hwnd();
    lblName.setText("loaded");
    screen()->setMousePointer(MousePointer::Hourglass);
    screen()->setMousePointer(MousePointer::Default);
  }
  WindowHandle handleWhileLoading = 0;
};

}  // namespace

TEST_F(Windows, TheWindowExistsHiddenWhileTheFormLoads) {
  LoadingForm form;
  open(form);
  EXPECT_NE(form.handleWhileLoading, 0U);
  EXPECT_EQ(form.handleWhileLoading, screen().windowOf(form));
  EXPECT_EQ(textOf(find(form, "lblName")), "loaded");
  EXPECT_TRUE(isShown(windowOf(form)));
}

TEST_F(Windows, TheWindowBelongsToItsOwnerAndIsADialog) {
  SampleForm form;
  open(form);
  EXPECT_EQ(GetWindow(windowOf(form), GW_OWNER), host());
  EXPECT_EQ(classOf(windowOf(form)), L"#32770");
  EXPECT_EQ(form.count("activate"), 1);
}

TEST_F(Windows, AnOwnerThatIsGoneCountsAsNone) {
  SampleForm form;
  screen().show(form, 0x7FFF1234);
  pump();
  EXPECT_TRUE(isShown(windowOf(form)));
}

TEST_F(Windows, TheOwnerCanBeChangedAndGivenBack) {
  SampleForm editor;
  SampleForm picker;
  open(editor);
  screen().show(picker);
  const WindowHandle before = screen().setOwner(picker, screen().windowOf(editor));
  EXPECT_EQ(before, 0U);
  EXPECT_EQ(GetWindow(windowOf(picker), GW_OWNER), windowOf(editor));
  screen().setOwner(picker, before);
  EXPECT_EQ(GetWindow(windowOf(picker), GW_OWNER), nullptr);
}

TEST_F(Windows, ShowingAnOpenFormRestoresAndActivatesIt) {
  StretchForm form;
  open(form);
  ShowWindow(windowOf(form), SW_MINIMIZE);
  SetForegroundWindow(host());
  pump();
  screen().show(form, hostHandle());
  EXPECT_TRUE(pumpUntil([&] { return GetForegroundWindow() == windowOf(form); }));
  EXPECT_FALSE(IsIconic(windowOf(form)));
  EXPECT_EQ(form.count("load"), 1);
}

TEST_F(Windows, TheTitleBarsCloseIsCancel) {
  SampleForm form;
  open(form);
  PostMessageW(windowOf(form), WM_SYSCOMMAND, SC_CLOSE, 0);
  pump();
  EXPECT_EQ(form.count("click cmdCancel"), 1);
  EXPECT_TRUE(form.isOpen());
}

TEST_F(Windows, AButtonMayUnloadItsForm) {
  SampleForm form;
  form.cmdCancel.onClick = [&] { form.unload(); };
  open(form);
  const HWND window = windowOf(form);
  clickMiddle(find(form, "cmdCancel"));
  EXPECT_FALSE(form.isOpen());
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(form.count("unload"), 1);
  EXPECT_EQ(GetForegroundWindow(), host());
}

TEST_F(Windows, AFormMayBeRetiredByItsOwnHandler) {
  auto form = std::make_unique<SampleForm>();
  SampleForm* raw = form.get();
  raw->onUnloaded = [&] { screen().retire(std::move(form)); };
  raw->cmdOK.onClick = [raw] {
    raw->unload();
    raw->events.push_back("still alive");
  };
  open(*raw);
  press(VK_RETURN);
  EXPECT_EQ(form, nullptr);
  EXPECT_TRUE(screen().openForms().empty());
}

TEST_F(Windows, AFormOpensAgainAfterItWasUnloaded) {
  SampleForm form;
  open(form);
  form.unload();
  pump();
  open(form);
  EXPECT_EQ(form.count("load"), 2);
  clickMiddle(find(form, "cmdHelp"));
  EXPECT_EQ(form.count("click cmdHelp"), 1);
}

TEST_F(Windows, WhenTheHostDestroysTheOwnerEveryFormIsUnloadedOnceInnermostFirst) {
  SampleForm summary;
  SampleForm editor;
  std::vector<std::string> order;
  summary.onUnloaded = [&] { order.push_back("summary"); };
  editor.onUnloaded = [&] { order.push_back("editor"); };
  open(summary);
  screen().show(editor, screen().windowOf(summary));
  pump();
  destroyHost();
  pump();
  EXPECT_EQ(order, (std::vector<std::string>{"editor", "summary"}));
  EXPECT_EQ(summary.count("unload") + editor.count("unload"), 2);
  EXPECT_FALSE(summary.isOpen());
}

TEST_F(Windows, TheOwnerIsActiveAfterwardsEvenWhenTheFormGaveItBack) {
  SampleForm summary;
  SampleForm editor;
  GivingBackForm picker;
  open(summary);
  screen().show(editor, screen().windowOf(summary));
  screen().show(picker);
  screen().setOwner(picker, screen().windowOf(editor));
  ASSERT_TRUE(pumpUntil([&] { return GetActiveWindow() == windowOf(picker); }));
  // The order of windows speaks for another one.
  SetWindowPos(windowOf(summary), windowOf(picker), 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  picker.unload();
  pump();
  EXPECT_EQ(GetActiveWindow(), windowOf(editor));
  editor.unload();
  EXPECT_EQ(GetActiveWindow(), windowOf(summary));
  summary.unload();
  EXPECT_EQ(GetActiveWindow(), host());
}

TEST_F(Windows, AWindowThatIsNotActiveGoesWithoutActivatingItsOwner) {
  SampleForm summary;
  SampleForm editor;
  open(summary);
  screen().show(editor, screen().windowOf(summary));
  pump();
  SetActiveWindow(host());
  pump();
  editor.unload();
  pump();
  EXPECT_EQ(GetActiveWindow(), host());
}

TEST_F(Windows, SizesBeyondAnyScreenStayOnTheirSide) {
  constexpr int largest = std::numeric_limits<int>::max();
  StretchForm form;
  form.cmdHelp.setPlace({largest, largest, largest, largest});
  form.lblName.setPlace({150, 240, largest, 195});
  open(form);
  RECT help{};
  GetWindowRect(find(form, "cmdHelp"), &help);
  EXPECT_GT(help.left, 0);
  EXPECT_GE(help.right, help.left);
  RECT label{};
  GetWindowRect(find(form, "lblName"), &label);
  EXPECT_GT(label.right, label.left);
}

TEST_F(Windows, UnloadingAnOwnerUnloadsWhatItOwnsFirst) {
  SampleForm summary;
  SampleForm editor;
  open(summary);
  screen().show(editor, screen().windowOf(summary));
  summary.unload();
  pump();
  EXPECT_FALSE(editor.isOpen());
  EXPECT_EQ(editor.count("unload"), 1);
}

TEST_F(Windows, ResizingTellsTheFormAndMovesItsControls) {
  StretchForm form;
  open(form);
  EXPECT_EQ(form.count("resize"), 0);
  drag(form, 900, 700);
  ASSERT_GE(form.count("resize"), 1);
  const RECT client = clientOf(windowOf(form));
  EXPECT_EQ(form.client().width, pixelsToTwips(client.right, dpiOf(windowOf(form))));
  RECT help{};
  GetWindowRect(find(form, "cmdHelp"), &help);
  MapWindowPoints(nullptr, windowOf(form), reinterpret_cast<POINT*>(&help), 2);
  EXPECT_NEAR(static_cast<double>(help.bottom),
              static_cast<double>(client.bottom - twipsToPixels(125, dpiOf(windowOf(form)))), 1);
}

TEST_F(Windows, MinimisingIsNoResize) {
  StretchForm form;
  open(form);
  ShowWindow(windowOf(form), SW_MINIMIZE);
  pump();
  EXPECT_EQ(form.count("resize"), 0);
}

TEST_F(Windows, TheSmallestSizeHoldsWhileDragging) {
  StretchForm form;
  open(form);
  MINMAXINFO limits{};
  SendMessageW(windowOf(form), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  EXPECT_EQ(limits.ptMinTrackSize.x, twipsToPixels(4000, dpiOf(windowOf(form))));
  EXPECT_EQ(limits.ptMinTrackSize.y, twipsToPixels(3000, dpiOf(windowOf(form))));
}

TEST_F(Windows, AFixedWindowHasNoSizingFrame) {
  SampleForm form;
  open(form);
  EXPECT_EQ(GetWindowLongW(windowOf(form), GWL_STYLE) & (WS_THICKFRAME | WS_MAXIMIZEBOX), 0);
}

TEST_F(Windows, AnotherResolutionScalesEverything) {
  SampleForm form;
  open(form);
  const SIZE button = sizeOf(find(form, "cmdHelp"));
  RECT suggested{10, 10, 500, 500};
  SendMessageW(windowOf(form), WM_DPICHANGED, MAKEWPARAM(192, 192),
               reinterpret_cast<LPARAM>(&suggested));
  pump();
  const int before = dpiOf(windowOf(form));
  EXPECT_NEAR(static_cast<double>(sizeOf(find(form, "cmdHelp")).cx),
              static_cast<double>(MulDiv(static_cast<int>(button.cx), 192, before)), 2);
  EXPECT_EQ(clientOf(windowOf(form)).right, twipsToPixels(form.client().width, 192));
  EXPECT_EQ(form.count("resize"), 0);
}

TEST_F(Windows, TheHourglassIsAnsweredWhileItIsSet) {
  SampleForm form;
  open(form);
  {
    const HourglassPointer hourglass(screen());
    EXPECT_EQ(SendMessageW(find(form, "grid"), WM_SETCURSOR, 0, HTCLIENT), TRUE);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
  }
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(Windows, AListBehindAFrameIsShownOutOfReach) {
  SampleForm form;
  open(form);
  const HWND list = find(form, "lvwEvents");
  const Place over = form.lvwEvents.place();
  form.fraGroup.setPlace({over.left, over.top, over.width, over.height + 200});
  form.lvwEvents.setCovered(true);
  pump();
  EXPECT_TRUE(isShown(list));
  EXPECT_FALSE(IsWindowEnabled(list));
  RECT rect{};
  GetWindowRect(list, &rect);
  POINT middle{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  ScreenToClient(GetParent(list), &middle);
  EXPECT_EQ(ChildWindowFromPointEx(GetParent(list), middle, CWP_SKIPINVISIBLE),
            find(form, "fraGroup"))
      << "the frame is in front";
  EXPECT_TRUE(isShown(find(form, "txtInside")));
  form.fraGroup.setVisible(false);
  form.lvwEvents.setCovered(false);
  pump();
  EXPECT_TRUE(IsWindowEnabled(list));
  EXPECT_FALSE(isShown(find(form, "txtInside")));
}

TEST_F(Windows, TheFocusLeavesAListThatIsCovered) {
  SampleForm form;
  open(form);
  SetFocus(find(form, "lvwEvents"));
  pump();
  form.lvwEvents.setCovered(true);
  pump();
  EXPECT_NE(GetFocus(), find(form, "lvwEvents"));
  EXPECT_NE(GetFocus(), nullptr);
}

TEST_F(Windows, NothingIsLeftAfterFiftyOpenings) {
  const auto cycle = [&] {
    SampleForm form;
    open(form);
    form.unload();
    pump();
  };
  cycle();
  const std::size_t windows = topLevelWindows().size();
  const int objects = gdiObjects();
  ASSERT_GT(objects, 0);
  for (int i = 0; i < 50; ++i) cycle();
  EXPECT_EQ(topLevelWindows().size(), windows);
  EXPECT_EQ(gdiObjects(), objects);
}

}  // namespace pelorin::test
