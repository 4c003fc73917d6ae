// The keys that act during a capture.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CaptureLoopFixture.h"

namespace capture {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class CaptureKeysTest : public CaptureLoopFixture {};

TEST_F(CaptureKeysTest, TheHotKeyStops) {
  fake_.system.onSleep = [this] {
    if (fake_.system.sleeps == 7) fake_.system.pressed.insert(kEsc);
    ASSERT_LT(fake_.system.sleeps, 100);
  };
  Capture();
  EXPECT_EQ(fake_.system.sleeps, 7);
}

TEST_F(CaptureKeysTest, WithContinueTheHotKeyCopiesAndTheCaptureGoesOn) {
  fake_.settings.continueCapture = 1;
  fake_.settings.clipboard = 4;
  fake_.view.texts[ViewText::TopPane] = L"上の文字";
  Run(20, [this](int pass) {
    if (pass == 3) fake_.system.pressed.insert(kEsc);
    if (pass == 4) {
      EXPECT_EQ(Text(ViewText::lblMsg), L"上段 クリップボード転送完了");
    }
  });
  EXPECT_EQ(fake_.system.sleeps, 20);
  EXPECT_EQ(fake_.system.clipboard, L"上の文字");
}

TEST_F(CaptureKeysTest, TheActionKeyActsOnceASecond) {
  fake_.settings.actionTest = 3;
  fake_.system.down.insert(kCtrl);
  Run(300);
  EXPECT_THAT(fake_.system.actions, ElementsAre(3, 3, 3));
  EXPECT_EQ(fake_.system.actionTicks[1] - fake_.system.actionTicks[0], 1010U);
  EXPECT_EQ(fake_.system.actionPoint.x, 50);
}

TEST_F(CaptureKeysTest, TheSecondCountsFromTheEndOfTheAction) {
  fake_.settings.actionTest = 1;
  fake_.system.down.insert(kCtrl);
  // A message box that stays open for a while.
  fake_.system.onAction = [this] { fake_.system.now += 1500; };
  Run(110);
  ASSERT_THAT(fake_.system.actionTicks, SizeIs(2));
  EXPECT_EQ(fake_.system.actionTicks[1] - fake_.system.actionTicks[0], 2510U);
}

TEST_F(CaptureKeysTest, AnActionThatFailsIsNotRepeatedInEveryPass) {
  fake_.settings.actionTest = 1;
  fake_.system.down.insert(kCtrl);
  fake_.system.onAction = [] { throw std::runtime_error("the action fails"); };
  Run(50);
  EXPECT_THAT(fake_.system.actions, SizeIs(1));
}

TEST_F(CaptureKeysTest, TheActionKeyNeedsASetting) {
  fake_.system.down.insert(kCtrl);
  Run(50);
  EXPECT_THAT(fake_.system.actions, IsEmpty());
}

TEST_F(CaptureKeysTest, TheActionKeyIsTheOneOfTheState) {
  fake_.settings.actionTest = 1;
  fake_.state.ActionKeyCode = L"18";
  fake_.system.down.insert(kCtrl);
  Run(5);
  EXPECT_THAT(fake_.system.actions, IsEmpty());
}

}  // namespace
}  // namespace capture
