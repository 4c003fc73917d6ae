#include <mshtmdid.h>

#include "Page.h"

namespace html {

std::span<const Window::Member> Window::Members() {
  static constexpr Member kMembers[] = {
      {L"length", DISPID_IHTMLFRAMESCOLLECTION2_LENGTH, Read<&Window::get_length>},
      {L"frames", DISPID_IHTMLWINDOW2_FRAMES, Read<&Window::get_frames>},
      {L"name", DISPID_IHTMLWINDOW2_NAME, Read<&Window::get_name>},
      {L"parent", DISPID_IHTMLWINDOW2_PARENT, Read<&Window::get_parent>},
      {L"document", DISPID_IHTMLWINDOW2_DOCUMENT, Read<&Window::get_document>},
      {L"frameElement", DISPID_IHTMLWINDOW4_FRAMEELEMENT, &Window::FrameElement},
  };
  return kMembers;
}

Window::Window(Watch& watch, std::wstring name, Window* parentWindow)
    : ScriptObject(watch, "window " + Narrow(name)),
      parent(parentWindow == nullptr ? this : parentWindow),
      name_(std::move(name)) {}

void* Window::Offer(REFIID id) {
  if (id == IID_IUnknown || id == IID_IDispatch || id == IID_IHTMLFramesCollection2 ||
      id == IID_IHTMLWindow2) {
    return static_cast<IHTMLWindow2*>(this);
  }
  return nullptr;
}

HRESULT Window::item(VARIANT* index, VARIANT* frame) {
  VariantInit(frame);
  LONG number = -1;
  if (index->vt == VT_I4) {
    number = index->lVal;
  } else if (index->vt == VT_BSTR && index->bstrVal != nullptr) {
    for (std::size_t i = 0; i < frames.size() && number < 0; ++i) {
      if (frames[i]->name_ == index->bstrVal) number = static_cast<LONG>(i);
    }
  }
  if (const HRESULT failure = Enter("item", std::to_string(number)); failure != S_OK) {
    return failure;
  }
  if (number < 0 || static_cast<std::size_t>(number) >= frames.size()) {
    return DISP_E_MEMBERNOTFOUND;
  }
  Window* const found = frames[static_cast<std::size_t>(number)];
  found->AddRef();
  Give(found, frame);
  return S_OK;
}

HRESULT Window::get_length(LONG* count) {
  *count = 0;
  if (const HRESULT failure = Enter("length"); failure != S_OK) return failure;
  *count = static_cast<LONG>(frames.size());
  return S_OK;
}

HRESULT Window::get_frames(IHTMLFramesCollection2** collection) {
  *collection = nullptr;
  if (const HRESULT failure = Enter("frames"); failure != S_OK) return failure;
  AddRef();
  *collection = this;
  return S_OK;
}

HRESULT Window::get_name(BSTR* text) {
  *text = nullptr;
  if (const HRESULT failure = Enter("name"); failure != S_OK) return failure;
  *text = NewText(name_);
  return S_OK;
}

HRESULT Window::FrameElement(Window& window, VARIANT* answer) {
  if (const HRESULT failure = window.Enter("frameElement"); failure != S_OK) return failure;
  if (window.frameElement != nullptr) window.frameElement->AddRef();
  Give(static_cast<IHTMLElement*>(window.frameElement), answer);
  return S_OK;
}

HRESULT Window::get_parent(IHTMLWindow2** window) {
  *window = nullptr;
  if (const HRESULT failure = Enter("parent"); failure != S_OK) return failure;
  parent->AddRef();
  *window = parent;
  return S_OK;
}

HRESULT Window::get_document(IHTMLDocument2** document) {
  *document = nullptr;
  if (const HRESULT failure = Enter("document"); failure != S_OK) return failure;
  if (content != nullptr) content->AddRef();
  *document = content;
  return S_OK;
}

}  // namespace html
