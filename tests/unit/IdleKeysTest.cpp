#include "capture/IdleKeys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeCapture.h"

namespace capture {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kEsc = 27;
constexpr std::int32_t kAltT = 0x10054;
constexpr std::int32_t kCtrlA = 0x20041;

class IdleKeysTest : public testing::Test {
 protected:
  void Press(std::int32_t code) {
    fake_.system.pressed.insert(code);
    PollIdleKeys(fake_.Context());
  }
  FakeCapture fake_;
};

TEST_F(IdleKeysTest, NothingPressedDoesNothing) {
  PollIdleKeys(fake_.Context());
  EXPECT_THAT(fake_.trace, IsEmpty());
  EXPECT_THAT(fake_.system.askedKeys, ElementsAre(kEsc, kAltT, kCtrlA));
}

TEST_F(IdleKeysTest, TheHotKeyStartsACapture) {
  Press(kEsc);
  EXPECT_THAT(fake_.trace, ElementsAre("Timer_Go on"));
  // After the first key that fires, no other one is tested.
  EXPECT_THAT(fake_.system.askedKeys, ElementsAre(kEsc));
}

TEST_F(IdleKeysTest, TheHotKeyIsTheOneOfTheSettings) {
  fake_.settings.hotkey = L"Shift+F5";
  Press(kEsc);
  EXPECT_THAT(fake_.trace, IsEmpty());
  Press(0x40074);
  EXPECT_THAT(fake_.trace, ElementsAre("Timer_Go on"));
}

TEST_F(IdleKeysTest, TheHotKeyStopsACaptureThatRuns) {
  fake_.state.CaptureRunning = true;
  fake_.state.RunState = kGo;
  Press(kEsc);
  EXPECT_FALSE(fake_.state.CaptureRunning);
  EXPECT_EQ(fake_.state.RunState, L"");
  EXPECT_THAT(fake_.trace, IsEmpty());
}

TEST_F(IdleKeysTest, AltTBringsTheWindowToTheFront) {
  Press(kAltT);
  EXPECT_THAT(fake_.trace, ElementsAre("bring to front", "focus top pane"));
}

TEST_F(IdleKeysTest, AltTCanBeSwitchedOff) {
  fake_.settings.enableHotT = 0;
  fake_.system.foreground = WindowNumber(10);
  Press(kAltT);
  EXPECT_THAT(fake_.trace, IsEmpty());
}

TEST_F(IdleKeysTest, CtrlASelectsAllInTheOwnWindow) {
  fake_.system.foreground = WindowNumber(10);
  Press(kCtrlA);
  EXPECT_THAT(fake_.trace, ElementsAre("select all"));
}

TEST_F(IdleKeysTest, CtrlASendsNothingToOtherPrograms) {
  fake_.system.foreground = WindowNumber(999);
  Press(kCtrlA);
  EXPECT_THAT(fake_.trace, IsEmpty());
}

TEST_F(IdleKeysTest, WithoutAHotKeyKeyZeroIsQueriedAndNothingStarts) {
  fake_.settings.hotkey = L"";
  PollIdleKeys(fake_.Context());
  EXPECT_THAT(fake_.system.askedKeys, ElementsAre(0, kAltT, kCtrlA));
  EXPECT_THAT(fake_.trace, IsEmpty());
}

}  // namespace
}  // namespace capture
