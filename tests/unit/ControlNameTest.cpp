// The text of a control is the name of its accessible object, if there is one.

#include <windows.h>

#include <gtest/gtest.h>
#include <oleacc.h>

#include <string>

#include "../ReadItems.h"
#include "../accessible/AccessibleNode.h"
#include "extract/ControlText.h"
#include "platform/UniqueHandle.h"

namespace extract {
namespace {

constexpr wchar_t kClass[] = L"ControlNameTest";

// A window whose accessible object is the node, and whose own text is its caption.
class ControlNameTest : public testing::Test {
 protected:
  ControlNameTest() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = kClass;
    RegisterClassW(&windowClass);
    object_ = &node_;
    window_ =
        platform::UniqueWindow(CreateWindowExW(0, kClass, L"窓の文字", WS_POPUP, 0, 0, 50, 50,
                                               nullptr, nullptr, windowClass.hInstance, nullptr));
  }
  ~ControlNameTest() override {
    window_ = {};
    UnregisterClassW(kClass, GetModuleHandleW(nullptr));
    CoUninitialize();
  }

  static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept {
    const bool own = message == WM_GETOBJECT && static_cast<LONG>(lParam) == OBJID_CLIENT;
    return own ? LresultFromObject(IID_IAccessible, wParam, static_cast<IAccessible*>(object_))
               : DefWindowProcW(hwnd, message, wParam, lParam);
  }

  static inline accessible::Node* object_ = nullptr;
  accessible::Node node_{{.name = L"呼び名", .role = ROLE_SYSTEM_CLIENT}};
  platform::UniqueWindow window_;
};

TEST_F(ControlNameTest, TheNameComesBeforeTheText) {
  EXPECT_EQ(MyGetControlText(window_.Get()), L"呼び名");
}

TEST_F(ControlNameTest, WithoutANameThereIsTheText) {
  node_.Own().name.clear();
  EXPECT_EQ(MyGetControlText(window_.Get()), L"窓の文字");
  node_.Own().name = L"呼び名";
  node_.failures["accName"] = E_FAIL;
  EXPECT_EQ(MyGetControlText(window_.Get()), L"窓の文字");
}

TEST_F(ControlNameTest, AnEditIsReadByItsText) {
  std::wstring method;
  EXPECT_EQ(
      TextOf([&](platform::ItemSink& sink) { return MyGetEditItem(window_.Get(), sink); }, method),
      L"窓の文字");
}

// The method is reported also for the mark of a failed listing, and for the window's own text.
TEST_F(ControlNameTest, TheMarkOfAFailedListingIsLabelledLikeAListing) {
  std::wstring method;
  const auto failed = [](platform::ItemSink& sink) { sink.EndWith(platform::Ending::kNoObject); };
  EXPECT_EQ(
      TextOf([&](platform::ItemSink& sink) { return GetOther(window_.Get(), failed, {}, sink); },
             method),
      L"% 取得エラー！ %");
  EXPECT_EQ(method, L"Accessible");
}

TEST_F(ControlNameTest, TextsOfChildWindowsAreLabelledLikeAListing) {
  std::wstring method;
  const auto nothing = [](platform::ItemSink&) {};
  EXPECT_EQ(
      TextOf([&](platform::ItemSink& sink) { return GetOther(window_.Get(), nothing, {}, sink); },
             method),
      L"呼び名");
  EXPECT_EQ(method, L"Accessible");
}

TEST_F(ControlNameTest, AFurtherWayComesBeforeTheTextsOfChildWindowsAndAfterTheListing) {
  const auto nothing = [](platform::ItemSink&) {};
  const auto failed = [](platform::ItemSink& sink) { sink.EndWith(platform::Ending::kNoObject); };
  const auto listed = [](platform::ItemSink& sink) { PutItem(sink, L"項"); };
  const auto parts = [](platform::ItemSink& sink) -> Method {
    PutItem(sink, L"");
    PutItem(sink, L"部分");
    return L"SB_GETTEXTW";
  };
  const auto read = [&](const ChildrenListing& listing, const FurtherWay& further) {
    std::wstring method;
    const std::wstring text = TextOf(
        [&](platform::ItemSink& sink) { return GetOther(window_.Get(), listing, further, sink); },
        method);
    return method + L"|" + text;
  };
  EXPECT_EQ(read(nothing, parts), L"SB_GETTEXTW|\r\n部分\r\n");
  EXPECT_EQ(read(failed, parts), L"SB_GETTEXTW|\r\n部分\r\n");
  EXPECT_EQ(read(listed, parts), L"Accessible|項\r\n");
  const auto noParts = [](platform::ItemSink& sink) {
    PutItem(sink, L"");
    return Method{};
  };
  EXPECT_EQ(read(nothing, noParts), L"Accessible|呼び名");
  EXPECT_EQ(read(failed, noParts), L"Accessible|% 取得エラー！ %");
}

}  // namespace
}  // namespace extract
