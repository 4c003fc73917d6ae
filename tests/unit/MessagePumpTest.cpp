#include "platform/MessagePump.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace platform {
namespace {

LRESULT CALLBACK NoteTyped(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  if (message == WM_CHAR) SetWindowLongPtrW(hwnd, GWLP_USERDATA, static_cast<LONG>(wParam));
  return DefWindowProcW(hwnd, message, wParam, lParam);
}

class MessagePumpTest : public testing::Test {
 protected:
  MessagePumpTest() {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = NoteTyped;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"MessagePumpTest";
    RegisterClassW(&windowClass);
    dialog_ = Add(nullptr, WS_POPUP | WS_VISIBLE);
    AddDialog(dialog_);
  }
  ~MessagePumpTest() override {
    RemoveDialog(dialog_);
    DestroyWindow(dialog_);
  }

  static HWND Add(HWND parent, DWORD style) {
    const DWORD exStyle = (style & WS_TABSTOP) == 0 ? WS_EX_CONTROLPARENT : 0;
    return CreateWindowExW(exStyle, L"MessagePumpTest", L"", style, 0, 0, 100, 100, parent, nullptr,
                           GetModuleHandleW(nullptr), nullptr);
  }
  HWND Dialog() const { return dialog_; }

 private:
  HWND dialog_ = nullptr;
};

TEST_F(MessagePumpTest, AKeyForAControlOnAHiddenPageArrivesThere) {
  const HWND page = Add(Dialog(), WS_CHILD);
  const HWND control = Add(page, WS_CHILD | WS_VISIBLE | WS_TABSTOP);
  Add(Dialog(), WS_CHILD | WS_VISIBLE | WS_TABSTOP);
  PostMessageW(control, WM_CHAR, L'a', 0);
  Pump();
  EXPECT_EQ(GetWindowLongPtrW(control, GWLP_USERDATA), L'a');
}

TEST_F(MessagePumpTest, TheTabKeyMovesBetweenControls) {
  const HWND first = Add(Dialog(), WS_CHILD | WS_VISIBLE | WS_TABSTOP);
  const HWND second = Add(Dialog(), WS_CHILD | WS_VISIBLE | WS_TABSTOP);
  SetFocus(first);
  PostMessageW(first, WM_KEYDOWN, VK_TAB, 0);
  Pump();
  EXPECT_EQ(GetFocus(), second);
}

TEST_F(MessagePumpTest, TheQuitMessageIsLeftForTheLoop) {
  PostQuitMessage(7);
  Pump();
  EXPECT_EQ(RunMessageLoop(), 7);
}

}  // namespace
}  // namespace platform
