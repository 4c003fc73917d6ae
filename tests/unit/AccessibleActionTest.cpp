#include "accessibility/AccessibleAction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../accessible/AccessibleNode.h"
#include "accessibility/MyAccessible.h"
#include "platform/ErrorReport.h"

namespace MyAccessible {
namespace {

using accessible::Node;
using testing::ElementsAre;

class AccessibleActionTest : public testing::Test {
 protected:
  AccessibleActionTest()
      : before_(
            platform::SetMessageBox([this](const std::wstring& text, const std::wstring& title) {
              boxes_.push_back({title, text});
            })) {
    object_.AddElement({.name = L"項目"});
  }
  ~AccessibleActionTest() override { platform::SetMessageBox(before_); }

  bool Act(std::int32_t mode, LONG child) {
    return AccAction(mode, &object_, platform::UniqueVariant(child).Get());
  }

  struct Box {
    std::wstring title;
    std::wstring text;
  };

  Node object_{{.name = L"押す"}};
  std::vector<Box> boxes_;
  platform::MessageBoxFunction before_;
};

TEST_F(AccessibleActionTest, EachModeHasItsActionOnTheChild) {
  EXPECT_FALSE(Act(1, 0));
  EXPECT_FALSE(Act(2, 1));
  EXPECT_FALSE(Act(3, 1));
  EXPECT_THAT(object_.actions, ElementsAre("default 0", "select 1 1", "select 2 1"));
  EXPECT_TRUE(boxes_.empty());
}

TEST_F(AccessibleActionTest, OtherModesDoNothing) {
  for (const std::int32_t mode : {0, -1, 4, 2'147'483'647}) EXPECT_FALSE(Act(mode, 0));
  EXPECT_TRUE(object_.actions.empty());
  EXPECT_TRUE(object_.calls.empty());
}

TEST_F(AccessibleActionTest, TheNameIsReadBeforeTheAction) {
  Act(1, 1);
  EXPECT_THAT(object_.calls, ElementsAre("accName 1", "accDoDefaultAction 1"));
}

TEST_F(AccessibleActionTest, WithoutAnObjectAMessageSaysSoEachTime) {
  for (const std::int32_t mode : {1, 2, 3, 4}) {
    boxes_.clear();
    EXPECT_TRUE(AccAction(mode, nullptr, Self()));
    ASSERT_EQ(boxes_.size(), 1U);
    EXPECT_EQ(boxes_[0].text, L"MSAAオブジェクトではありません");
  }
}

TEST_F(AccessibleActionTest, AtAPointWithoutAnObjectAMessageSaysSo) {
  for (const std::int32_t mode : {1, 2, 3}) EXPECT_TRUE(AccActionAt(mode, {-30'000, -30'000}));
  ASSERT_EQ(boxes_.size(), 3U);
  for (const Box& box : boxes_) EXPECT_EQ(box.text, L"MSAAオブジェクトではありません");
}

TEST_F(AccessibleActionTest, FailuresAreReportedUnderTheActionsName) {
  object_.failures["accDoDefaultAction"] = E_NOTIMPL;
  object_.failures["accSelect"] = E_ACCESSDENIED;
  for (const std::int32_t mode : {1, 2, 3}) EXPECT_FALSE(Act(mode, 0));
  ASSERT_EQ(boxes_.size(), 3U);
  EXPECT_EQ(boxes_[0].title, L"AccAction - accDoDefaultAction");
  EXPECT_EQ(boxes_[1].title, L"AccAction - AccSelect 1");
  EXPECT_EQ(boxes_[2].title, L"AccAction - AccSelect 2");
  // Number, blank, description, and the name of the object.
  EXPECT_TRUE(boxes_[0].text.starts_with(std::to_wstring(E_NOTIMPL) + L" ")) << boxes_[0].text;
  EXPECT_TRUE(boxes_[0].text.ends_with(L"\r\n押す")) << boxes_[0].text;
}

TEST_F(AccessibleActionTest, OtherSuccessCodesAreNotReported) {
  object_.failures["accDoDefaultAction"] = S_FALSE;
  EXPECT_FALSE(Act(1, 0));
  EXPECT_TRUE(boxes_.empty());
}

}  // namespace
}  // namespace MyAccessible
