#include "PageReaders.h"

#include <windows.h>

#include <mshtml.h>
#include <oleacc.h>
#include <wrl/client.h>

#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>

#include "Turns.h"
#include "browser/BrowserProcess.h"
#include "browser/InterfaceDescription.h"
#include "browser/PageReading.h"
#include "driver/Pointer.h"
#include "platform/ComOwners.h"
#include "report/ElementTable.h"

namespace bench {
namespace {

using Microsoft::WRL::ComPtr;
using platform::UniqueBstr;

constexpr int kRounds = 7;
constexpr int kTextLength = 50;
constexpr int kCallsAside = 2;  // of other windows that call the page meanwhile

void ReadPage(HWND window, POINT point, const MyInternetexplore::BrowserAccess& access) {
  HWND target = window;
  const platform::ReadSession session{target, [](const std::wstring&) {}, PumpMessages,
                                      [] { return true; }};
  bool displayed = false;
  const auto page = MyInternetexplore::ReadPage(
      {window, point, 0, report::CharactersNeeded(kTextLength), [](const std::wstring&) {},
       [&](const MyInternetexplore::PageTexts& texts) { displayed = !texts.displayed.empty(); }},
      access, session);
  if (!page) throw std::runtime_error("the browser fixture gives no page");
  if (!displayed || report::ElementReport(*page, kTextLength).size() < 1000) {
    throw std::runtime_error("little was read from the browser fixture");
  }
}

ComPtr<IHTMLDocument2> BareDocument(HWND window) {
  ComPtr<IUnknown> object;
  ComPtr<IHTMLDocument2> document;
  DWORD_PTR answer = 0;
  SendMessageTimeoutA(window, RegisterWindowMessageA("WM_HTML_GETOBJECT"), 0, 0, SMTO_ABORTIFHUNG,
                      2000, &answer);
  ObjectFromLresult(static_cast<LRESULT>(answer), IID_NULL, 0,
                    reinterpret_cast<void**>(object.GetAddressOf()));
  object.As(&document);
  return document;
}

void AskText(IHTMLElement* element, HRESULT (STDMETHODCALLTYPE IHTMLElement::*member)(BSTR*)) {
  UniqueBstr text;
  (element->*member)(text.Receive());
}

void AskIdOrName(IHTMLElement* element) {
  UniqueBstr id;
  element->get_id(id.Receive());
  if (!id.View().empty()) return;
  wchar_t name[] = L"name";
  wchar_t* names[] = {name};
  DISPID number = 0;
  platform::UniqueVariant value;
  if (FAILED(element->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &number))) return;
  DISPPARAMS none{};
  element->Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                  value.Receive(), nullptr, nullptr);
}

void AskAttribute(IHTMLElement* element, const wchar_t* name) {
  const UniqueBstr text(name);
  platform::UniqueVariant value;
  element->getAttribute(text.Get(), 0, value.Receive());
}

ComPtr<IHTMLElement> Parent(IHTMLElement* element) {
  ComPtr<IHTMLElement> parent;
  element->get_parentElement(parent.GetAddressOf());
  return parent;
}

// Whether there is a page around that of the root.
void AskAround(IHTMLElement* root) {
  ComPtr<IDispatch> object;
  ComPtr<IHTMLDocument2> document;
  ComPtr<IHTMLDocument2> around;
  ComPtr<IHTMLWindow2> window;
  ComPtr<IHTMLWindow2> parent;
  root->get_document(object.GetAddressOf());
  object.As(&document);
  document->get_parentWindow(window.GetAddressOf());
  window->get_parent(parent.GetAddressOf());
  parent->get_document(around.GetAddressOf());
}

ComPtr<IHTMLElement> BareElement(IHTMLDocument2* document, HWND window, POINT point) {
  RECT place{};
  GetWindowRect(window, &place);
  ComPtr<IHTMLElement> element;
  document->elementFromPoint(point.x - place.left, point.y - place.top, element.GetAddressOf());
  AskText(element.Get(), &IHTMLElement::get_tagName);
  return element;
}

void AskPage(HWND window, POINT point) {
  const ComPtr<IHTMLDocument2> document = BareDocument(window);
  BareElement(document.Get(), window, point);
  ComPtr<IHTMLElement> element = BareElement(document.Get(), window, point);

  AskText(element.Get(), &IHTMLElement::get_tagName);
  Parent(element.Get());
  AskText(element.Get(), &IHTMLElement::get_innerText);
  AskText(element.Get(), &IHTMLElement::get_innerHTML);

  UniqueBstr address;
  document->get_URL(address.Receive());
  for (ComPtr<IHTMLElement> next; element; element = next) {
    AskText(element.Get(), &IHTMLElement::get_tagName);
    AskAttribute(element.Get(), L"type");
    AskIdOrName(element.Get());
    AskAttribute(element.Get(), L"value");
    AskText(element.Get(), &IHTMLElement::get_innerText);
    PumpMessages();
    next = Parent(element.Get());
    if (!next) AskAround(element.Get());
  }
}

int CallsOf(const html::BrowserProcess& process, const std::function<void()>& work) {
  const int before = process.Calls();
  work();
  return process.Calls() - before;
}

}  // namespace

std::vector<Pair> MeasureElementChain(int elements) {
  const Apartment apartment;
  // For both sides, because otherwise its loading would be measured.
  MyInternetexplore::InterfaceDescription description;
  description.Hold();
  const html::BrowserProcess process("deadline=900 chain=" + std::to_string(elements));
  const HWND window = process.Window();
  const POINT point = process["document"].Center();
  gui::pointer::MoveTo(point);
  MyInternetexplore::BoundedMessages messages(MyInternetexplore::SystemBrowserCalls());
  const MyInternetexplore::BrowserAccess access{MyInternetexplore::SystemBrowserCalls(), messages};
  const auto ours = [&] { ReadPage(window, point, access); };
  const auto bare = [&] { AskPage(window, point); };
  // The yardstick must make the same calls.
  if (std::abs(CallsOf(process, ours) - CallsOf(process, bare)) > kCallsAside) {
    throw std::runtime_error("the element chain and its yardstick make different calls");
  }
  return Compare(kRounds, ours, bare);
}

}  // namespace bench
