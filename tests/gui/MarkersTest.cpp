// The red squares around a read point that is shifted away from the pointer.
#include <windows.h>

#include <gtest/gtest.h>

#include <array>

#include "DialogWindow.h"
#include "bed/Needs.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Screen.h"
#include "driver/Target.h"
#include "driver/Windows.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr Milliseconds kTenSeconds{10000};

class MarkersTest : public GuiTest {
 protected:
  static HWND Marker(const Program& program, int index) {
    const std::string name = "frmP" + std::to_string(index);
    for (HWND window : VisibleWindows(program.Process().Id())) {
      if (Control(window, "").ClassName() == name) return window;
    }
    return nullptr;
  }

  static int CountMarkers(const Program& program) {
    int count = 0;
    for (int i = 0; i < 4; ++i) count += Marker(program, i) != nullptr ? 1 : 0;
    return count;
  }

  static testing::AssertionResult MarkersShow(const Program& program, int count) {
    return TextBecomes("the number of markers", std::to_string(count),
                       [&] { return std::to_string(CountMarkers(program)); });
  }

  static std::string Place(const Program& program, int index) {
    const HWND window = Marker(program, index);
    if (window == nullptr) return "(not shown)";
    RECT at = {};
    GetWindowRect(window, &at);
    return std::to_string(at.left) + "," + std::to_string(at.top) + " " +
           std::to_string(at.right - at.left) + "x" + std::to_string(at.bottom - at.top);
  }

  static testing::AssertionResult SurroundPoint(const Program& program, POINT point) {
    constexpr std::array<POINT, 4> kCorners{{{-2, -2}, {2, -2}, {2, 2}, {-2, 2}}};
    for (int i = 0; i < 4; ++i) {
      const POINT corner = kCorners[static_cast<std::size_t>(i)];
      const std::string expected =
          std::to_string(point.x + corner.x) + "," + std::to_string(point.y + corner.y) + " 2x2";
      const testing::AssertionResult result =
          TextBecomes("marker " + std::to_string(i), expected, [&] { return Place(program, i); });
      if (!result) return result;
    }
    return testing::AssertionSuccess();
  }

  // On the screen: 2 by 2 red pixels at each corner, and none between.
  static testing::AssertionResult ShowsRedCorners(POINT point) {
    return WaitFor("four red squares are painted", [&](std::string& seen) {
      const Picture picture = Picture::Of({point.x - 4, point.y - 4, point.x + 6, point.y + 6});
      seen = std::to_string(picture.Count(kRed)) + " red pixels";
      if (picture.Count(kRed) != 16) return false;
      for (const int x : {2, 3, 6, 7}) {
        for (const int y : {2, 3, 6, 7}) {
          if (picture.At(x, y) != kRed) return false;
        }
      }
      return true;
    });
  }
};

TEST_F(MarkersTest, SurroundTheReadPointAndFollowThePointer) {
  const Fixture fixture("title=t blank panel");
  const Program program({.conf = "shift = 1\nshiftx = 25\nshifty = -8\n"});
  program.StartCapture();
  for (const char* kind : {"blank", "panel"}) {
    const POINT center = fixture[kind].Center();
    pointer::MoveTo({center.x - 25, center.y + 8});
    EXPECT_TRUE(SurroundPoint(program, center));
    EXPECT_TRUE(ShowsRedCorners(center));
    EXPECT_EQ(WindowFromPoint(center), fixture[kind].Handle());
    // The window at the read point is read, not the one under the pointer, and never a marker.
    EXPECT_TRUE(program[ui::txthWnd].TextBecomes(fixture[kind].HandleText()));
  }
  program.StopCapture();
  EXPECT_TRUE(MarkersShow(program, 0));
  program.StartCapture();
  EXPECT_TRUE(MarkersShow(program, 4));
}

TEST_F(MarkersTest, AreTopmostAndBorderless) {
  const Program program({.conf = "shift = 1\n"});
  program.StartCapture();
  ASSERT_TRUE(MarkersShow(program, 4));
  for (int i = 0; i < 4; ++i) {
    const HWND window = Marker(program, i);
    EXPECT_NE(GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    EXPECT_EQ(GetWindowLongPtrW(window, GWL_STYLE) & (WS_BORDER | WS_DLGFRAME | WS_THICKFRAME), 0);
  }
}

TEST_F(MarkersTest, StayAwayWithoutShift) {
  const Program program({.conf = "shift = 0\n"});
  program.StartCapture();
  EXPECT_TRUE(Stays(
      "no marker shows", [&](std::string&) { return CountMarkers(program) == 0; },
      Milliseconds(1500)));
}

TEST_F(MarkersTest, AreNotClippedAtTheScreensEdges) {
  const Program program({.conf = "shift = 1\nshiftx = 0\nshifty = 0\n"
                                 "form left = 400\nform top = 300\nform right = 800\n"
                                 "form bottom = 700\n"});
  program.StartCapture();
  const LONG right = GetSystemMetrics(SM_CXSCREEN) - 1;
  const LONG bottom = GetSystemMetrics(SM_CYSCREEN) - 1;
  for (const POINT corner :
       {POINT{0, 0}, POINT{right, 0}, POINT{right, bottom}, POINT{0, bottom}}) {
    pointer::MoveTo(corner);
    EXPECT_TRUE(SurroundPoint(program, corner)) << corner.x << "," << corner.y;
  }
  // The part on the screen is painted: the whole marker right below the upper left corner.
  pointer::MoveTo({0, 0});
  EXPECT_TRUE(WaitFor("the marker in the corner is red", [](std::string&) {
    return Picture::Of({2, 2, 4, 4}).Count(kRed) == 4;
  }));
  pointer::MoveTo({1, bottom});
  EXPECT_TRUE(WaitFor("the marker at the edge is red", [bottom](std::string&) {
    return Picture::Of({3, bottom - 2, 5, bottom}).Count(kRed) == 4;
  }));
}

TEST_F(MarkersTest, GoWithinASecondWhenShiftIsSwitchedOff) {
  const Program program({.conf = "shift = 1\nsetting no = 3\n"});
  const DialogWindow dialog = OpenSettings(program);
  program.StartCapture();
  ASSERT_TRUE(MarkersShow(program, 4));
  dialog[ui::chkShift].PressButton();
  EXPECT_TRUE(TextBecomes(
      "the number of markers", "0", [&] { return std::to_string(CountMarkers(program)); },
      Milliseconds(1500)));
  dialog[ui::chkShift].PressButton();
  EXPECT_TRUE(MarkersShow(program, 4));
}

TEST_F(MarkersTest, ComeBackAboveAnotherTopmostWindowWithinASecond) {
  const Fixture fixture("title=t blank");
  const HWND other = fixture["main"].Handle();
  const Program program({.conf = "shift = 1\nshiftx = 25\nshifty = -8\ndisp top = 0\n"});
  program.StartCapture();
  const POINT center = fixture["blank"].Center();
  pointer::MoveTo({center.x - 25, center.y + 8});
  ASSERT_TRUE(SurroundPoint(program, center));
  ASSERT_TRUE(ShowsRedCorners(center));
  const auto isAbove = [&](int index) {
    for (HWND w = GetWindow(Marker(program, index), GW_HWNDNEXT); w != nullptr;
         w = GetWindow(w, GW_HWNDNEXT)) {
      if (w == other) return true;
    }
    return false;
  };
  const auto countAbove = [&] {
    int count = 0;
    for (int i = 0; i < 4; ++i) count += isAbove(i) ? 1 : 0;
    return count;
  };
  // Again when the markers were shown at that moment.
  ASSERT_TRUE(WaitFor("the window is above the markers", [&](std::string&) {
    SetWindowPos(other, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return countAbove() == 0;
  }));
  EXPECT_TRUE(TextBecomes(
      "the number of markers above the window", "4", [&] { return std::to_string(countAbove()); },
      Milliseconds(1500)));
  EXPECT_TRUE(ShowsRedCorners(center));
}

TEST_F(MarkersTest, LeaveAnOpenMenuAndTheForegroundAlone) {
  NEEDS(bed::ProgramsOfWine());
  const WineProgram notepad("notepad.exe", "", "Notepad");
  notepad.MoveTo(100, 100, 500, 400);
  const Program program({.conf = "shift = 1\nshiftx = 60\nshifty = 40\n"
                                 "form left = 700\nform top = 500\nform right = 1100\n"
                                 "form bottom = 900\n"});
  program.StartCapture();
  const RECT at = notepad.Window().Rectangle();
  // The menu bar is above the inner area.
  POINT corner = {};
  ClientToScreen(notepad.Window().Handle(), &corner);
  pointer::Click({corner.x + 15, corner.y - GetSystemMetrics(SM_CYMENU) / 2});
  const auto menuIsOpen = [&] {
    DWORD process = 0;
    GetWindowThreadProcessId(notepad.Window().Handle(), &process);
    for (HWND window : VisibleWindows(process)) {
      if (Control(window, "").ClassName() == "#32768") return true;
    }
    return false;
  };
  ASSERT_TRUE(WaitFor("the menu is open", [&](std::string&) { return menuIsOpen(); }));
  const POINT point = {at.left + 300, at.top + 250};
  const POINT below = {point.x - 60, point.y - 40};
  pointer::MoveTo(below);
  ASSERT_TRUE(SurroundPoint(program, point));
  EXPECT_TRUE(Stays(
      "the menu stays open and the program in front",
      [&](std::string& seen) {
        // A program with an open menu may report an earlier position of the pointer late.
        POINT now = {};
        GetCursorPos(&now);
        if (now.x != below.x || now.y != below.y) pointer::MoveTo(below);
        seen = Control(GetForegroundWindow(), "").ClassName();
        return menuIsOpen() && GetForegroundWindow() == notepad.Window().Handle();
      },
      kTenSeconds));
  EXPECT_TRUE(SurroundPoint(program, point));
  EXPECT_TRUE(ShowsRedCorners(point));
}

TEST_F(MarkersTest, LeaveTheFocusWhereTheUserTypes) {
  const Program program({.conf = "shift = 1\nsetting no = 3\nhotkey = F9\n"});
  program.StartCapture();
  ASSERT_TRUE(MarkersShow(program, 4));
  const DialogWindow dialog = OpenSettings(program);
  dialog[ui::txtShift0].Click();
  ASSERT_TRUE(WaitFor("the box has the focus",
                      [&](std::string&) { return dialog[ui::txtShift0].HasFocus(); }));
  EXPECT_TRUE(Stays(
      "the box keeps the focus",
      [&](std::string&) {
        return dialog[ui::txtShift0].HasFocus() &&
               GetForegroundWindow() == dialog.Window().Handle();
      },
      Milliseconds(3000)));
  // A list that is open stays open.
  keys::Stroke({VK_SHIFT, VK_TAB});
  keys::Stroke({VK_SHIFT, VK_TAB});
  const Control list = dialog[ui::cmbAutoStop];
  keys::Stroke({VK_MENU, VK_DOWN}, Milliseconds(50));
  const auto isOpen = [&](std::string&) {
    return SendMessageW(list.Handle(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
  };
  ASSERT_TRUE(WaitFor("the list is open", isOpen));
  EXPECT_TRUE(Stays("the list stays open", isOpen, Milliseconds(3000)));
}

}  // namespace
}  // namespace gui
