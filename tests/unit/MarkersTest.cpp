#include "bed/Needs.h"
#include "ui/Markers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::pair<long, long> Place(std::size_t index, POINT point) {
  const POINT place = MarkerPlace(index, point);
  return {place.x, place.y};
}

TEST(MarkerPlaceTest, StandsAtTheFourDiagonalCorners) {
  EXPECT_EQ(Place(0, {100, 200}), std::pair(98L, 198L));
  EXPECT_EQ(Place(1, {100, 200}), std::pair(102L, 198L));
  EXPECT_EQ(Place(2, {100, 200}), std::pair(102L, 202L));
  EXPECT_EQ(Place(3, {100, 200}), std::pair(98L, 202L));
}

TEST(MarkerPlaceTest, GoesBeyondTheScreen) {
  EXPECT_EQ(Place(0, {0, 1}), std::pair(-2L, -1L));
  EXPECT_EQ(Place(2, {1279, 1023}), std::pair(1281L, 1025L));
}

// What the system reports while markers are used.
class Watch {
 public:
  Watch()
      : activation_(SetWindowsHookExW(WH_CBT, OnActivation, nullptr, GetCurrentThreadId())),
        messages_(SetWindowsHookExW(WH_CALLWNDPROC, OnMessage, nullptr, GetCurrentThreadId())) {
    activated.clear();
    topmostFlags.clear();
  }
  ~Watch() {
    UnhookWindowsHookEx(activation_);
    UnhookWindowsHookEx(messages_);
  }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

  static inline std::vector<HWND> activated;
  static inline std::vector<UINT> topmostFlags;

 private:
  static LRESULT CALLBACK OnActivation(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE) activated.push_back(reinterpret_cast<HWND>(wParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }
  static LRESULT CALLBACK OnMessage(int code, WPARAM wParam, LPARAM lParam) {
    const auto& call = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (call.message == WM_WINDOWPOSCHANGING) {
      const auto& position = *reinterpret_cast<const WINDOWPOS*>(call.lParam);
      if (position.hwndInsertAfter == HWND_TOPMOST) topmostFlags.push_back(position.flags);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  HHOOK activation_;
  HHOOK messages_;
};

// A window of this program with a box that has the focus.
class OwnWindow {
 public:
  OwnWindow() {
    window_ = CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 300, 300, 200,
                              100, nullptr, nullptr, nullptr, nullptr);
    box_ = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 200, 100, window_, nullptr,
                           nullptr, nullptr);
    SetForegroundWindow(window_);
    SetFocus(box_);
  }
  ~OwnWindow() { DestroyWindow(window_); }
  OwnWindow(const OwnWindow&) = delete;
  OwnWindow& operator=(const OwnWindow&) = delete;

  HWND Handle() const { return window_; }
  HWND Box() const { return box_; }

 private:
  HWND window_;
  HWND box_;
};

std::vector<HWND> Handles(const Markers& markers) {
  std::vector<HWND> handles;
  for (std::size_t i = 0; i < kMarkerCount; ++i) handles.push_back(markers.Handle(i));
  return handles;
}

TEST(MarkersTest, AreLoadedOnFirstUseAndForgottenWhenUnloaded) {
  Markers markers;
  EXPECT_THAT(Handles(markers), testing::Each(nullptr));
  markers.Show(false);
  EXPECT_THAT(Handles(markers), testing::Each(nullptr));
  markers.Place({50, 50});
  const std::vector<HWND> first = Handles(markers);
  EXPECT_THAT(first, testing::Each(testing::Ne(nullptr)));
  markers.Show(true);
  EXPECT_EQ(Handles(markers), first);
  markers.Unload();
  EXPECT_THAT(Handles(markers), testing::Each(nullptr));
  for (const HWND window : first) EXPECT_FALSE(IsWindow(window));
  markers.Show(true);
  EXPECT_THAT(Handles(markers), testing::Each(testing::Ne(nullptr)));
}

TEST(MarkersTest, AreTwoPixelsWideBorderlessAndTopmost) {
  Markers markers;
  markers.Place({400, 500});
  for (std::size_t i = 0; i < kMarkerCount; ++i) {
    RECT place{};
    GetWindowRect(markers.Handle(i), &place);
    EXPECT_EQ(place.right - place.left, 2);
    EXPECT_EQ(place.bottom - place.top, 2);
    EXPECT_EQ(std::pair(place.left, place.top), Place(i, {400, 500}));
    EXPECT_EQ(GetWindowLongPtrW(markers.Handle(i), GWL_STYLE) & (WS_BORDER | WS_CAPTION), 0);
    EXPECT_NE(GetWindowLongPtrW(markers.Handle(i), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    EXPECT_FALSE(IsWindowVisible(markers.Handle(i)));
  }
}

TEST(MarkersTest, LoadingPutsEachOnTopWithoutActivatingIt) {
  const OwnWindow window;
  const Watch watch;
  Markers markers;
  markers.Place({400, 500});
  constexpr UINT kExpected = SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE;
  static_assert(kExpected == 19);
  EXPECT_THAT(Watch::topmostFlags, ElementsAre(kExpected, kExpected, kExpected, kExpected));
  EXPECT_THAT(Watch::activated, IsEmpty());
}

TEST(MarkersTest, AreShownAndHidden) {
  Markers markers;
  markers.Show(true);
  for (const HWND window : Handles(markers)) EXPECT_TRUE(IsWindowVisible(window));
  markers.Show(false);
  for (const HWND window : Handles(markers)) EXPECT_FALSE(IsWindowVisible(window));
}

// Windows does not give the foreground to every program that asks, nor to none.
bed::Need InFront(const OwnWindow& window, bool wanted) {
  return {(GetForegroundWindow() == window.Handle()) == wanted,
          wanted ? "needs the foreground, which was not given" : "cannot give the foreground away"};
}

TEST(MarkersTest, CalledToTheFrontInOrderTheyLeaveTheFocusWhereItIs) {
  const OwnWindow window;
  NEEDS(InFront(window, true));
  Markers markers;
  markers.Place({400, 500});
  const Watch watch;
  markers.Show(true);
  EXPECT_EQ(Watch::activated, Handles(markers));
  EXPECT_EQ(GetForegroundWindow(), window.Handle());
  EXPECT_EQ(GetActiveWindow(), window.Handle());
  EXPECT_EQ(GetFocus(), window.Box());
}

TEST(MarkersTest, AreNotCalledToTheFrontOfAnotherProgram) {
  const OwnWindow window;
  SetForegroundWindow(GetDesktopWindow());
  NEEDS(InFront(window, false));
  Markers markers;
  markers.Place({400, 500});
  const Watch watch;
  markers.Show(true);
  EXPECT_THAT(Watch::activated, IsEmpty());
  EXPECT_NE(GetForegroundWindow(), window.Handle());
}

TEST(MarkersTest, WindowFromPointLooksThroughThem) {
  const OwnWindow window;
  Markers markers;
  markers.Place({400, 350});
  markers.Show(true);
  for (std::size_t i = 0; i < kMarkerCount; ++i) {
    EXPECT_EQ(WindowFromPoint(MarkerPlace(i, {400, 350})), window.Box());
  }
  EXPECT_EQ(WindowFromPoint({400, 350}), window.Box());
}

}  // namespace
}  // namespace ui
