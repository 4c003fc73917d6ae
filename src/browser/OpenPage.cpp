#include "browser/OpenPage.h"

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

class OpenedPage : public PageReader {
 public:
  OpenedPage(DocumentPtr document, FoundElement found, const PageOptions& options)
      : document_(std::move(document)), found_(std::move(found)), options_(options) {}

  PageTexts Texts() override {
    IHTMLElement* const element = found_.element.Get();
    if (element == nullptr) return {};
    if (UpperTagName(element) == L"BODY") return BodyTexts(element);
    const int levels = GetElParent(element) ? options_.startNode : 0;
    return {GetAncestorInnerText(element, levels), GetAncestorInnerHtml(element, levels)};
  }

  PageFacts Facts(const platform::ReadSession& session) override {
    PageFacts facts;
    facts.url = GetUrl(document_.Get());
    ReadChain(found_.element, found_.frames, options_.mostText, session, facts);
    return facts;
  }

 private:
  DocumentPtr document_;
  FoundElement found_;
  PageOptions options_;
};

}  // namespace

std::unique_ptr<PageReader> OpenPage(HWND hwnd, POINT readPoint, const PageOptions& options,
                                     const BrowserAccess& access) {
  DocumentPtr document = GetIeObjFromhWnd(hwnd, access);
  if (!document) return nullptr;
  FoundElement found = FindElement(readPoint, OriginOf(hwnd, access), document.Get(), access);
  return std::make_unique<OpenedPage>(std::move(document), std::move(found), options);
}

}  // namespace MyInternetexplore
