// Controls that give random answers to the readers of their items.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "../ReadItems.h"
#include "../unit/FakeTarget.h"
#include "Cases.h"
#include "extract/CaptionItems.h"
#include "extract/ListBoxItems.h"
#include "extract/ListViewItems.h"
#include "extract/ListViewRows.h"
#include "extract/TabControlItems.h"
#include "extract/ToolbarItems.h"
#include "extract/TreeViewItems.h"
#include "platform/ReadSession.h"

namespace hostile {
namespace {

constexpr int kCases = 2000;
constexpr std::size_t kBlock = 4096;  // what FakeMemory gives for each block at least

using extract::Method;

// How many bytes can be written from there on, as the system says.
std::size_t Writable(const void* address) {
  MEMORY_BASIC_INFORMATION region = {};
  if (VirtualQuery(address, &region, sizeof region) == 0 || region.Protect != PAGE_READWRITE) {
    return 0;
  }
  const auto begin = reinterpret_cast<UINT_PTR>(region.BaseAddress);
  return begin + region.RegionSize - reinterpret_cast<UINT_PTR>(address);
}

class HostileControl {
 public:
  explicit HostileControl(Random& random) : random_(random) {
    FakeMemory& memory = target.memory;
    memory.opens = !random.Chance(3);
    memory.mayQuery = !random.Chance(5);
    memory.lost = random.Chance(3);
    if (random.Chance(5)) memory.mostBlocks = random.Below(3);
    memory.platform = random.Chance(90) ? VER_PLATFORM_WIN32_NT : VER_PLATFORM_WIN32_WINDOWS;
    memory.mappingExists = random.Chance(50);
    memory.maps = random.Chance(90);
    memory.versionKnown = random.Chance(95);
    if (random.Chance(40)) memory.Be64BitSystem(random.Chance(50));
    target.messages.style = random.Bits();
    target.messages.answer = [this](UINT message, WPARAM wParam, LPARAM lParam) {
      return Answer(message, wParam, lParam);
    };
    // A control that claims two thousand million items is read until the pointer moves to another
    // window.
    leavesAfter_ = random.Below(60);
    target.capture.onYield = [this] {
      if (--leavesAfter_ > 0) return;
      if (random_.Chance(50)) {
        target.capture.GoElsewhere();
      } else {
        target.capture.running = false;
        target.capture.GoElsewhere();
      }
    };
  }

  // The rows of a text that a reader gave: whole lines without a zero character, and a mark only
  // after the last when the reading was interrupted, or when it can end by itself.
  void ExpectLines(std::wstring text, bool endsByItself = false) const {
    if (text.ends_with(platform::kInterruptedMark)) {
      text.resize(text.size() - platform::kInterruptedMark.size());
      EXPECT_TRUE(endsByItself || target.capture.target != target.hwnd);
    }
    EXPECT_EQ(text.find(L'\0'), std::wstring::npos);
    EXPECT_TRUE(text.empty() || text.ends_with(L"\r\n")) << text.size();
    EXPECT_LE(target.capture.yields, 61);
    EXPECT_EQ(target.capture.progress.size(), static_cast<std::size_t>(target.capture.yields));
  }

  FakeTarget target;

 private:
  std::int32_t Answer(UINT message, WPARAM, LPARAM lParam) {
    if (random_.Chance(2)) throw extract::TargetLost();
    if (message == LB_GETTEXT || message == CB_GETLBTEXT) {
      const std::wstring text = random_.Text(random_.Chance(2) ? 100000 : 500);
      const std::size_t room = Writable(reinterpret_cast<void*>(lParam));
      std::memcpy(reinterpret_cast<void*>(lParam), text.c_str(),
                  std::min(room, (text.size() + (random_.Chance(95) ? 1 : 0)) * sizeof(wchar_t)));
    } else {
      for (const auto& block : target.memory.blocks) {
        if (!random_.Chance(60)) continue;
        const std::string bytes = random_.Bytes(kBlock);
        std::memcpy(block.get(), bytes.data(), bytes.size());
      }
    }
    return random_.Chance(60) ? 1 + random_.Below(40) : random_.Number();
  }

  Random& random_;
  int leavesAfter_ = 0;
};

Method ReadRows(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                const extract::ControlAccess& access) {
  return extract::GetListViewRows(hwnd, session, sink, 0, access);
}

Method ReadTree(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                const extract::ControlAccess& access) {
  return extract::GetTreeViewItem(hwnd, session, sink, {true, 50}, access);
}

// One of the readers that give a line for each item.
struct NamedReader {
  const char* name;
  ItemReader read;
  bool endsByItself = false;  // where an item cannot be asked for
};

class HostileItemsTest : public testing::TestWithParam<NamedReader> {};

TEST_P(HostileItemsTest, GiveWholeLines) {
  ForEachCase(kCases, [](Random& random) {
    HostileControl control(random);
    FakeTarget& target = control.target;
    control.ExpectLines(ReadText(GetParam().read, target.hwnd, target.capture.Session(),
                                 target.method, target.Access()),
                        GetParam().endsByItself);
  });
}

INSTANTIATE_TEST_SUITE_P(Readers, HostileItemsTest,
                         testing::Values(NamedReader{"ListBoxes", extract::MyGetListBoxItem},
                                         NamedReader{"ComboBoxes", extract::MyGetComboBoxItem},
                                         NamedReader{"Toolbars", extract::GetToolbarItem},
                                         NamedReader{"TabControls", extract::GetTabControlItem},
                                         NamedReader{"ListViewRows", ReadRows},
                                         NamedReader{"Trees", ReadTree, true},
                                         NamedReader{"Headers", extract::GetHeaderItem},
                                         NamedReader{"StatusBars", extract::GetStatusBarItem},
                                         NamedReader{"ComboBoxesEx", extract::GetComboBoxExItem}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(HostileListsTest, ListViews) {
  ForEachCase(kCases, [](Random& random) {
    HostileControl control(random);
    FakeTarget& target = control.target;
    const std::wstring accessible = random.TextWithoutNul(50) + L"\r\n";
    const std::wstring text = TextOf(
        [&](platform::ItemSink& sink) {
          return extract::GetListViewItem(
              target.hwnd, target.capture.Session(), sink, random.Number(),
              [&](platform::ItemSink& children) { children.Text(accessible); }, target.Access());
        },
        target.method);
    if (target.method == L"Accessible") {
      EXPECT_EQ(text, accessible);
      return;
    }
    // When the target is lost in the middle of a row, the cells read so far stay.
    const std::size_t whole = text.rfind(L"\r\n");
    const bool lost = target.method == L"(untouched)";
    control.ExpectLines(lost ? text.substr(0, whole == std::wstring::npos ? 0 : whole + 2) : text);
  });
}

}  // namespace
}  // namespace hostile
