#include "browser/ElementChain.h"

#include <algorithm>

#include "browser/ElementReaders.h"
#include "browser/FrameSearch.h"
#include "platform/ComOwners.h"

namespace MyInternetexplore {
namespace {

ElementFacts ReadElement(IHTMLElement* element, std::size_t mostText) {
  return {UpperTagName(element), GetElType(element), GetElIdOrName(element), GetElValue(element),
          StartOfInnerText(element, mostText)};
}

bool Shows(IHTMLWindow2* frame, IHTMLDocument2* document) {
  DocumentPtr own;
  return SUCCEEDED(frame->get_document(own.GetAddressOf())) && own && IsSame(own.Get(), document);
}

// The frame element in which the enclosing page shows document.
ElementPtr FrameElementOf(IHTMLDocument2* document) {
  const DocumentPtr around = GetParentDocument(document);
  if (!around || IsSame(around.Get(), document)) return {};
  const WindowPtr frame =
      FindFrame(around.Get(), [&](IHTMLWindow2* each) { return Shows(each, document); });
  if (!frame) return {};
  platform::UniqueVariant found;
  Require(GetByName(frame.Get(), L"frameElement", found.Receive()));
  ElementPtr element;
  if (found.Get().vt != VT_DISPATCH || found.Get().pdispVal == nullptr) return {};
  Require(found.Get().pdispVal->QueryInterface(IID_PPV_ARGS(element.GetAddressOf())));
  return element;
}

ElementPtr FrameElementAround(IHTMLElement* element) {
  const DocumentPtr document = GetElDocument(element);
  try {
    return document ? FrameElementOf(document.Get()) : ElementPtr();
  } catch (...) {
    return {};
  }
}

void Prepend(std::wstring& path, const ElementFacts& frame) {
  const std::wstring& name = frame.idOrName.empty() ? frame.tag : frame.idOrName;
  path = path.empty() ? name : name + L"/" + path;
}

}  // namespace

ElementPtr NextOutward(IHTMLElement* element, FrameTrail& frames, bool& leftFrame) {
  leftFrame = false;
  if (ElementPtr parent = GetElParent(element)) return parent;
  leftFrame = true;
  if (frames.empty()) return FrameElementAround(element);
  ElementPtr frame = frames.back();
  frames.pop_back();
  return frame;
}

void ReadChain(ElementPtr element, FrameTrail frames, std::size_t mostText,
               const platform::ReadSession& session, PageFacts& facts) {
  bool leftFrame = false;
  for (int i = 0; element && i < kMostLevels; ++i) {
    if (!session.GoesOn(platform::ReadUntil::kCaptureEnds)) {
      facts.interrupted = true;
      break;
    }
    facts.chain.push_back(ReadElement(element.Get(), mostText));
    if (leftFrame) Prepend(facts.framePath, facts.chain.back());
    session.yield();
    element = NextOutward(element.Get(), frames, leftFrame);
  }
  std::reverse(facts.chain.begin(), facts.chain.end());
}

}  // namespace MyInternetexplore
