#include "platform/WindowEnumeration.h"

#include <exception>

namespace platform {
namespace {

struct Enumeration {
  const WindowVisitor& visit;
  std::exception_ptr thrown;

  LPARAM AsParameter() { return reinterpret_cast<LPARAM>(this); }
  void RethrowIfThrown() const {
    if (thrown) std::rethrow_exception(thrown);
  }
};

BOOL CALLBACK Visit(HWND hwnd, LPARAM parameter) noexcept {
  auto& enumeration = *reinterpret_cast<Enumeration*>(parameter);
  try {
    enumeration.visit(hwnd);
    return TRUE;
  } catch (...) {
    enumeration.thrown = std::current_exception();
    return FALSE;
  }
}

}  // namespace

void ForEachWindow(const WindowVisitor& visit) {
  Enumeration enumeration{visit, {}};
  EnumWindows(Visit, enumeration.AsParameter());
  enumeration.RethrowIfThrown();
}

void ForEachWindow(HWND root, const WindowVisitor& visit) {
  // Without a window the call would enumerate the whole desktop.
  if (!IsWindow(root)) return;
  Enumeration enumeration{visit, {}};
  EnumChildWindows(root, Visit, enumeration.AsParameter());
  enumeration.RethrowIfThrown();
}

}  // namespace platform
