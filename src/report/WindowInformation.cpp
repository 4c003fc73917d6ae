#include "report/WindowInformation.h"

#include <algorithm>

#include "extract/Win32API_Window.h"
#include "platform/HandleText.h"
#include "platform/LineEnd.h"
#include "platform/NumberText.h"
#include "platform/WindowEnumeration.h"

namespace report {
namespace {

using platform::DecimalHandle;
using platform::HexHandle;
using platform::kCrLf;

constexpr std::size_t kHandleWidth = 8;
constexpr std::size_t kClassWidth = 25;

// A zero rectangle when the window is gone.
RECT PlaceOf(HWND hwnd) {
  RECT place{};
  GetWindowRect(hwnd, &place);
  return place;
}

std::wstring PlaceText(const RECT& place) {
  return L"(" + std::to_wstring(place.left) + L"," + std::to_wstring(place.top) + L"," +
         std::to_wstring(place.right) + L"," + std::to_wstring(place.bottom) + L")";
}

std::wstring BothHandles(HWND hwnd) { return DecimalHandle(hwnd) + L"(x" + HexHandle(hwnd) + L")"; }

std::wstring OwnerLine(const WindowFacts& owner) {
  return L" " + BothHandles(owner.hwnd) + L" " + owner.className + L" \"" + owner.title + L"\"";
}

std::wstring AncestorLine(const WindowFacts& ancestor) {
  std::wstring line = L" " + DecimalHandle(ancestor.hwnd) + L"\t" + ancestor.className + L"\t" +
                      PlaceText(ancestor.place) + L"\t";
  if (!ancestor.title.empty()) line += L" \"" + ancestor.title + L"\"";
  return line;
}

std::wstring ChildLine(const WindowFacts& child, std::wstring_view winHandle) {
  const std::wstring handle =
      winHandle == L"hex" ? L"x" + HexHandle(child.hwnd) : DecimalHandle(child.hwnd);
  // The title without quotes, unlike the lines above. Odd, and stays: docs/ODDITIES.md.
  std::wstring line = platform::RightAligned(handle, kHandleWidth) + L" " + child.className;
  line.append(kClassWidth - std::min(kClassWidth, child.className.size()), L' ');
  line += L" " + PlaceText(child.place) + L" " + child.title + L" ";
  return line;
}

}  // namespace

WindowFacts ReadWindowFacts(HWND hwnd) {
  return {hwnd, Win32API_Window::MyGetClassName(hwnd), Win32API_Window::MyGetWindowText(hwnd),
          PlaceOf(hwnd)};
}

WindowFacts ReadHungWindowFacts(HWND hwnd) {
  return {hwnd, Win32API_Window::MyGetClassName(hwnd), Win32API_Window::StoredWindowText(hwnd),
          PlaceOf(hwnd)};
}

WindowInformation ReadWindowInformation(const WindowFacts& window) {
  const HWND hwnd = window.hwnd;
  WindowInformation information;
  information.window = window;
  // It may have moved or vanished while its list was read.
  information.window.place = PlaceOf(hwnd);
  if (const HWND owner = GetWindow(hwnd, GW_OWNER)) information.owner = ReadWindowFacts(owner);
  for (HWND parent = GetParent(hwnd); parent != nullptr; parent = GetParent(parent)) {
    information.ancestors.push_back(ReadWindowFacts(parent));
  }
  platform::ForEachWindow(hwnd, [&](HWND child) {
    if (IsWindowVisible(child)) information.children.push_back(ReadWindowFacts(child));
  });
  return information;
}

std::wstring WindowInformationText(const WindowInformation& information,
                                   std::wstring_view winHandle) {
  std::wstring text;
  const auto line = [&text](std::wstring_view words) { text.append(words).append(kCrLf); };

  line(L"ウィンドウ情報");
  line(std::wstring(38, L'-'));
  line(L"ハンドル　　　：" + BothHandles(information.window.hwnd));
  line(L"クラス名　　　：" + information.window.className);
  line(L"タイトル　　　：" + information.window.title);
  line(L"位置(左上右下)：" + PlaceText(information.window.place));
  line(L"");
  // Also without an owner. Odd, and stays: docs/ODDITIES.md.
  line(L"オーナー　　  ：");
  if (information.owner.hwnd != nullptr) line(OwnerLine(information.owner));
  line(L"");
  line(L"親ウィンドウ  ： top → bottom");
  line(L" hWnd\tClassName\t(Location)\t\tTitle ");
  line(L" " + std::wstring(71, L'-'));
  for (auto ancestor = information.ancestors.rbegin(); ancestor != information.ancestors.rend();
       ++ancestor) {
    line(AncestorLine(*ancestor));
  }
  line(L"");
  line(L"子ウィンドウ");
  line(L"");
  line(L"ハンドル クラス名               位置(左,上,右,下)    表示文字");
  line(std::wstring(61, L'-'));
  for (const WindowFacts& child : information.children) line(ChildLine(child, winHandle));
  return text;
}

}  // namespace report
