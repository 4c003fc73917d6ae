#include "extract/ListBoxItems.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>
#include <map>
#include <stdexcept>

#include "../ReadItems.h"
#include "FakeTarget.h"
#include "platform/ErrorReport.h"

namespace extract {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

// What differs between the two kinds of list.
struct Kind {
  const char* name;
  ItemReader read;
  UINT count;
  UINT length;
  UINT text;
  const wchar_t* label;
  DWORD hasTexts;
};

class ListBoxItemsTest : public testing::TestWithParam<Kind> {
 protected:
  ListBoxItemsTest() {
    target_.messages.answer = [this](UINT message, WPARAM item, LPARAM buffer) {
      return Answer(message, item, buffer);
    };
  }

  std::wstring Read() {
    return ReadText(GetParam().read, target_.hwnd, target_.capture.Session(), target_.method,
                    target_.Access());
  }

  std::int32_t Answer(UINT message, WPARAM item, LPARAM buffer) {
    if (message == GetParam().count) {
      return claimedCount_.value_or(static_cast<std::int32_t>(items_.size()));
    }
    if (item >= items_.size() || failing_.contains(item)) return LB_ERR;
    const std::wstring& text = items_[item];
    const std::int32_t length = static_cast<std::int32_t>(text.size());
    if (message == GetParam().length) return claimedLength_.value_or(length);
    if (message != GetParam().text) return 0;
    std::wmemcpy(reinterpret_cast<wchar_t*>(buffer), text.c_str(), text.size() + 1);
    return length;
  }

  std::vector<std::wstring> items_;
  std::map<WPARAM, bool> failing_;
  std::optional<std::int32_t> claimedCount_;
  std::optional<std::int32_t> claimedLength_;
  FakeTarget target_;
};

TEST_P(ListBoxItemsTest, EveryItemIsALineAndShowsItsNumber) {
  items_ = {L"one", L"", L"漢字\tかな\U0001F408"};
  EXPECT_EQ(Read(), L"one\r\n\r\n漢字\tかな\U0001F408\r\n");
  EXPECT_EQ(target_.method, GetParam().label);
  EXPECT_THAT(target_.capture.progress, ElementsAre(L"0/2", L"1/2", L"2/2"));
  EXPECT_EQ(target_.capture.yields, 3);
}

TEST_P(ListBoxItemsTest, TheMessagesOfItsKindAreSent) {
  items_ = {L"one", L"two"};
  Read();
  const Kind& kind = GetParam();
  std::vector<UINT> messages;
  for (const auto& sent : target_.messages.sent) {
    EXPECT_EQ(sent.hwnd, target_.hwnd);
    EXPECT_EQ(sent.lParam != 0, sent.message == kind.text);
    messages.push_back(sent.message);
  }
  EXPECT_THAT(messages, ElementsAre(kind.count, kind.length, kind.text, kind.length, kind.text));
  EXPECT_EQ(target_.messages.sent[0].wParam, 0U);
  EXPECT_EQ(target_.messages.sent[4].wParam, 1U);
  EXPECT_THAT(target_.memory.calls, IsEmpty());
}

TEST_P(ListBoxItemsTest, AnEmptyListIsNoTextWithALabel) {
  EXPECT_EQ(Read(), L"");
  EXPECT_EQ(target_.method, GetParam().label);
  EXPECT_EQ(target_.capture.yields, 0);
}

TEST_P(ListBoxItemsTest, ANegativeCountIsAnEmptyList) {
  for (const std::int32_t count : {-1, -2, INT32_MIN}) {
    claimedCount_ = count;
    EXPECT_EQ(Read(), L"");
    EXPECT_EQ(target_.method, GetParam().label);
  }
}

TEST_P(ListBoxItemsTest, AnItemThatIsNotGivenIsAnEmptyLine) {
  items_ = {L"one", L"two", L"three"};
  failing_[1] = true;
  EXPECT_EQ(Read(), L"one\r\n\r\nthree\r\n");
  EXPECT_THAT(target_.capture.progress, ElementsAre(L"0/2", L"1/2", L"2/2"));
  EXPECT_EQ(target_.capture.yields, 3);
}

TEST_P(ListBoxItemsTest, WhatWasWrittenCountsNotWhatWasAnswered) {
  items_ = {L"one", L"two"};
  const auto honest = target_.messages.answer;
  target_.messages.answer = [&](UINT message, WPARAM item, LPARAM buffer) {
    const std::int32_t answer = honest(message, item, buffer);
    return message == GetParam().text ? LB_ERR : answer;
  };
  EXPECT_EQ(Read(), L"one\r\ntwo\r\n");
}

TEST_P(ListBoxItemsTest, AnItemWithoutAnEndIsLeftOut) {
  items_ = {L"one", L"two", L"three"};
  const auto honest = target_.messages.answer;
  target_.messages.answer = [&](UINT message, WPARAM item, LPARAM buffer) {
    if (message != GetParam().text || item != 1) return honest(message, item, buffer);
    // All of the buffer, up to the page that ends it.
    MEMORY_BASIC_INFORMATION block = {};
    VirtualQuery(reinterpret_cast<void*>(buffer), &block, sizeof block);
    std::wmemset(reinterpret_cast<wchar_t*>(buffer), L'x', block.RegionSize / sizeof(wchar_t));
    return 3;
  };
  EXPECT_EQ(Read(), L"one\r\nthree\r\n");
  EXPECT_EQ(target_.capture.yields, 3);
}

TEST_P(ListBoxItemsTest, AnItemDoesNotShowTheRestOfTheOneBefore) {
  items_ = {std::wstring(5000, L'a'), L"b"};
  const auto honest = target_.messages.answer;
  target_.messages.answer = [&](UINT message, WPARAM item, LPARAM buffer) {
    if (message != GetParam().text || item != 1) return honest(message, item, buffer);
    std::wmemcpy(reinterpret_cast<wchar_t*>(buffer), L"bb", 2);  // without a zero
    return 2;
  };
  EXPECT_EQ(Read(), std::wstring(5000, L'a') + L"\r\nbb\r\n");
}

TEST_P(ListBoxItemsTest, LongItemsArriveWhole) {
  for (const std::size_t length : {1023U, 1024U, 1025U, 5000U, 70'000U, 1'000'000U}) {
    items_ = {std::wstring(length, L'長'), L"short"};
    EXPECT_EQ(Read(), items_[0] + L"\r\nshort\r\n") << length;
  }
}

TEST_P(ListBoxItemsTest, AnItemMayGrowBetweenTheTwoMessages) {
  items_ = {std::wstring(60'000, L'g')};
  for (const std::int32_t length : {-1, -2, INT32_MIN, 0, 3}) {
    claimedLength_ = length;
    EXPECT_EQ(Read(), items_[0] + L"\r\n") << length;
  }
}

TEST_P(ListBoxItemsTest, AHugeLengthIsNotBelieved) {
  items_ = {L"one", L"two"};
  claimedLength_ = INT32_MAX;
  EXPECT_EQ(Read(), L"one\r\ntwo\r\n");
}

TEST_P(ListBoxItemsTest, ValuesOfAnOwnerThatDrawsTheItemsAreNoTexts) {
  items_ = {L"\x47E0|", L"\x68A0|", L"a text of another length"};
  claimedLength_ = 4;
  for (const DWORD ownerDrawn : {0x10U, 0x20U}) {
    target_.messages.style = ownerDrawn;
    EXPECT_EQ(Read(), L"");
    EXPECT_EQ(target_.method, GetParam().label);
    target_.messages.style = ownerDrawn | GetParam().hasTexts;
    EXPECT_NE(Read(), L"");
  }
  EXPECT_NE(Read(), L"");
  target_.messages.style = 0x10;
  claimedLength_.reset();
  items_ = {L"five5", L"four"};
  EXPECT_EQ(Read(), L"five5\r\n");
}

TEST_P(ListBoxItemsTest, AControlThatGivesNothingIsReadUntilThePointerLeaves) {
  claimedCount_ = INT32_MAX;
  items_ = {L"one"};
  target_.capture.moveOnAfter = 3000;
  std::wstring expected = L"one\r\n";
  for (int i = 1; i < 3000; ++i) expected += L"\r\n";
  EXPECT_EQ(Read(), expected + L"・・・中断・・・");
  EXPECT_EQ(target_.method, GetParam().label);
}

TEST_P(ListBoxItemsTest, ReadingValuesOfAnOwnerEndsWhenThePointerLeaves) {
  claimedCount_ = INT32_MAX;
  items_ = {L"data"};
  target_.messages.style = LBS_OWNERDRAWFIXED;
  target_.messages.answer = [&](UINT message, WPARAM, LPARAM) {
    return message == GetParam().count ? INT32_MAX : 4;
  };
  target_.capture.moveOnAfter = 20;
  EXPECT_EQ(Read(), L"・・・中断・・・");
}

TEST_P(ListBoxItemsTest, ANewTargetInterruptsBeforeTheNextItem) {
  items_ = {L"one", L"two", L"three"};
  target_.capture.onYield = [&] {
    if (target_.capture.yields == 2) target_.capture.GoElsewhere();
  };
  EXPECT_EQ(Read(), L"one\r\ntwo\r\n・・・中断・・・");
  EXPECT_EQ(target_.method, GetParam().label);
  EXPECT_EQ(target_.messages.Count(GetParam().text), 2);
}

TEST_P(ListBoxItemsTest, ATargetThatChangedAlreadyIsNotRead) {
  items_ = {L"one"};
  target_.capture.GoElsewhere();
  EXPECT_EQ(Read(), L"・・・中断・・・");
  EXPECT_EQ(target_.method, GetParam().label);
}

TEST_P(ListBoxItemsTest, ANewTargetAfterTheLastItemInterruptsNothing) {
  items_ = {L"one", L"two"};
  target_.capture.onYield = [&] {
    if (target_.capture.yields == 2) target_.capture.GoElsewhere();
  };
  EXPECT_EQ(Read(), L"one\r\ntwo\r\n");
}

TEST_P(ListBoxItemsTest, AFailureKeepsWhatWasReadAndShowsNothing) {
  int boxes = 0;
  const auto before = platform::SetMessageBox([&](const auto&, const auto&) { ++boxes; });
  items_ = {L"one", L"two", L"three"};
  target_.capture.onYield = [&] {
    if (target_.capture.yields == 2) throw std::runtime_error("no screen");
  };
  EXPECT_EQ(Read(), L"one\r\ntwo\r\n");
  EXPECT_EQ(target_.method, L"(untouched)");
  platform::SetMessageBox(before);
  EXPECT_EQ(boxes, 0);
}

constexpr Kind kKinds[] = {
    {"ListBox", MyGetListBoxItem, 0x18B, 0x18A, 0x189, L"LB_GETTEXT", LBS_HASSTRINGS},
    {"ComboBox", MyGetComboBoxItem, 0x146, 0x149, 0x148, L"CB_GETLBTEXT", CBS_HASSTRINGS},
};

INSTANTIATE_TEST_SUITE_P(Kinds, ListBoxItemsTest, testing::ValuesIn(kKinds),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace extract
