// A session in which a test is the target window: it notes the progress and may move on.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/ReadSession.h"

struct FakeSession {
  HWND target = reinterpret_cast<HWND>(1);
  bool running = true;
  int yields = 0;
  int moveOnAfter = -1;  // the target changes in that yield
  int endAfter = -1;     // the capture ends in that yield
  std::vector<std::wstring> shown;
  platform::ReadSession session{
      target,
      [this](const std::wstring& text) { shown.push_back(text); },
      [this] {
        if (++yields == moveOnAfter) target = reinterpret_cast<HWND>(2);
        if (yields == endAfter) running = false;
      },
      [this] { return running; },
  };
};
