#include "extract/CaptionItems.h"

#include <commctrl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <optional>

#include "../ReadItems.h"
#include "FakeRecords.h"
#include "platform/UniqueHandle.h"

namespace extract {
namespace {

using testing::Contains;
using testing::ElementsAre;

constexpr UINT kComboCount = 0x146;
constexpr UINT kComboItem = 0x40D;
constexpr UINT kHeaderCount = 0x1200;
constexpr UINT kHeaderItem = 0x120B;
constexpr UINT kParts = 0x406;
constexpr UINT kPartLength = 0x40C;
constexpr UINT kPartText = 0x40D;
constexpr UINT kSimple = 0x40E;

class CaptionItemsTest : public testing::TestWithParam<bool> {
 protected:
  CaptionItemsTest() {
    if (GetParam()) target_.memory.Be64BitSystem(true);
    target_.messages.answer = [this](UINT message, WPARAM index, LPARAM parameter) {
      return Answer(message, index, parameter);
    };
  }

  std::int32_t Count() const { return count_.value_or(static_cast<std::int32_t>(texts_.size())); }

  std::int32_t Answer(UINT message, WPARAM index, LPARAM parameter) {
    const bool is64 = GetParam();
    if (message == kComboCount || message == kHeaderCount || message == kParts) return Count();
    if (message == kSimple) return simple_;
    if (message == kPartLength) {
      const std::size_t length = TextAt(index).size();
      return static_cast<std::int32_t>(length | (drawn_ == index ? 0x1000'0000 : 0));
    }
    if (bar_ && message == kPartText) {
      std::wcscpy(reinterpret_cast<wchar_t*>(parameter), TextAt(index).c_str());
      return 0;
    }
    if (message == kComboItem) {
      const FakeRecord record(parameter, {is64 ? 16U : 8U, is64 ? 24U : 12U, is64});
      EXPECT_EQ(record.Get<std::uint32_t>(0), 1U);
      record.Give(TextAt(record.Get<std::uint32_t>(is64 ? 8 : 4)));
    } else if (message == kHeaderItem) {
      const FakeRecord record(parameter, {8, is64 ? 24U : 16U, is64});
      EXPECT_EQ(record.Get<std::uint32_t>(0), 2U);
      record.Give(TextAt(index));
    }
    return 1;
  }
  std::wstring TextAt(std::size_t index) const {
    if (index == 0xFF) return L"簡易";
    return index < texts_.size() ? texts_[index] : L"";
  }

  std::wstring Read(ItemReader reader) {
    bar_ = reader == GetStatusBarItem;
    return ReadText(reader, target_.hwnd, target_.capture.Session(), target_.method,
                    target_.Access());
  }

  std::vector<std::wstring> texts_{L"一", L"", std::wstring(900, L'三')};
  std::optional<std::int32_t> count_;
  std::int32_t simple_ = 0;
  std::size_t drawn_ = 99;
  bool bar_ = false;
  FakeTarget target_;
};

INSTANTIATE_TEST_SUITE_P(Bitness, CaptionItemsTest, testing::Bool(),
                         [](const auto& is64) { return is64.param ? "Target64" : "Target32"; });

struct Kind {
  ItemReader read;
  const wchar_t* method;
};
const Kind kKinds[] = {{GetComboBoxExItem, L"CBEM_GETITEMW"},
                       {GetHeaderItem, L"HDM_GETITEMW"},
                       {GetStatusBarItem, L"SB_GETTEXTW"}};

TEST_P(CaptionItemsTest, EveryTextIsARow) {
  for (const Kind& kind : kKinds) {
    target_.capture.progress.clear();
    EXPECT_EQ(Read(kind.read), L"一\r\n\r\n" + std::wstring(900, L'三') + L"\r\n");
    EXPECT_EQ(target_.method, kind.method);
    EXPECT_THAT(target_.capture.progress, ElementsAre(L"1/3", L"2/3", L"3/3"));
  }
}

TEST_P(CaptionItemsTest, StopBeforeTheNextTextWhenThePointerLeaves) {
  for (const Kind& kind : kKinds) {
    target_.capture.target = FakeSession::kWindow;
    target_.capture.yields = 0;
    target_.capture.moveOnAfter = 1;
    EXPECT_EQ(Read(kind.read), L"一\r\n・・・中断・・・") << kind.method;
  }
}

TEST_P(CaptionItemsTest, WithoutItemsOrMemoryThereIsNothing) {
  for (const Kind& kind : kKinds) {
    for (const std::int32_t count : {0, -1}) {
      count_ = count;
      EXPECT_EQ(Read(kind.read), L"") << kind.method << count;
    }
    count_.reset();
    target_.memory.placeOfBlock = reinterpret_cast<void*>(0x9000'0000);
    EXPECT_EQ(Read(kind.read), L"") << kind.method;
    target_.memory.placeOfBlock = nullptr;
  }
  EXPECT_EQ(target_.method, L"(untouched)");
}

TEST_P(CaptionItemsTest, ACountThatLiesEnds) {
  for (const ItemReader read : {GetHeaderItem, GetStatusBarItem}) {
    count_ = 2'000'000'000;
    EXPECT_EQ(std::ranges::count(Read(read), L'\n'), 65'536);
  }
}

TEST_P(CaptionItemsTest, BlocksAreReallyReleased) {
  for (const Kind& kind : kKinds) Read(kind.read);
  std::size_t allocated = 0;
  std::size_t freed = 0;
  for (const std::string& call : target_.memory.calls) {
    allocated += call.starts_with("VirtualAllocEx") ? 1U : 0U;
    freed += call.starts_with("VirtualFreeEx") && call.ends_with(" 0 8000") ? 1U : 0U;
  }
  EXPECT_GE(allocated, 3U);
  EXPECT_EQ(allocated, freed);
}

TEST_P(CaptionItemsTest, TabsThatAlignAPartAreNotItsText) {
  texts_ = {L"\t中央", L"\t\t右", L"\t", L"左\tと"};
  EXPECT_EQ(Read(GetStatusBarItem), L"中央\r\n右\r\n\r\n左\tと\r\n");
}

TEST_P(CaptionItemsTest, APartThatItsOwnerDrawsIsEmpty) {
  texts_ = {L"一", L"\x1234\x5678"};
  drawn_ = 1;
  EXPECT_EQ(Read(GetStatusBarItem), L"一\r\n\r\n");
  EXPECT_EQ(target_.messages.Count(kPartText), 1);
}

TEST_P(CaptionItemsTest, InSimpleModeABarHasOneText) {
  simple_ = 1;
  EXPECT_EQ(Read(GetStatusBarItem), L"簡易\r\n");
}

TEST(ComboBoxExOfTest, IsTheWindowOrItsParent) {
  INITCOMMONCONTROLSEX classes{sizeof classes, ICC_USEREX_CLASSES};
  InitCommonControlsEx(&classes);
  const platform::UniqueWindow parent(CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 200, 200,
                                                      nullptr, nullptr, nullptr, nullptr));
  const platform::UniqueWindow extended(CreateWindowExW(0, WC_COMBOBOXEXW, L"",
                                                        WS_CHILD | CBS_DROPDOWNLIST, 0, 0, 100, 200,
                                                        parent.Get(), nullptr, nullptr, nullptr));
  const HWND inner = FindWindowExW(extended.Get(), nullptr, L"ComboBox", nullptr);
  ASSERT_NE(extended.Get(), nullptr);
  ASSERT_NE(inner, nullptr);
  EXPECT_EQ(ComboBoxExOf(extended.Get()), extended.Get());
  EXPECT_EQ(ComboBoxExOf(inner), extended.Get());
  const platform::UniqueWindow plain(CreateWindowExW(0, L"COMBOBOX", L"", WS_POPUP, 0, 0, 100, 200,
                                                     nullptr, nullptr, nullptr, nullptr));
  EXPECT_EQ(ComboBoxExOf(plain.Get()), nullptr);
  EXPECT_EQ(ComboBoxExOf(nullptr), nullptr);
}

}  // namespace
}  // namespace extract
