#include "browser/FrameDescent.h"

#include <cstdint>
#include <string_view>

#include "browser/ElementReaders.h"
#include "browser/FrameSearch.h"
#include "platform/ComOwners.h"
#include "platform/ErrorReport.h"

namespace MyInternetexplore {
namespace {

struct Level {
  DocumentPtr document;
  POINT origin;
};

// Pages may report any numbers, and sums outside 32 bits wrap around.
LONG Sum(LONG a, LONG b) { return static_cast<LONG>(std::int64_t{a} + b); }
LONG Difference(LONG a, LONG b) { return static_cast<LONG>(std::int64_t{a} - b); }

ElementPtr ElementAt(const Level& level, POINT point) {
  ElementPtr element;
  Require(level.document->elementFromPoint(Difference(point.x, level.origin.x),
                                           Difference(point.y, level.origin.y),
                                           element.GetAddressOf()));
  return element;
}

bool IsFrameTag(std::wstring_view tag) { return tag == L"FRAME" || tag == L"IFRAME"; }

// The document in a frame and its origin. The frame element's rectangle is relative to the
// enclosing document, and negative where that is scrolled.
Level Enter(const Level& outer, const ElementPtr& frameElement, IHTMLWindow2* frame) {
  Level inner;
  Require(frame->get_document(inner.document.GetAddressOf()));
  if (!inner.document) Require(E_ACCESSDENIED);

  Microsoft::WRL::ComPtr<IHTMLElement2> placed;
  Microsoft::WRL::ComPtr<IHTMLRect> place;
  LONG left = 0;
  LONG top = 0;
  Require(frameElement.As(&placed));
  Require(placed->getBoundingClientRect(place.GetAddressOf()));
  if (!place) Require(E_UNEXPECTED);
  Require(place->get_left(&left));
  Require(place->get_top(&top));
  inner.origin = {Sum(outer.origin.x, left), Sum(outer.origin.y, top)};
  return inner;
}

DocumentPtr InnermostDocument(POINT readPoint, Level level, POINT& outOrigin, FrameTrail& trail) {
  for (int i = 0; i <= kMostLevels; ++i) {
    const ElementPtr element = ElementAt(level, readPoint);
    if (!element) return {};
    if (!IsFrameTag(GetElTagName(element.Get()))) {
      outOrigin = level.origin;
      return level.document;
    }
    // By id or name here, by name alone below. Odd, and stays: docs/ODDITIES.md.
    const WindowPtr frame = FindFrameNamed(level.document.Get(), GetElIdOrName(element.Get()));
    if (!frame) return {};
    level = Enter(level, element, frame.Get());
    trail.push_back(element);
  }
  return {};
}

POINT Pointer(BrowserCalls& calls) {
  POINT pointer{};
  if (!calls.GetCursorPos(&pointer)) Require(HRESULT_FROM_WIN32(GetLastError()));
  return pointer;
}

// An element that has no such member at all leaves name empty.
void ReadName(IHTMLElement* element, platform::UniqueVariant& name) {
  const HRESULT result = GetByName(element, L"name", name.Receive());
  if (result != DISP_E_UNKNOWNNAME && result != DISP_E_MEMBERNOTFOUND) Require(result);
}

ElementPtr InnermostElement(POINT pointer, Level level, POINT& outOrigin, FrameTrail& trail) {
  for (int i = 0; i <= kMostLevels; ++i) {
    ElementPtr element = ElementAt(level, pointer);
    outOrigin = level.origin;
    if (!element) return {};
    platform::UniqueBstr tag;
    Require(element->get_tagName(tag.Receive()));
    if (!IsFrameTag(tag.View())) return element;

    platform::UniqueVariant name;
    ReadName(element.Get(), name);
    const WindowPtr frame = FindFrameNamed(level.document.Get(), name.Get());
    if (!frame) return element;
    level = Enter(level, element, frame.Get());
    trail.push_back(element);
  }
  return {};
}

}  // namespace

DocumentPtr ResolveFrameDocument(POINT readPoint, POINT origin, IHTMLDocument2* document,
                                 POINT& outOrigin, FrameTrail& trail,
                                 const ShowMessage& showMessage) {
  try {
    return InnermostDocument(readPoint, {document, origin}, outOrigin, trail);
  } catch (...) {
    showMessage(L"ResolveFrameDocument:" + platform::CurrentErrorText());
    return {};
  }
}

ElementPtr GetElFromPoint(POINT origin, IHTMLDocument2* document, POINT& outOrigin,
                          FrameTrail& trail, BrowserCalls& calls) {
  try {
    return InnermostElement(Pointer(calls), {document, origin}, outOrigin, trail);
  } catch (...) {
    platform::ReportCurrentErrorAtLine(L"GetElFromPoint");
    return {};
  }
}

}  // namespace MyInternetexplore
