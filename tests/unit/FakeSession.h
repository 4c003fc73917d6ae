// A session that records the progress and can change the target or end the capture.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/ReadSession.h"

struct FakeSession {
  static inline const HWND kWindow = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(0x1234));

  HWND target = kWindow;
  bool running = true;
  int moveOnAfter = -1;  // the target changes in that yield
  int endAfter = -1;     // the capture ends in that yield
  std::function<void()> onYield = [] {};
  int yields = 0;
  std::vector<std::wstring> progress;

  platform::ReadSession Session() {
    return {target, [this](const std::wstring& text) { progress.push_back(text); },
            [this] {
              ++yields;
              if (yields == moveOnAfter) GoElsewhere();
              if (yields == endAfter) running = false;
              onYield();
            },
            [this] { return running; }, kWindow};
  }
  void GoElsewhere() { target = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(0x9999)); }
};
