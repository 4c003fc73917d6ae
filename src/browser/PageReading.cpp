#include "browser/PageReading.h"

#include <utility>

#include "browser/ElementChain.h"
#include "browser/ElementReaders.h"

namespace MyInternetexplore {
namespace {

PageTexts BodyTexts(IHTMLElement* element) {
  const DocumentPtr document = GetElDocument(element);
  const ElementPtr body = document ? GetBody(document.Get()) : ElementPtr();
  if (!body) return {};
  return {GetAncestorInnerText(body.Get(), 0), GetAncestorInnerHtml(body.Get(), 0)};
}

PageTexts TextsOf(IHTMLElement* element, std::int32_t startNode) {
  if (element == nullptr) return {};
  if (UpperTagName(element) == L"BODY") return BodyTexts(element);
  const int levels = GetElParent(element) ? startNode : 0;
  return {GetAncestorInnerText(element, levels), GetAncestorInnerHtml(element, levels)};
}

}  // namespace

std::optional<PageFacts> ReadPage(const PageRequest& request, const BrowserAccess& access,
                                  const platform::ReadSession& session) {
  const DocumentPtr document = GetIeObjFromhWnd(request.hwnd, access);
  if (!document) return std::nullopt;
  const POINT origin = OriginOf(request.hwnd, access);
  FoundElement found =
      FindElement(request.readPoint, origin, document.Get(), access, request.showMessage);
  request.textsRead(TextsOf(found.element.Get(), request.startNode));

  PageFacts facts;
  facts.url = GetUrl(document.Get());
  ReadChain(std::move(found.element), std::move(found.frames), request.mostText, session, facts);
  return facts;
}

}  // namespace MyInternetexplore
