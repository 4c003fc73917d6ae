// The mouse pointer, moved and pressed as by a hand. Points are screen pixels.
#pragma once

#include <windows.h>

#include <functional>

namespace gui::pointer {

// Each of these returns when the system reports the pointer at that point.
void MoveTo(POINT point);
void Click(POINT point);
void DoubleClick(POINT point);

void Press(POINT point);
void Release(POINT point);

// Press at `from`, move in steps to `to`; `beforeRelease` runs with the button still down.
void Drag(
    POINT from, POINT to, const std::function<void()>& beforeRelease = [] {});

// A corner of the screen where tests show no window.
void Park();

}  // namespace gui::pointer
