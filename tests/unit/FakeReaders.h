// Readers whose texts name their source, and a report made from them.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "FakeCapture.h"
#include "capture/ReportComposer.h"

namespace capture {

// Gives texts that name their source, and records the calls.
class FakeReaders : public report::ReportReaders {
 public:
  explicit FakeReaders(std::vector<std::string>& trace) : trace_(trace) {}

  bool IsHung(HWND hwnd) override {
    EXPECT_EQ(hwnd, listOf);
    return hung;
  }
  bool IsOutOfReach(HWND hwnd) override {
    EXPECT_EQ(hwnd, listOf);
    return outOfReach;
  }
  report::WindowFacts Facts(HWND hwnd) override {
    Note("facts");
    return {hwnd, className, title, {1, 2, 3, 4}};
  }
  report::WindowInformation Information(const report::WindowFacts& window) override {
    Note("information");
    return {window, {}, {}, {}};
  }
  extract::TextReading TextFromPoint(
      const platform::ReadPoint& point,
      const std::function<void(const std::wstring&)>& showMessage) override {
    Note("point");
    askedPoint = point.at;
    meantWindows.push_back(point.window);
    if (!message.empty()) showMessage(message);
    return {pointText, L"Accessible", pointWhole};
  }
  std::wstring NameOfWindow(HWND) override {
    Note("name of window");
    return L"窓の名";
  }
  extract::TextReading Control(report::Category category,
                               const report::ControlRead& read) override {
    EXPECT_EQ(read.hwnd, listOf);
    EXPECT_EQ(read.className, className);
    listAt = read.readPoint.at;
    meantWindows.push_back(read.readPoint.window);
    listCategory = category;
    if (onRead) onRead(read);
    Note("control");
    return {listText, listMethod, 0, restOmitted};
  }
  std::optional<MyInternetexplore::PageFacts> Page(const report::PageRead& read) override {
    Note("page");
    if (!pageMessage.empty()) read.showMessage(pageMessage);
    documentWindow = read.documentWindow;
    askedPoint = read.point;
    if (!hasPage) return std::nullopt;
    read.textsRead({L"表示", pageMarkup});
    if (onFacts) onFacts(read.session);
    Note("page facts");
    return pageFacts;
  }
  bool Answers(HWND hwnd) override {
    EXPECT_EQ(hwnd, WindowNumber(77));
    return answers;
  }
  report::AccessibleTexts Accessible(const report::WindowFacts* window,
                                     const platform::ReadPoint& point,
                                     const platform::ReadSession& session) override {
    Note("accessible");
    accessibleAt = point.at;
    meantWindows.push_back(point.window);
    session.showProgress(L"9");
    if (onAccessible) onAccessible(session);
    accessibleOf = window == nullptr ? nullptr : window->hwnd;
    return {L"MSAA", L"名"};
  }
  std::wstring StatusText(const report::WindowFacts& window) override {
    Note("status");
    statusOf = window.hwnd;
    EXPECT_EQ(window.className, className);
    EXPECT_EQ(window.title, title);
    return L"状態";
  }

  std::wstring className = L"Button";
  std::wstring title = L"題";
  std::wstring pointText = L"a\nb\r\nc";
  std::wstring message;      // said while the text at the point is read
  std::wstring pageMessage;  // said while the page is opened
  std::wstring pageMarkup = L"<b>";
  std::size_t pointWhole = 0;
  std::wstring listText = L"一覧";
  std::wstring listMethod;  // the method of the list
  bool restOmitted = false;
  bool hung = false;
  bool outOfReach = false;
  std::vector<HWND> meantWindows;  // of the points that were read
  bool hasPage = false;
  bool answers = true;
  HWND documentWindow = nullptr;
  MyInternetexplore::PageFacts pageFacts{
      L"http://host/",
      L"外/内",
      {{L"HTML", {}, {}, {}, L"全て"}, {L"P", {}, L"id", {}, L"長い段落"}}};
  std::function<void(const platform::ReadSession&)> onFacts;
  std::function<void(const report::ControlRead&)> onRead;
  std::function<void(const platform::ReadSession&)> onAccessible;
  std::string failing;  // the reader that throws
  POINT askedPoint{};
  POINT listAt{};
  POINT accessibleAt{};
  HWND listOf = WindowNumber(77);
  report::Category listCategory{};
  HWND accessibleOf = WindowNumber(-1);
  HWND statusOf = nullptr;

 private:
  void Note(const std::string& what) {
    trace_.push_back(what);
    if (what == failing) throw std::runtime_error("the reader fails");
  }

  std::vector<std::string>& trace_;
};

class ReportComposerTest : public testing::Test {
 protected:
  ReportComposerTest() {
    fake_.state.TargetWindow = WindowNumber(77);
    fake_.state.CapturePoint = {300, 400};
    fake_.state.CaptureRunning = true;
  }
  void Compose() { ComposeReport(fake_.Context(), readers_); }
  std::wstring Text(ViewText part) { return fake_.view.texts[part]; }

  FakeCapture fake_;
  FakeReaders readers_{fake_.trace};
};

}  // namespace capture
