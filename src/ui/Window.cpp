#include "ui/Window.h"

namespace ui {
namespace {

constexpr int kAppIconId = 1;  // in the resources

// The icon in the size that these two system metrics give; shared, so it must not be destroyed.
HICON AppIcon(int widthMetric, int heightMetric) {
  return static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kAppIconId),
                                       IMAGE_ICON, GetSystemMetrics(widthMetric),
                                       GetSystemMetrics(heightMetric), LR_SHARED));
}

}  // namespace

void RegisterWindowClass(const ClassPlan& plan) {
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  if (GetClassInfoExW(instance, plan.name, &windowClass)) return;
  windowClass.lpfnWndProc = plan.procedure;
  windowClass.hInstance = instance;
  windowClass.hIcon = AppIcon(SM_CXICON, SM_CYICON);
  windowClass.hIconSm = AppIcon(SM_CXSMICON, SM_CYSMICON);
  windowClass.hCursor = LoadCursorW(nullptr, plan.cursor);
  windowClass.hbrBackground = plan.background;
  windowClass.lpszClassName = plan.name;
  RegisterClassExW(&windowClass);
}

Window::~Window() {
  if (hwnd_ == nullptr) return;
  SetWindowLongPtrW(hwnd_, GWLP_USERDATA, 0);
  DestroyWindow(hwnd_);
}

bool Window::Create(const WindowPlan& plan) {
  RegisterWindowClass({plan.className, Thunk, IDC_ARROW, plan.background});
  const RECT& place = plan.place;
  CreateWindowExW(plan.exStyle, plan.className, plan.caption, plan.style, place.left, place.top,
                  place.right, place.bottom, plan.parentOrOwner, nullptr, GetModuleHandleW(nullptr),
                  this);
  return hwnd_ != nullptr;
}

LRESULT CALLBACK Window::Thunk(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  if (message == WM_NCCREATE) {
    auto* const created =
        static_cast<Window*>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
    created->hwnd_ = hwnd;
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
  }
  auto* const self = reinterpret_cast<Window*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(hwnd, message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
    self->hwnd_ = nullptr;
    return DefWindowProcW(hwnd, message, wParam, lParam);
  }
  try {
    return self->HandleMessage(message, wParam, lParam);
  } catch (...) {
    return 0;
  }
}

}  // namespace ui
