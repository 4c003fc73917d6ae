// What all readers of items share: when they stop, how they show progress, and which answers they
// need.

#include "extract/ItemReading.h"

#include <commctrl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cwchar>

#include "../ReadItems.h"
#include "FakeTarget.h"
#include "extract/ListBoxItems.h"
#include "extract/ListViewItems.h"
#include "extract/TabControlItems.h"
#include "extract/ToolbarItems.h"

namespace extract {
namespace {

constexpr std::wstring_view kMark = L"・・・中断・・・";

Method ReadRows(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                const ControlAccess& access) {
  return GetListViewItem(
      hwnd, session, sink, 0, [](platform::ItemSink&) {}, access);
}

struct Reader {
  const char* name;
  ItemReader read;
  UINT count;
  UINT text;  // the message that requests an item's text
};

// A control of any kind with the items "one", "two" and "three".
class ItemReadingTest : public testing::TestWithParam<Reader> {
 protected:
  ItemReadingTest() {
    target_.messages.answer = [this](UINT message, WPARAM wParam, LPARAM lParam) {
      return Answer(message, wParam, lParam);
    };
  }

  std::wstring Read() {
    return ReadText(GetParam().read, target_.hwnd, target_.capture.Session(), target_.method,
                    target_.Access());
  }

  int TextsAsked() const { return target_.messages.Count(GetParam().text); }

  static std::uint32_t Field(LPARAM record, std::size_t offset) {
    std::uint32_t field = 0;
    std::memcpy(&field, reinterpret_cast<const char*>(record) + offset, sizeof field);
    return field;
  }
  // Where a record says that the text should go.
  static char* Place(LPARAM record, std::size_t offset) {
    return reinterpret_cast<char*>(static_cast<std::uintptr_t>(Field(record, offset)));
  }

  std::int32_t Answer(UINT message, WPARAM wParam, LPARAM lParam) const {
    if (message == GetParam().count) return 3;
    switch (message) {
      case LVM_GETHEADER:
      case HDM_GETITEMCOUNT:
        return 1;
      case LB_GETTEXT:
      case CB_GETLBTEXT: {
        const std::string name = kItems[wParam];
        const std::wstring wide(name.begin(), name.end());
        std::wcscpy(reinterpret_cast<wchar_t*>(lParam), wide.c_str());
        return static_cast<std::int32_t>(wide.size());
      }
      case TB_GETBUTTON: {
        const auto command = static_cast<std::int32_t>(wParam);
        std::memcpy(reinterpret_cast<char*>(lParam) + 4, &command, sizeof command);
        return TRUE;
      }
      case TB_GETBUTTONTEXTA:
        std::strcpy(reinterpret_cast<char*>(lParam), kItems[wParam]);
        return 3;
      case LVM_GETITEMA:
        std::strcpy(Place(lParam, 20), kItems[Field(lParam, 4)]);
        return itemAnswer_;
      case TCM_GETITEMA:
        std::strcpy(Place(lParam, 12), kItems[wParam]);
        return itemAnswer_;
      default:
        return 0;
    }
  }

  static constexpr const char* kItems[] = {"one", "two", "three"};
  std::int32_t itemAnswer_ = TRUE;
  FakeTarget target_;
};

TEST_P(ItemReadingTest, TheProgressIsShownBeforeTheReaderYields) {
  target_.capture.onYield = [this] {
    EXPECT_EQ(static_cast<int>(target_.capture.progress.size()), target_.capture.yields);
  };
  EXPECT_EQ(Read(), L"one\r\ntwo\r\nthree\r\n");
  EXPECT_EQ(target_.capture.yields, 3);
}

// A capture that was stopped shows all items; only the rows of a list view, which may be very many,
// end with it.
TEST_P(ItemReadingTest, TheEndOfTheCaptureEndsTheRowsOfAListViewAlone) {
  target_.capture.endAfter = 1;
  const bool rows = GetParam().text == LVM_GETITEMA;
  EXPECT_EQ(Read(), rows ? L"one\r\n" + std::wstring(kMark) : L"one\r\ntwo\r\nthree\r\n");
  EXPECT_EQ(TextsAsked(), rows ? 1 : 3);
}

TEST_P(ItemReadingTest, ThePointerThatHasLeftEndsTheReadingAtTheFirstItem) {
  target_.capture.GoElsewhere();
  const bool rows = GetParam().text == LVM_GETITEMA;
  // A list view tests the session after each row.
  EXPECT_EQ(Read(), rows ? L"one\r\n" + std::wstring(kMark) : std::wstring(kMark));
  EXPECT_EQ(TextsAsked(), rows ? 1 : 0);
}

TEST_P(ItemReadingTest, ThePointerThatLeavesEndsTheReadingBeforeTheLastItem) {
  target_.capture.moveOnAfter = 2;
  EXPECT_EQ(Read(), L"one\r\ntwo\r\n" + std::wstring(kMark));
  EXPECT_EQ(TextsAsked(), 2);
}

TEST_P(ItemReadingTest, AfterTheLastItemThereIsNothingToInterrupt) {
  target_.capture.moveOnAfter = 3;
  const bool rows = GetParam().text == LVM_GETITEMA;
  EXPECT_EQ(Read(), L"one\r\ntwo\r\nthree\r\n" + std::wstring(rows ? kMark : L""));
}

// The text was emptied before, so it shows whether the item was given.
TEST_P(ItemReadingTest, ATextCountsWhateverTheControlAnswers) {
  itemAnswer_ = FALSE;
  EXPECT_EQ(Read(), L"one\r\ntwo\r\nthree\r\n");
}

constexpr Reader kReaders[] = {
    {"ListBox", MyGetListBoxItem, LB_GETCOUNT, LB_GETTEXT},
    {"ComboBox", MyGetComboBoxItem, CB_GETCOUNT, CB_GETLBTEXT},
    {"ListView", ReadRows, LVM_GETITEMCOUNT, LVM_GETITEMA},
    {"Toolbar", GetToolbarItem, TB_BUTTONCOUNT, TB_GETBUTTONTEXTA},
    {"TabControl", GetTabControlItem, TCM_GETITEMCOUNT, TCM_GETITEMA},
};

INSTANTIATE_TEST_SUITE_P(Readers, ItemReadingTest, testing::ValuesIn(kReaders),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace extract
