// The life of windows: opened once, unloaded with their owners, freed when nobody uses them.
#include "controls/screen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "tests/fakes/recording_screen.h"

namespace pelorin::test {

namespace {

using Events = std::vector<std::string>;

class NotingForm : public Form {
 public:
  NotingForm(const std::string& name, Events& events)
      : Form(name, name, {100, 100}), events_(events) {}
  ~NotingForm() override { unload(); }

  void Form_Load() override {
    note("load");
    if (whileLoading) whileLoading();
  }
  void Form_Activate() override { note("activate"); }
  void Form_Unload() override {
    note("unload");
    if (whileUnloading) whileUnloading();
  }

  std::function<void()> whileLoading;
  std::function<void()> whileUnloading;

 private:
  void note(const std::string& event) { events_.push_back(event + " " + name()); }

  Events& events_;
};

// Tells when it goes.
class Watched : public Form {
 public:
  explicit Watched(bool& gone) : Form("watched", "", {}), gone_(gone) {}
  ~Watched() override { gone_ = true; }

 private:
  bool& gone_;
};

class Screens : public ::testing::Test {
 protected:
  Journal journal;
  RecordingScreen screen{journal};
  Events events;
  NotingForm summary{"summary", events};
  NotingForm editor{"editor", events};
  NotingForm picker{"picker", events};

  void openAll() {
    screen.show(summary, 7);
    screen.show(editor, screen.windowOf(summary));
    screen.show(picker);
    screen.setOwner(picker, screen.windowOf(editor));
    events.clear();
  }
};

}  // namespace

TEST_F(Screens, AFormLoadsInItsHiddenWindowAndIsThenPresented) {
  summary.whileLoading = [&] { EXPECT_NE(summary.hwnd(), 0U); };
  screen.show(summary, 7);
  EXPECT_EQ(events, (Events{"load summary", "activate summary"}));
  EXPECT_EQ(screen.windowEvents, (Events{"create summary", "present summary"}));
  EXPECT_EQ(screen.owners["summary"], 7U);
}

TEST_F(Screens, AnOpenFormIsOnlyRaised) {
  screen.show(summary);
  screen.show(summary);
  EXPECT_EQ(screen.windowEvents.back(), "raise summary");
  EXPECT_EQ(std::count(events.begin(), events.end(), "load summary"), 1);
}

TEST_F(Screens, AFormUnloadedWhileItLoadsIsNotPresented) {
  summary.whileLoading = [&] { summary.unload(); };
  screen.show(summary);
  EXPECT_EQ(screen.windowEvents, (Events{"create summary", "destroy summary"}));
}

TEST_F(Screens, AFormThatIsNotOwnedYetGoesWithItsLeader) {
  screen.show(summary, 7);
  screen.show(editor, screen.windowOf(summary));
  picker.setLeader(editor.hwnd());
  picker.whileLoading = [&] { summary.unload(); };
  screen.show(picker);
  EXPECT_EQ(screen.windowEvents.back(), "destroy summary");
  EXPECT_EQ(events.back(), "unload summary");
  EXPECT_FALSE(picker.isOpen());
}

TEST_F(Screens, AnOwnerUnloadsWhatItOwnsInnermostFirst) {
  openAll();
  summary.unload();
  EXPECT_EQ(events, (Events{"unload picker", "unload editor", "unload summary"}));
  EXPECT_TRUE(screen.openForms().empty());
}

TEST_F(Screens, WhatIsNotOwnedStaysOpen) {
  openAll();
  editor.unload();
  EXPECT_EQ(events, (Events{"unload picker", "unload editor"}));
  EXPECT_TRUE(summary.isOpen());
}

TEST_F(Screens, TheInnermostWindowIsTheOneInFrontOfAllThatAFormOwns) {
  EXPECT_EQ(screen.innermostOwnedBy(summary), nullptr) << "a closed form owns none";
  openAll();
  EXPECT_EQ(screen.innermostOwnedBy(summary), &picker);
  EXPECT_EQ(screen.innermostOwnedBy(editor), &picker);
  EXPECT_EQ(screen.innermostOwnedBy(picker), nullptr);
  picker.unload();
  EXPECT_EQ(screen.innermostOwnedBy(summary), &editor);
}

TEST_F(Screens, AnUnloadThatFailsCanBeTriedAgain) {
  screen.show(summary);
  summary.whileUnloading = [] { throw std::runtime_error("not now"); };
  EXPECT_THROW(summary.unload(), std::runtime_error);
  summary.whileUnloading = nullptr;
  summary.unload();
  EXPECT_FALSE(summary.isOpen());
}

TEST_F(Screens, AnActEndsOnceHoweverManyAreInIt) {
  int ended = 0;
  screen.acts().onEnded = [&ended] { ++ended; };
  {
    const Act click(screen.acts());
    const Act inner(screen.acts());
    EXPECT_EQ(ended, 0);
  }
  EXPECT_EQ(ended, 1);
}

TEST_F(Screens, AFormIsUnloadedOnce) {
  screen.show(summary);
  int unloaded = 0;
  summary.onUnloaded = [&] {
    ++unloaded;
    summary.unload();
  };
  summary.unload();
  summary.unload();
  EXPECT_EQ(unloaded, 1);
}

TEST_F(Screens, UnloadAllClosesEverything) {
  openAll();
  screen.unloadAll();
  EXPECT_EQ(events.size(), 3U);
  EXPECT_TRUE(screen.openForms().empty());
}

TEST_F(Screens, SetOwnerGivesThePreviousOneBack) {
  openAll();
  EXPECT_EQ(screen.setOwner(picker, 0), screen.windowOf(editor));
  EXPECT_EQ(screen.owners["picker"], 0U);
  picker.unload();
  EXPECT_EQ(screen.setOwner(picker, 5), 0U) << "a closed form has none";
}

TEST_F(Screens, ARetiredFormLivesUntilItIsCollected) {
  bool gone = false;
  screen.retire(std::make_unique<Watched>(gone));
  summary.whileLoading = [&] {
    screen.collect();
    EXPECT_FALSE(gone) << "a handler is running";
  };
  screen.show(summary);
  EXPECT_FALSE(gone);
  screen.collect();
  EXPECT_TRUE(gone);
}

TEST_F(Screens, AnOpeningOrClosingThatFailsKeepsNoRetiredForm) {
  const auto fail = [] { throw std::runtime_error("refused"); };
  summary.whileLoading = fail;
  EXPECT_THROW(screen.show(summary), std::runtime_error);
  summary.whileUnloading = fail;
  EXPECT_THROW(screen.unload(summary), std::runtime_error);
  summary.whileUnloading = {};
  bool gone = false;
  screen.retire(std::make_unique<Watched>(gone));
  screen.collect();
  EXPECT_TRUE(gone);
}

TEST_F(Screens, TheHourglassGivesWayToWhatWasThereBefore) {
  {
    const HourglassPointer outer(screen);
    {
      const HourglassPointer inner(screen);
      EXPECT_EQ(screen.mousePointer(), MousePointer::Hourglass);
    }
    EXPECT_EQ(screen.mousePointer(), MousePointer::Hourglass);
  }
  EXPECT_EQ(screen.mousePointer(), MousePointer::Default);
}

}  // namespace pelorin::test
