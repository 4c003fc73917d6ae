#include "platform/HandleText.h"

#include "platform/NumberText.h"

namespace platform {
namespace {

std::int32_t Number(HWND hwnd) {
  return static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(hwnd));
}

}  // namespace

std::wstring DecimalHandle(HWND hwnd) { return std::to_wstring(Number(hwnd)); }

std::wstring HexHandle(HWND hwnd) { return Hexadecimal(Number(hwnd)); }

std::wstring ShownHandle(HWND hwnd, std::wstring_view winHandle) {
  return winHandle == L"hex" ? HexHandle(hwnd) : DecimalHandle(hwnd);
}

}  // namespace platform
