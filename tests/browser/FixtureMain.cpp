// A target for tests: a browser's window whose document is a page of our own.
//
//   browser_fixture.exe [deadline=SECONDS] [title=CAPTION] [place=X,Y,WIDTH,HEIGHT]
//   SCENE[=VALUE]
//
// The scenes stand in Scenes.h, the other words in the fixture's CommandLine.h. The document's
// window fills a top-level window without a frame. Once the windows stand, one line "name=handle"
// (decimal) for "main", "document" and, where the scene has them, "combo" and "list" goes to the
// standard output, then the line "ready". The program ends when its window is closed and at its
// deadline. Exit codes: 0, 2 unknown scene.
#include <windows.h>

#include <objbase.h>
#include <oleacc.h>
#include <shellapi.h>

#include <algorithm>
#include <memory>
#include <string>

#include "Messages.h"
#include "Picture.h"
#include "Scenes.h"
#include "browser/InterfaceDescription.h"
#include "fixture/CommandLine.h"

namespace {

using html::Answering;

constexpr wchar_t kMainClass[] = L"FixtureBrowser";
constexpr DWORD kLate = 10'000;

html::Scene scene;
LRESULT requests = 0;

// Offers a document as nothing but that, and not by number or name.
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

// Lets everything that others send meanwhile be answered.
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
    case WM_TIMER:
      DestroyWindow(window);
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

void Register(HINSTANCE instance, const wchar_t* name, WNDPROC procedure) {
  WNDCLASSEXW windowClass = {};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = instance;
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  windowClass.lpszClassName = name;
  RegisterClassExW(&windowClass);
}

void Say(const std::string& line) {
  const std::string text = line + "\n";
  DWORD written = 0;
  WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), text.data(), static_cast<DWORD>(text.size()), &written,
            nullptr);
}

HWND Show(const char* name, const wchar_t* className, const wchar_t* text, HWND parent,
          const RECT& place) {
  const DWORD style = (parent == nullptr ? WS_POPUP : WS_CHILD) | WS_VISIBLE | WS_CLIPCHILDREN;
  HWND window = CreateWindowExW(parent == nullptr ? WS_EX_TOPMOST | WS_EX_NOACTIVATE : 0, className,
                                text, style, place.left, place.top, place.right, place.bottom,
                                parent, nullptr, GetModuleHandleW(nullptr), nullptr);
  Say(name + ("=" + std::to_string(reinterpret_cast<UINT_PTR>(window))));
  return window;
}

HWND ShowWindows(HINSTANCE instance, const fixture::CommandLine& asked) {
  constexpr wchar_t kCombo[] = L"Internet Explorer_TridentCmboBx";
  constexpr wchar_t kList[] = L"Internet Explorer_TridentLstBox";
  Register(instance, kMainClass, MainProcedure);
  Register(instance, scene.documentClass, DocumentProcedure);
  HWND main = Show("main", kMainClass, asked.title.c_str(), nullptr,
                   {asked.x, asked.y, asked.width, asked.height});
  HWND document =
      Show("document", scene.documentClass, L"", main, {0, 0, asked.width, asked.height});
  if (scene.hasLists) {
    Register(instance, kCombo, DefWindowProcW);
    Register(instance, kList, DefWindowProcW);
    Show("combo", kCombo, L"", document, {220, 210, 100, 20});
    Show("list", kList, L"", document, {220, 240, 100, 40});
  }
  UpdateWindow(document);
  return main;
}

struct LocalFreeCall {
  void operator()(wchar_t** words) const { LocalFree(words); }
};

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int) {
  int count = 0;
  const std::unique_ptr<wchar_t*, LocalFreeCall> words(
      CommandLineToArgvW(GetCommandLineW(), &count));
  const fixture::CommandLine asked = fixture::ParseCommandLine(count, words.get());
  if (asked.kinds.size() != 1 ||
      !html::BuildScene(asked.kinds[0].kind, asked.kinds[0].text, scene)) {
    return 2;
  }

  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  MyInternetexplore::InterfaceDescription description;
  description.Hold();
  SetTimer(ShowWindows(instance, asked), 1, asked.deadlineSeconds * 1000, nullptr);
  Say("ready");

  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  // The other side may hold objects still.
  ExitProcess(static_cast<UINT>(message.wParam));
}
