// Runs captures over a fake screen and a fake system.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "FakeCapture.h"
#include "capture/CaptureLoop.h"

namespace capture {

inline constexpr std::int32_t kEsc = 27;
inline constexpr std::int32_t kCtrl = 17;
inline constexpr HWND kNone = nullptr;

class CaptureLoopFixture : public testing::Test {
 protected:
  CaptureLoopFixture() { fake_.state.CapturePoint = {50, 60}; }

  // Runs a capture of that many passes; inPass is called while each pass sleeps, counted from 1.
  void Run(int passes, std::function<void(int)> inPass = {}) {
    fake_.system.onSleep = [this, passes, inPass = std::move(inPass)] {
      if (fake_.system.sleeps == 1) fake_.state.TargetWindow = target_;
      if (inPass) inPass(fake_.system.sleeps);
      if (fake_.system.sleeps >= passes) fake_.state.CaptureRunning = false;
    };
    Capture();
  }

  // Until something ends it.
  void Capture(std::wstring_view commandLine = {}) {
    RunCapture(
        fake_.Context(), [this] { Compose(); }, commandLine);
  }

  std::wstring Text(ViewText part) { return fake_.view.texts[part]; }
  std::vector<std::wstring>& Writes(ViewText part) { return fake_.view.writes[part]; }

  void Compose() {
    ++reports_;
    reportTicks_.push_back(fake_.system.now);
    if (compose_) compose_();
  }

  FakeCapture fake_;
  HWND target_ = WindowNumber(77);
  int reports_ = 0;
  std::vector<std::uint32_t> reportTicks_;
  std::function<void()> compose_;
};

}  // namespace capture
