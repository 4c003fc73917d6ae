#include "extract/ControlAccess.h"

#include <gtest/gtest.h>

#include "platform/UniqueHandle.h"

namespace extract {
namespace {

constexpr UINT kTold = WM_APP + 7;

LRESULT CALLBACK Answer(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  return message == kTold ? static_cast<LRESULT>(wParam)
                          : DefWindowProcW(hwnd, message, wParam, lParam);
}

TEST(ControlAccessTest, MessagesReachOneWindowAndNeverAll) {
  WNDCLASSW windowClass = {};
  windowClass.lpfnWndProc = Answer;
  windowClass.lpszClassName = L"ControlAccessTest";
  RegisterClassW(&windowClass);
  platform::UniqueWindow window(CreateWindowW(windowClass.lpszClassName, L"", WS_POPUP, 0, 0, 9, 9,
                                              nullptr, nullptr, nullptr, nullptr));
  ControlMessages& messages = SystemAccess().messages;
  EXPECT_EQ(messages.Send(window.Get(), kTold, 5, 0), 5);
  EXPECT_EQ(messages.Send(window.Get(), kTold, 0xFFFFFFFF, 0), -1);
  EXPECT_EQ(messages.Send(window.Get(), kTold, 0, 0), 0);
  EXPECT_EQ(messages.ProcessOf(window.Get()), GetCurrentProcessId());
  EXPECT_THROW(messages.Send(HWND_BROADCAST, kTold, 5, 0), TargetLost);

  const HWND gone = window.Get();
  window = {};
  EXPECT_THROW(messages.Send(gone, kTold, 5, 0), TargetLost);
  EXPECT_THROW(messages.Send(nullptr, kTold, 5, 0), TargetLost);
  EXPECT_EQ(messages.ProcessOf(gone), 0U);
}

}  // namespace
}  // namespace extract
