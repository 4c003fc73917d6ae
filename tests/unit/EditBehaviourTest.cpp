#include "ui/EditBehaviour.h"

#include <gtest/gtest.h>

#include <string>

#include "NoMemory.h"
#include "platform/Clipboard.h"
#include "platform/UniqueHandle.h"

namespace ui {
namespace {

TEST(EditBehaviourTest, CopyingATextThatThereIsNoMemoryForDoesNothing) {
  const platform::UniqueWindow box(CreateWindowExW(0, L"EDIT", L"", WS_POPUP | ES_MULTILINE, 0, 0,
                                                   100, 100, nullptr, nullptr, nullptr, nullptr));
  ASSERT_TRUE(box);
  AddEditBehaviour(box.Get(), box.Get());
  std::wstring lines;
  for (int i = 0; i < 10'000; ++i) lines += L"thirty-two characters in a line\r\n";
  SetWindowTextW(box.Get(), lines.c_str());
  SendMessageW(box.Get(), EM_SETSEL, 0, -1);
  ASSERT_TRUE(platform::PutTextOnClipboard(box.Get(), L"before"));
  {
    const NoMemory none;
    MyGetLevel(box.Get(), 'C', kCtrlDown);
  }
  ASSERT_TRUE(OpenClipboard(box.Get()));
  const HANDLE data = GetClipboardData(CF_UNICODETEXT);
  const std::wstring text = static_cast<const wchar_t*>(GlobalLock(data));
  GlobalUnlock(data);
  CloseClipboard();
  EXPECT_EQ(text, L"before");
}

}  // namespace
}  // namespace ui
