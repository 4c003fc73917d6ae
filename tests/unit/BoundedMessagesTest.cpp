#include "browser/BoundedMessages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeBrowser.h"

namespace MyInternetexplore {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

HWND Window(int number) { return reinterpret_cast<HWND>(static_cast<INT_PTR>(number)); }

class BoundedMessagesTest : public testing::Test {
 protected:
  void Hang() { fake_.sendError = ERROR_TIMEOUT; }
  void Recover() {
    fake_.sendError = ERROR_SUCCESS;
    fake_.calls.clear();
  }

  FakeBrowser fake_;
};

TEST_F(BoundedMessagesTest, WaitTwoSecondsAtMostAndNotForAHungWindow) {
  EXPECT_EQ(fake_.messages.Send(Window(7), 500), 4711U);
  EXPECT_THAT(fake_.calls, ElementsAre("send 7 500 0 0 2 2000"));
}

TEST_F(BoundedMessagesTest, ASilentThreadGetsNoMessagesForAWhile) {
  Hang();
  EXPECT_EQ(fake_.messages.Send(Window(7), 500), 0U);
  Recover();
  EXPECT_EQ(fake_.messages.Send(Window(7), 500), 0U);
  EXPECT_EQ(fake_.messages.Send(Window(8), 500), 0U);  // of the same thread
  EXPECT_FALSE(fake_.messages.Answers(Window(8)));
  EXPECT_THAT(fake_.calls, IsEmpty());

  fake_.now += 4999;
  EXPECT_EQ(fake_.messages.Send(Window(7), 500), 0U);
  fake_.now += 1;
  EXPECT_EQ(fake_.messages.Send(Window(7), 500), 4711U);
}

TEST_F(BoundedMessagesTest, AfterATimeOutAWindowIsTested) {
  // A time-out for the first message only.
  fake_.sendError = ERROR_TIMEOUT;
  fake_.onSend = [this] {
    if (fake_.calls.size() == 2) fake_.sendError = ERROR_SUCCESS;
  };
  EXPECT_EQ(fake_.messages.Send(Window(7), 500), 0U);
  EXPECT_THAT(fake_.calls, ElementsAre("send 7 500 0 0 2 2000", "send 7 0 0 0 2 500"));
  fake_.onSend = nullptr;
  Recover();
  EXPECT_TRUE(fake_.messages.Answers(Window(7)));
  EXPECT_EQ(fake_.messages.Send(Window(8), 500), 4711U);  // of the same thread
  // One report does not wait for it twice.
  EXPECT_EQ(fake_.messages.Send(Window(7), 500), 0U);
  fake_.now += 1000;
  EXPECT_EQ(fake_.messages.Send(Window(7), 500), 4711U);
}

TEST_F(BoundedMessagesTest, OtherThreadsStillGetMessages) {
  Hang();
  fake_.messages.Send(Window(7), 500);
  Recover();
  fake_.threads[9] = 51;
  EXPECT_EQ(fake_.messages.Send(Window(9), 500), 4711U);
  EXPECT_TRUE(fake_.messages.Answers(Window(9)));
}

TEST_F(BoundedMessagesTest, ThatWhileBeginsAfterTheTimeOut) {
  Hang();
  fake_.onSend = [this] { fake_.now += 2000; };
  fake_.messages.Send(Window(7), 500);
  fake_.onSend = nullptr;
  Recover();
  fake_.now += 4999;
  EXPECT_EQ(fake_.messages.Send(Window(7), 500), 0U);
}

TEST_F(BoundedMessagesTest, OtherFailuresDoNotCountAsSilence) {
  for (const DWORD error : {5UL, 1400UL}) {  // access denied, invalid window handle
    fake_.sendError = error;
    EXPECT_EQ(fake_.messages.Send(Window(7), 500), 0U);
    EXPECT_TRUE(fake_.messages.Answers(Window(7)));
  }
}

TEST_F(BoundedMessagesTest, WhetherAWindowAnswersIsAskedWithTheEmptyMessage) {
  EXPECT_TRUE(fake_.messages.Answers(Window(7)));
  EXPECT_THAT(fake_.calls, ElementsAre("send 7 0 0 0 2 2000"));
  Hang();
  EXPECT_FALSE(fake_.messages.Answers(Window(7)));
}

}  // namespace
}  // namespace MyInternetexplore
