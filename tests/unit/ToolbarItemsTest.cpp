#include "extract/ToolbarItems.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "../ReadItems.h"
#include "FakeTarget.h"
#include "platform/TextCodec.h"

namespace extract {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr UINT kButtonCount = 0x418;
constexpr UINT kButton = 0x417;
constexpr UINT kButtonText = 0x42D;

struct Button {
  std::int32_t command;
  std::optional<std::wstring> text;
  bool given = true;
};

class ToolbarItemsTest : public testing::Test {
 protected:
  ToolbarItemsTest() {
    target_.messages.answer = [this](UINT message, WPARAM which, LPARAM block) {
      return Answer(message, which, reinterpret_cast<char*>(block));
    };
  }

  std::wstring Read() {
    return ReadText(GetToolbarItem, target_.hwnd, target_.capture.Session(), target_.method,
                    target_.Access());
  }

  std::int32_t Answer(UINT message, WPARAM which, char* block) {
    if (message == kButtonCount) {
      return count_.value_or(static_cast<std::int32_t>(buttons_.size()));
    }
    if (message == kButton) {
      if (which >= buttons_.size() || !buttons_[which].given) return 0;
      std::memset(block, 0x33, 32);
      std::memcpy(block + 4, &buttons_[which].command, 4);
      return 1;
    }
    for (const Button& button : buttons_) {
      if (message != kButtonText || static_cast<WPARAM>(button.command) != which) continue;
      if (!button.text) return -1;
      const std::string bytes = platform::ToAnsi(*button.text);
      std::memcpy(block, bytes.c_str(), bytes.size() + 1);
      return static_cast<std::int32_t>(bytes.size());
    }
    return -1;
  }

  std::vector<Button> buttons_;
  std::optional<std::int32_t> count_;
  FakeTarget target_;
};

TEST_F(ToolbarItemsTest, EveryTextIsALine) {
  buttons_ = {{100, L"Open"}, {-5, std::nullopt}, {102, L""}, {0x12345, L"&Save as\t..."}};
  EXPECT_EQ(Read(), L"Open\r\n&Save as\t...\r\n");
  EXPECT_EQ(target_.method, L"TB_GETBUTTON");
  EXPECT_THAT(target_.capture.progress, ElementsAre(L"1/4", L"2/4", L"3/4", L"4/4"));
  EXPECT_EQ(target_.capture.yields, 4);
}

TEST_F(ToolbarItemsTest, OneBlockServesTheRecordAndTheText) {
  buttons_ = {{100, L"Open"}, {101, std::nullopt}};
  Read();
  EXPECT_THAT(
      target_.memory.calls,
      ElementsAre("OpenProcess 38 0 4d", "VirtualAllocEx 51 0 7c 3000 4", "Read 0 79", "Read 0 79",
                  "Read 0 79", "VirtualFreeEx 51 0 7c ffff8000", "CloseHandle 51"));
  const auto& sent = target_.messages.sent;
  ASSERT_EQ(sent.size(), 5U);
  EXPECT_EQ(sent[1].message, kButton);
  EXPECT_EQ(sent[1].wParam, 0U);
  EXPECT_EQ(sent[2].message, kButtonText);
  EXPECT_EQ(sent[2].wParam, 100U);
  EXPECT_EQ(sent[2].lParam, sent[1].lParam);
  EXPECT_EQ(sent[3].wParam, 1U);
}

TEST_F(ToolbarItemsTest, AButtonThatIsNotGivenIsNotAskedForItsText) {
  buttons_ = {{100, L"Open", false}, {101, L"Save"}};
  EXPECT_EQ(Read(), L"Save\r\n");
  EXPECT_EQ(target_.messages.Count(kButtonText), 1);
  EXPECT_EQ(target_.capture.yields, 2);
}

TEST_F(ToolbarItemsTest, TargetsOfEitherKindAreReadAlike) {
  buttons_ = {{100, L"Open"}};
  for (const bool is64 : {false, true}) {
    target_.memory.Be64BitSystem(is64);
    EXPECT_EQ(Read(), L"Open\r\n") << is64;
  }
}

TEST_F(ToolbarItemsTest, ATextThatIsLongerThanTheBlockIsCutThere) {
  buttons_ = {
      {1, std::wstring(120, L'a')}, {2, std::wstring(121, L'b')}, {3, std::wstring(300, L'c')}};
  EXPECT_EQ(Read(), std::wstring(120, L'a') + L"\r\n" + std::wstring(121, L'b') + L"\r\n" +
                        std::wstring(121, L'c') + L"\r\n");
}

TEST_F(ToolbarItemsTest, AToolbarWithoutButtonsIsNoTextWithALabel) {
  for (const std::int32_t count : {0, -1, INT32_MIN}) {
    count_ = count;
    target_.method.clear();
    EXPECT_EQ(Read(), L"");
    EXPECT_EQ(target_.method, L"TB_GETBUTTON");
  }
}

TEST_F(ToolbarItemsTest, ANewTargetInterruptsBeforeTheNextButton) {
  buttons_ = {{100, L"Open"}, {101, L"Save"}, {102, L"Close"}};
  target_.capture.onYield = [&] {
    if (target_.capture.yields == 2) target_.capture.GoElsewhere();
  };
  EXPECT_EQ(Read(), L"Open\r\nSave\r\n・・・中断・・・");
  EXPECT_EQ(target_.method, L"TB_GETBUTTON");
  EXPECT_EQ(target_.messages.Count(kButton), 2);
}

TEST_F(ToolbarItemsTest, TargetsWithoutMemoryForUsGiveNothing) {
  buttons_ = {{100, L"Open"}};
  target_.memory.mostBlocks = 0;
  EXPECT_EQ(Read(), L"");
  target_.memory.opens = false;
  EXPECT_EQ(Read(), L"");
  EXPECT_EQ(target_.method, L"(untouched)");
  EXPECT_EQ(target_.messages.Count(kButton), 0);
}

TEST_F(ToolbarItemsTest, ATargetThatEndsMeanwhileLeavesWhatWasRead) {
  buttons_ = {{100, L"Open"}, {101, L"Save"}};
  target_.capture.onYield = [&] { target_.memory.lost = true; };
  EXPECT_EQ(Read(), L"Open\r\n");
  EXPECT_EQ(target_.method, L"(untouched)");
}

TEST_F(ToolbarItemsTest, TheOlderFamilyUsesASharedBlockOfItsOwnName) {
  target_.memory.platform = 1;
  buttons_ = {{100, L"Open"}};
  EXPECT_EQ(Read(), L"Open\r\n");
  EXPECT_EQ(target_.memory.calls[0], "OpenFileMapping 121 f001f 0");
}

TEST_F(ToolbarItemsTest, AHugeNumberOfButtonsIsNotBelieved) {
  count_ = INT32_MAX;
  buttons_ = {{100, L"Open"}};
  EXPECT_EQ(Read(), L"Open\r\n");
  EXPECT_EQ(target_.capture.yields, 65536);
}

}  // namespace
}  // namespace extract
