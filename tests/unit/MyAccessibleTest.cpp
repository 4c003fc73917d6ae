// Readers of members on the test's own objects, which record the calls.

#include "accessibility/MyAccessible.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../accessible/AccessibleNode.h"
#include "platform/ErrorReport.h"

namespace MyAccessible {
namespace {

using accessible::Node;
using testing::ElementsAre;

Node Button() {
  return Node({.name = L"押す",
               .value = L"値",
               .role = ROLE_SYSTEM_PUSHBUTTON,
               .state = 0x100004,
               .place = {10, 20, 30, 40},
               .description = L"説明",
               .defaultAction = L"実行",
               .keyboardShortcut = L"Alt+A"});
}

VARIANT Of(VARTYPE kind) {
  VARIANT value{};
  value.vt = kind;
  return value;
}

// A child variant that holds an object; the reference is not counted.
VARIANT Holding(Node& node) {
  VARIANT child = Of(VT_DISPATCH);
  child.pdispVal = &node;
  return child;
}

VARIANT Number(LONG number) {
  VARIANT child = Of(VT_I4);
  child.lVal = number;
  return child;
}

TEST(MyAccessibleTest, MembersAreReadForTheChildThatIsMeant) {
  Node object = Button();
  object.AddElement({.name = L"項目", .role = ROLE_SYSTEM_LISTITEM});
  EXPECT_EQ(AccName(&object, Self()), L"押す");
  EXPECT_EQ(AccName(&object, Number(1)), L"項目");
  EXPECT_EQ(AccValue(&object, Self()), L"値");
  EXPECT_EQ(AccDescription(&object, Self()), L"説明");
  EXPECT_EQ(AccDefaultAction(&object, Self()), L"実行");
  EXPECT_EQ(AccKeyboardShortcut(&object, LeftOut()), L"Alt+A");
  EXPECT_EQ(AccRole(&object, Self()), L"43");
  EXPECT_EQ(AccRole(&object, Number(1)), L"34");
  EXPECT_EQ(AccState(&object, Self()), 0x100004);
  EXPECT_EQ(AccStateText(&object, Self()), L"フォーカスされています。フォーカス可。");
  const Location place = AccLocation(&object, Self());
  EXPECT_EQ(place.left, 10);
  EXPECT_EQ(place.top, 20);
  EXPECT_EQ(place.width, 30);
  EXPECT_EQ(place.height, 40);
}

TEST(MyAccessibleTest, FailingMembersAreEmptyAndSilent) {
  std::vector<std::wstring> boxes;
  const auto before = platform::SetMessageBox(
      [&](const std::wstring& text, const std::wstring&) { boxes.push_back(text); });
  for (const HRESULT code : {E_NOTIMPL, E_FAIL, DISP_E_MEMBERNOTFOUND, E_INVALIDARG, S_FALSE,
                             E_OUTOFMEMORY, RPC_E_DISCONNECTED, E_ACCESSDENIED}) {
    Node object = Button();
    object.failures[""] = code;
    EXPECT_EQ(AccName(&object, Self()), L"");
    EXPECT_EQ(AccValue(&object, Self()), L"");
    EXPECT_EQ(AccDescription(&object, Self()), L"");
    EXPECT_EQ(AccDefaultAction(&object, Self()), L"");
    EXPECT_EQ(AccKeyboardShortcut(&object, LeftOut()), L"");
    EXPECT_EQ(AccRole(&object, Self()), L"");
    EXPECT_FALSE(AccState(&object, Self()));
    EXPECT_EQ(AccStateText(&object, Self()), L"");
    EXPECT_EQ(AccFocus(&object), L"0");
    EXPECT_EQ(AccLocation(&object, Self()).width, 0);
    EXPECT_EQ(AccParent(&object), nullptr);
    EXPECT_EQ(object.References(), 1U);
  }
  platform::SetMessageBox(before);
  EXPECT_THAT(boxes, ElementsAre());
}

TEST(MyAccessibleTest, ARoleMayBeAText) {
  Node object({.roleText = L"独自"});
  EXPECT_EQ(AccRole(&object, Self()), L"独自");
  EXPECT_EQ(GetAccRoleText(&object, Self()), L"");
}

TEST(MyAccessibleTest, ARoleTextThatCannotBeReadIsReported) {
  std::vector<std::wstring> titles;
  const auto before = platform::SetMessageBox(
      [&](const std::wstring&, const std::wstring& title) { titles.push_back(title); });
  Node object = Button();
  EXPECT_EQ(GetAccRoleText(&object, Self()), L"ボタン");
  object.failures["accRole"] = E_FAIL;
  EXPECT_EQ(GetAccRoleText(&object, Self()), L"");
  platform::SetMessageBox(before);
  EXPECT_THAT(titles, ElementsAre(L"GetAccRoleText"));
}

TEST(MyAccessibleTest, FocusSaysWhetherThereIsOne) {
  Node object = Button();
  EXPECT_EQ(AccFocus(&object), L"0");
  object.hasFocus = true;
  EXPECT_EQ(AccFocus(&object), L"1");
}

TEST(MyAccessibleTest, ChildrenAreCountedForObjectsOnly) {
  Node object = Button();
  object.claimedChildren = 7;
  Node held = Button();
  held.claimedChildren = 2'000'000'000;
  EXPECT_EQ(ChildCountText(&object, Self()), L"7");
  EXPECT_EQ(ChildCountText(&object, Holding(held)), L"2000000000");
  EXPECT_EQ(ChildCountText(&object, Number(3)), L"0");
  EXPECT_EQ(ChildCountText(&object, Number(-3)), L"0");
  EXPECT_EQ(ChildCountText(&object, Of(VT_EMPTY)), L"");
  EXPECT_EQ(ChildCountText(&object, Of(VT_I2)), L"");
  object.failures["accChildCount"] = E_NOTIMPL;
  EXPECT_EQ(ChildCountText(&object, Self()), L"");
}

TEST(MyAccessibleTest, TheIdIsTheChildsNumber) {
  Node held = Button();
  EXPECT_EQ(ChildId(Number(3)), 3);
  EXPECT_EQ(ChildId(Self()), 0);
  EXPECT_EQ(ChildId(Of(VT_EMPTY)), 0);
  EXPECT_EQ(ChildId(Holding(held)), 0);
}

TEST(MyAccessibleTest, ObjectTypes) {
  Node object = Button();
  Node held = Button();
  EXPECT_EQ(GetObjectType(&object, Holding(held)), L"Real Object");
  held.claimedChildren = 1;
  EXPECT_EQ(GetObjectType(&object, Holding(held)), L"Container");
  EXPECT_EQ(GetObjectType(&object, Of(VT_EMPTY)), L"");
  EXPECT_EQ(GetObjectType(&object, Number(3)), L"Simple Element");
  // Also without any child, as long as they can be counted.
  EXPECT_EQ(GetObjectType(&object, Self()), L"Container");
  object.failures["accChildCount"] = E_FAIL;
  EXPECT_EQ(GetObjectType(&object, Self()), L"Real Object");
}

TEST(MyAccessibleTest, ParentsAndHeldObjectsAreCountedOnce) {
  Node parent = Button();
  Node object = Button();
  parent.AddObject(object);
  {
    const AccessiblePtr found = AccParent(&object);
    EXPECT_EQ(found.Get(), &parent);
    EXPECT_EQ(parent.References(), 2U);
    const AccessiblePtr held = ObjectIn(Holding(object));
    EXPECT_EQ(held.Get(), &object);
    EXPECT_EQ(object.References(), 2U);
  }
  EXPECT_EQ(parent.References(), 1U);
  EXPECT_EQ(object.References(), 1U);
  EXPECT_EQ(ObjectIn(Number(1)), nullptr);
}

// Answers with a node for its client area, and records the request.
struct AskedWindow {
  static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept {
    if (message != WM_GETOBJECT) return DefWindowProcW(hwnd, message, wParam, lParam);
    asked.push_back(static_cast<LONG>(lParam));
    return LresultFromObject(IID_IAccessible, wParam, static_cast<IAccessible*>(node));
  }
  static inline Node* node = nullptr;
  static inline std::vector<LONG> asked;
};

TEST(MyAccessibleTest, OfAWindowItIsTheObjectOfItsClientArea) {
  constexpr GUID kAccessible = {
      0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};
  EXPECT_EQ(IID_IAccessible, kAccessible);

  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = AskedWindow::Procedure;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = L"MyAccessibleTest";
  ASSERT_NE(RegisterClassW(&windowClass), 0);
  Node node = Button();
  AskedWindow::node = &node;
  AskedWindow::asked.clear();
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const HWND window = CreateWindowExW(0, windowClass.lpszClassName, L"", WS_POPUP, 0, 0, 10, 10,
                                      nullptr, nullptr, windowClass.hInstance, nullptr);
  {
    const AccessiblePtr object = GetAccessibleObj(window);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(AccName(object.Get(), Self()), L"押す");
  }
  EXPECT_THAT(AskedWindow::asked, ElementsAre(-4));
  DestroyWindow(window);
  CoUninitialize();
  UnregisterClassW(windowClass.lpszClassName, windowClass.hInstance);
}

}  // namespace
}  // namespace MyAccessible
