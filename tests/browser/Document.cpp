#include <mshtmdid.h>

#include "Page.h"

namespace html {

std::span<const Document::Member> Document::Members() {
  static constexpr Member kMembers[] = {
      {L"frames", DISPID_IHTMLDOCUMENT2_FRAMES, Read<&Document::get_frames>},
      {L"body", DISPID_IHTMLDOCUMENT2_BODY, Read<&Document::get_body>},
      {L"URL", DISPID_IHTMLDOCUMENT2_URL, Read<&Document::get_URL>},
      {L"parentWindow", DISPID_IHTMLDOCUMENT2_PARENTWINDOW, Read<&Document::get_parentWindow>},
  };
  return kMembers;
}

Document::Document(Watch& watch, std::wstring url, Window& ofWindow)
    : ScriptObject(watch, "document " + Narrow(url)), window(&ofWindow), url_(std::move(url)) {}

void* Document::Offer(REFIID id) {
  if (id == IID_IUnknown || id == IID_IDispatch || id == IID_IHTMLDocument ||
      id == IID_IHTMLDocument2) {
    return static_cast<IHTMLDocument2*>(this);
  }
  return nullptr;
}

HRESULT Document::elementFromPoint(LONG x, LONG y, IHTMLElement** element) {
  *element = nullptr;
  const std::string point = std::to_string(x) + "," + std::to_string(y);
  if (const HRESULT failure = Enter("elementFromPoint", point); failure != S_OK) return failure;
  Element* const found = root->At(x, y);
  if (found != nullptr) found->AddRef();
  *element = found;
  return S_OK;
}

HRESULT Document::get_frames(IHTMLFramesCollection2** collection) {
  *collection = nullptr;
  if (const HRESULT failure = Enter("frames"); failure != S_OK) return failure;
  window->AddRef();
  *collection = window;
  return S_OK;
}

HRESULT Document::get_body(IHTMLElement** element) {
  *element = nullptr;
  if (const HRESULT failure = Enter("body"); failure != S_OK) return failure;
  for (Element* const child : root->children) {
    if (!child->IsBody()) continue;
    child->AddRef();
    *element = child;
    break;
  }
  return S_OK;
}

HRESULT Document::get_URL(BSTR* text) {
  *text = nullptr;
  if (const HRESULT failure = Enter("URL"); failure != S_OK) return failure;
  *text = NewText(url_);
  return S_OK;
}

HRESULT Document::get_parentWindow(IHTMLWindow2** parentWindow) {
  *parentWindow = nullptr;
  if (const HRESULT failure = Enter("parentWindow"); failure != S_OK) return failure;
  window->AddRef();
  *parentWindow = window;
  return S_OK;
}

}  // namespace html
