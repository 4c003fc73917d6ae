#include "browser/MyInternetexplore.h"

#include <cstring>

#include "browser/FrameSearch.h"
#include "platform/ErrorReport.h"

namespace MyInternetexplore {
namespace {

// Without the error. Odd, and stays: docs/ODDITIES.md.
constexpr wchar_t kNoDocument[] = L"GetElByPos:Generate Html-DOC failed";

// The object of the answer, requested by id; empty when it is refused.
Microsoft::WRL::ComPtr<IUnknown> ObjectOf(DWORD_PTR answer, REFIID id, BrowserCalls& calls) {
  Microsoft::WRL::ComPtr<IUnknown> object;
  if (answer == 0) return object;
  void* received = nullptr;
  if (FAILED(calls.ObjectFromLresult(static_cast<LRESULT>(answer), id, 0, &received))) return {};
  // Every interface begins with the three methods of IUnknown.
  *object.GetAddressOf() = static_cast<IUnknown*>(received);
  return object;
}

DocumentPtr RequestDocument(HWND hwnd, const BrowserAccess& access) {
  const UINT message = access.calls.RegisterWindowMessageA("WM_HTML_GETOBJECT");
  if (message == 0) Require(HRESULT_FROM_WIN32(GetLastError()));

  IID id = IID_IHTMLDocument;
  DWORD_PTR answer = access.messages.Send(hwnd, message);
  if (answer != 0 && access.description != nullptr) access.description->Hold();
  // The object is requested under the all-zero identifier. Odd, and stays: docs/ODDITIES.md.
  std::memset(&id, 0, sizeof id);
  Microsoft::WRL::ComPtr<IUnknown> object = ObjectOf(answer, id, access.calls);
  if (answer != 0 && !object) {
    // When that is refused, the document's own interface is requested. An answer can be used only
    // once.
    answer = access.messages.Send(hwnd, message);
    object = ObjectOf(answer, IID_IHTMLDocument2, access.calls);
  }

  DocumentPtr document;
  if (!object || FAILED(object.As(&document))) return {};
  return document;
}

}  // namespace

DocumentPtr GetIeObjFromhWnd(HWND hwnd, const BrowserAccess& access) {
  try {
    return RequestDocument(hwnd, access);
  } catch (...) {
    platform::ReportCurrentErrorAtLine(L"Generate");
    return {};
  }
}

FoundElement FindElement(POINT readPoint, POINT origin, IHTMLDocument2* document,
                         const BrowserAccess& access, const ShowMessage& showMessage) {
  FoundElement found;
  const DocumentPtr inner =
      ResolveFrameDocument(readPoint, origin, document, origin, found.frames, showMessage);
  if (inner) {
    found.element = GetElFromPoint(origin, inner.Get(), origin, found.frames, access.calls);
  }
  return found;
}

POINT OriginOf(HWND hwnd, const BrowserAccess& access) {
  RECT place{};
  access.calls.GetWindowRect(hwnd, &place);
  return {place.left, place.top};
}

ElementPtr GetElByPos(int x, int y, const BrowserAccess& access, const ShowMessage& showMessage) {
  const POINT point{x, y};
  const HWND hwnd = access.calls.WindowFromPoint(point);
  const POINT origin = OriginOf(hwnd, access);
  const DocumentPtr document = GetIeObjFromhWnd(hwnd, access);
  if (!document) {
    showMessage(kNoDocument);
    return {};
  }
  return FindElement(point, origin, document.Get(), access, showMessage).element;
}

}  // namespace MyInternetexplore
