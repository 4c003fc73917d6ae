// A screen and a system that record their calls, and a clock that the test moves, so that a test
// can follow a capture pass by pass.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "capture/CaptureContext.h"

inline HWND WindowNumber(int number) {
  return reinterpret_cast<HWND>(static_cast<INT_PTR>(number));
}

// Something that can be made to fail.
class Failing {
 public:
  bool failing = false;     // every call
  std::string failingCall;  // the only call that fails, as the trace names it

 protected:
  void Fail(std::string_view call = {}) const {
    if (failing || (!call.empty() && call == failingCall)) throw std::runtime_error("it fails");
  }
};

class FakeView : public capture::CaptureView, public Failing {
 public:
  explicit FakeView(std::vector<std::string>& trace) : trace_(trace) {}

  std::wstring Text(capture::ViewText part) const override {
    Fail();
    const auto found = texts.find(part);
    return found == texts.end() ? std::wstring() : found->second;
  }
  void SetText(capture::ViewText part, const std::wstring& text) override {
    texts[part] = text;
    writes[part].push_back(text);
    Note("text");
  }
  void SetVisible(capture::ViewText part, bool visible) override {
    Note(visible ? "show part" : "hide part");
    shown[part] = visible;
  }
  void SetHandleTag(const std::wstring& decimal) override { handleTag = decimal; }
  void SetGoButton(const std::wstring& caption, const std::wstring& toolTip) override {
    Note("go button");
    goCaption = caption;
    goTip = toolTip;
  }
  HWND GoButton() const override { return WindowNumber(11); }
  HWND MainWindow() const override { return WindowNumber(10); }
  void FocusTopPane() override { Note("focus top pane"); }
  void BringToFront() override { Note("bring to front"); }
  void HideMainWindow() override { Note("hide window"); }
  void EnableTimer(capture::CaptureTimer timer, bool enable) override {
    static const std::map<capture::CaptureTimer, std::string> kNames{
        {capture::CaptureTimer::Timer_MsgLoop, "Timer_MsgLoop"},
        {capture::CaptureTimer::Timer2, "Timer2"},
        {capture::CaptureTimer::Timer_Go, "Timer_Go"},
        {capture::CaptureTimer::Timer_End, "Timer_End"}};
    Note(kNames.at(timer) + (enable ? " on" : " off"));
  }
  void ShowMarkers() override {
    Note("show markers");
    ++markersShown;
  }
  void PlaceMarkers(POINT point) override {
    Note("place markers");
    markersPlaced.push_back(point);
  }
  void UnloadMarkers() override { Note("unload markers"); }

  std::map<capture::ViewText, std::wstring> texts;
  std::map<capture::ViewText, std::vector<std::wstring>> writes;
  std::map<capture::ViewText, bool> shown;
  std::wstring handleTag;
  std::wstring goCaption;
  std::wstring goTip;
  int markersShown = 0;
  std::vector<POINT> markersPlaced;

 private:
  void Note(const std::string& what) {
    trace_.push_back(what);
    Fail(what);
  }

  std::vector<std::string>& trace_;
};

class FakeSystem : public capture::CaptureSystem, public Failing {
 public:
  explicit FakeSystem(std::vector<std::string>& trace) : trace_(trace) {}

  std::uint32_t TickCount() override {
    Fail("tick count");
    return now;
  }
  void Sleep(std::uint32_t milliseconds) override {
    const std::string call = "sleep " + std::to_string(milliseconds);
    trace_.push_back(call);
    now += milliseconds;
    ++sleeps;
    if (onSleep) onSleep();
    Fail(call);
  }
  void Pump() override {
    trace_.push_back("pump");
    if (onPump) onPump();
    Fail("pump");
  }
  POINT CursorPosition() override {
    Fail();
    return cursor;
  }
  HWND WindowAt(POINT point) override {
    Fail();
    askedAt = point;
    return windowAtPoint;
  }
  HWND WindowMeant(HWND given, POINT point) override {
    Fail();
    ++meantAsked;
    EXPECT_EQ(given, windowAtPoint);
    EXPECT_EQ(point.x, askedAt.x);
    EXPECT_EQ(point.y, askedAt.y);
    return windowMeant == nullptr ? given : windowMeant;
  }
  HWND Parent(HWND hwnd) override {
    Fail();
    return parents.contains(hwnd) ? parents[hwnd] : nullptr;
  }
  HWND TopParent(HWND hwnd) override {
    Fail();
    while (parents.contains(hwnd)) hwnd = parents[hwnd];
    return hwnd;
  }
  POINT ToClient(HWND hwnd, POINT point) override {
    Fail();
    clientOf = hwnd;
    return {point.x - clientOrigin.x, point.y - clientOrigin.y};
  }
  HWND Foreground() override {
    Fail();
    return foreground;
  }
  bool HotKeyPressed(std::int32_t code) override {
    askedKeys.push_back(code);
    Fail();
    return pressed.erase(code) > 0;
  }
  bool IsKeyDown(std::int32_t virtualKey) override {
    Fail();
    return down.contains(virtualKey);
  }
  void SendSelectAll() override { trace_.push_back("select all"); }
  bool PutOnClipboard(const std::wstring& text) override {
    trace_.push_back("clipboard");
    Fail("clipboard");
    if (clipboardIsHeld) return false;
    clipboard = text;
    return true;
  }
  void PlayChime(const std::wstring& file) override {
    trace_.push_back("chime");
    chimeFile = file;
    if (onChime) onChime();
    Fail("chime");
  }
  std::wstring TooltipText() override {
    Fail();
    ++tooltipsAsked;
    return tooltip;
  }
  void AccAction(std::int32_t mode, const platform::ReadPoint& point) override {
    Fail();
    actions.push_back(mode);
    actionTicks.push_back(now);
    actionPoint = point.at;
    actionWindow = point.window;
    if (onAction) onAction();
  }

  std::uint32_t now = 100'000;
  int sleeps = 0;
  std::function<void()> onSleep;
  std::function<void()> onPump;
  std::function<void()> onChime;
  POINT cursor{};
  POINT askedAt{};
  HWND windowAtPoint = nullptr;
  HWND windowMeant = nullptr;  // null: the one at the point
  int meantAsked = 0;
  std::map<HWND, HWND> parents;
  HWND clientOf = nullptr;
  POINT clientOrigin{};
  HWND foreground = nullptr;
  std::set<std::int32_t> pressed;
  std::set<std::int32_t> down;
  std::vector<std::int32_t> askedKeys;
  std::wstring clipboard = L"(before)";
  bool clipboardIsHeld = false;  // by another program
  std::wstring chimeFile;
  std::wstring tooltip;
  int tooltipsAsked = 0;
  std::vector<std::int32_t> actions;
  std::vector<std::uint32_t> actionTicks;
  POINT actionPoint{};
  HWND actionWindow = nullptr;
  std::function<void()> onAction;

 private:
  std::vector<std::string>& trace_;
};

// Everything that a capture needs, with the program's default settings.
struct FakeCapture {
  FakeCapture() {
    settings.hotkey = L"ESC";
    settings.mousPos = L"screen";
    settings.winHandle = L"dec";
    settings.enableHotT = 1;
    settings.chime = 1;
    settings.chimeFile = L"chimes.wav";
    settings.shiftx = 20;
    settings.shifty = 30;
    state.ActionKeyCode = L"17";
  }

  capture::CaptureContext Context() { return {state, settings, view, system}; }

  std::vector<std::string> trace;
  capture::CaptureState state;
  settings::Settings settings;
  FakeView view{trace};
  FakeSystem system{trace};
};
