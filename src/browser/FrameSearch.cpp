#include "browser/FrameSearch.h"

#include <algorithm>

#include "platform/ComOwners.h"
#include "platform/ErrorReport.h"

namespace MyInternetexplore {
namespace {

// Larger counts are limited to this.
constexpr LONG kMostFrames = 4096;

WindowPtr FrameAt(IHTMLFramesCollection2* frames, LONG index) {
  VARIANT number{};
  number.vt = VT_I4;
  number.lVal = index;
  platform::UniqueVariant item;
  Require(frames->item(&number, item.Receive()));
  if (item.Get().vt != VT_DISPATCH || item.Get().pdispVal == nullptr) Require(DISP_E_TYPEMISMATCH);
  WindowPtr frame;
  Require(item.Get().pdispVal->QueryInterface(IID_PPV_ARGS(frame.GetAddressOf())));
  return frame;
}

}  // namespace

void Require(HRESULT result) {
  if (FAILED(result)) throw platform::NumberedError(result, platform::SystemDescription(result));
}

WindowPtr FindFrame(IHTMLDocument2* document, const std::function<bool(IHTMLWindow2*)>& isIt) {
  Microsoft::WRL::ComPtr<IHTMLFramesCollection2> frames;
  Require(document->get_frames(frames.GetAddressOf()));
  if (!frames) return {};
  LONG length = 0;
  Require(frames->get_length(&length));
  for (LONG i = 0; i < std::min(length, kMostFrames); ++i) {
    WindowPtr frame = FrameAt(frames.Get(), i);
    if (isIt(frame.Get())) return frame;
  }
  return {};
}

WindowPtr FindFrameNamed(IHTMLDocument2* document, const std::wstring& name) {
  return FindFrame(document, [&](IHTMLWindow2* frame) {
    platform::UniqueBstr own;
    Require(frame->get_name(own.Receive()));
    return own.View() == name;
  });
}

WindowPtr FindFrameNamed(IHTMLDocument2* document, const VARIANT& name) {
  return FindFrame(document, [&](IHTMLWindow2* frame) {
    platform::UniqueBstr own;
    Require(frame->get_name(own.Receive()));
    VARIANT text{};
    text.vt = VT_BSTR;
    text.bstrVal = own.Get();
    // Compared without a locale: texts are equal when all of their characters are.
    return VarCmp(const_cast<VARIANT*>(&name), &text, 0, 0) == static_cast<HRESULT>(VARCMP_EQ);
  });
}

bool IsSame(IUnknown* a, IUnknown* b) {
  Microsoft::WRL::ComPtr<IUnknown> first;
  Microsoft::WRL::ComPtr<IUnknown> second;
  // The toolchain's ComPtr compares as bool.
  return SUCCEEDED(a->QueryInterface(IID_PPV_ARGS(first.GetAddressOf()))) &&
         SUCCEEDED(b->QueryInterface(IID_PPV_ARGS(second.GetAddressOf()))) &&
         first.Get() == second.Get();
}

}  // namespace MyInternetexplore
