// A target for tests: a browser's window whose document is a page for tests.
//
//   browser_fixture.exe [parent=PID] [deadline=SECONDS] [title=CAPTION]
//                       [place=X,Y,WIDTH,HEIGHT] SCENE[=VALUE]
//
// The scenes are in Scenes.h, the other words in the fixture's CommandLine.h. The document's
// window fills a top-level window without a frame. Once the windows exist, one line "name=handle"
// (decimal) for "main", "document" and, where the scene has them, "combo" and "list" goes to the
// standard output, then the line "ready". The program ends when its window is closed, when
// its parent ends and at its deadline. Exit codes: 0 closed, 2 unknown scene, 3 parent gone or
// deadline passed, 4 COM refuses.
#include <windows.h>

#include <objbase.h>
#include <oleacc.h>

#include <algorithm>
#include <string>

#include "Messages.h"
#include "Picture.h"
#include "Scenes.h"
#include "browser/InterfaceDescription.h"
#include "fixture/CommandLine.h"
#include "fixture/FixtureProgram.h"
#include "fixture/HeldInterfaces.h"

namespace {

using html::Answering;

constexpr wchar_t kMainClass[] = L"FixtureBrowser";
constexpr DWORD kLate = 10'000;

html::Scene scene;
LRESULT requests = 0;

// Offers only the document's interface, and no access by number or name.
class BareDocument : public html::RefusedDocument {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool offered = id == IID_IUnknown || id == IID_IHTMLDocument2;
    *object = offered ? this : nullptr;
    return offered ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE elementFromPoint(LONG x, LONG y, IHTMLElement** element) override {
    return scene.page->Top().elementFromPoint(x, y, element);
  }
  HRESULT STDMETHODCALLTYPE get_frames(IHTMLFramesCollection2** frames) override {
    return scene.page->Top().get_frames(frames);
  }
  HRESULT STDMETHODCALLTYPE get_body(IHTMLElement** element) override {
    return scene.page->Top().get_body(element);
  }
  HRESULT STDMETHODCALLTYPE get_URL(BSTR* text) override { return scene.page->Top().get_URL(text); }
  HRESULT STDMETHODCALLTYPE get_parentWindow(IHTMLWindow2** window) override {
    return scene.page->Top().get_parentWindow(window);
  }
};
BareDocument bareDocument;

// Answers everything that other programs send meanwhile.
void BeLateButAwake() {
  const ULONGLONG end = GetTickCount64() + kLate;
  for (ULONGLONG now = GetTickCount64(); now < end; now = GetTickCount64()) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_SENDMESSAGE);
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
  }
}

LRESULT AnswerWithDocument(WPARAM wParam) {
  return LresultFromObject(IID_IHTMLDocument2, wParam,
                           static_cast<IHTMLDocument2*>(&scene.page->Top()));
}

LRESULT Answer(WPARAM wParam) {
  constexpr LRESULT kJunk[] = {0x7EDCBA98, 12345, -1};
  ++requests;
  switch (scene.answering) {
    case Answering::kHung:
      Sleep(kLate);
      break;
    case Answering::kSilent:
      BeLateButAwake();
      break;
    case Answering::kZero:
      return 0;
    case Answering::kJunk:
      return kJunk[static_cast<std::size_t>(requests) % std::size(kJunk)];
    case Answering::kSecond:
      if (requests == 1) return kJunk[0];
      break;
    case Answering::kBare:
      return LresultFromObject(IID_IHTMLDocument2, wParam, &bareDocument);
    case Answering::kDocument:
      break;
  }
  return AnswerWithDocument(wParam);
}

void Paint(HWND window) {
  PAINTSTRUCT paint = {};
  HDC dc = BeginPaint(window, &paint);
  html::Draw(dc, scene.page->Top());
  EndPaint(window, &paint);
}

LRESULT CALLBACK DocumentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  static const UINT getDocument = RegisterWindowMessageW(L"WM_HTML_GETOBJECT");
  if (message == getDocument) return Answer(wParam);
  switch (message) {
    case html::kReferences:
      return scene.page->References();
    case html::kCalls:
      return static_cast<LRESULT>(scene.page->watch.callCount);
    case html::kRequests:
      return requests;
    case WM_PAINT:
      Paint(window);
      return 0;
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

LRESULT CALLBACK MainProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

HWND Show(const wchar_t* name, const wchar_t* className, const wchar_t* text, HWND parent,
          const RECT& place) {
  const DWORD style = (parent == nullptr ? WS_POPUP : WS_CHILD) | WS_VISIBLE | WS_CLIPCHILDREN;
  HWND window = CreateWindowExW(parent == nullptr ? WS_EX_TOPMOST | WS_EX_NOACTIVATE : 0, className,
                                text, style, place.left, place.top, place.right, place.bottom,
                                parent, nullptr, GetModuleHandleW(nullptr), nullptr);
  fixture::Say(name, window);
  return window;
}

HWND ShowWindows(const fixture::CommandLine& asked) {
  constexpr wchar_t kCombo[] = L"Internet Explorer_TridentCmboBx";
  constexpr wchar_t kList[] = L"Internet Explorer_TridentLstBox";
  fixture::Register(kMainClass, MainProcedure);
  fixture::Register(scene.documentClass, DocumentProcedure);
  HWND main = Show(L"main", kMainClass, asked.title.c_str(), nullptr,
                   {asked.x, asked.y, asked.width, asked.height});
  HWND document =
      Show(L"document", scene.documentClass, L"", main, {0, 0, asked.width, asked.height});
  if (scene.hasLists) {
    fixture::Register(kCombo, DefWindowProcW);
    fixture::Register(kList, DefWindowProcW);
    Show(L"combo", kCombo, L"", document, {220, 210, 100, 20});
    Show(L"list", kList, L"", document, {220, 240, 100, 40});
  }
  UpdateWindow(document);
  return main;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
  const fixture::CommandLine asked = fixture::ParseCommandLine(fixture::OwnWords());
  if (asked.kinds.size() != 1 ||
      !html::BuildScene(asked.kinds[0].kind, asked.kinds[0].text, scene)) {
    return 2;
  }

  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  MyInternetexplore::InterfaceDescription description;
  description.Hold();
  if (!fixture::HoldInterfaces({IID_IDispatch, IID_IHTMLDocument, IID_IHTMLDocument2,
                                IID_IHTMLElement, IID_IHTMLElement2, IID_IHTMLFramesCollection2,
                                IID_IHTMLRect, IID_IHTMLWindow2})) {
    return 4;
  }
  ShowWindows(asked);
  fixture::Say("ready");

  const int code = fixture::RunUntilTheEnd(asked.parentProcess, asked.deadlineSeconds);
  // The other side may still hold objects.
  ExitProcess(static_cast<UINT>(code));
}
