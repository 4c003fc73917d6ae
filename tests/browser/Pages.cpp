#include "Pages.h"

#include <utility>

#include "fixture/HugeText.h"

namespace html {
namespace {

constexpr RECT kView = {0, 0, 400, 300};

// A document with a body of these elements.
DocumentData Document(std::wstring url, std::wstring text, std::wstring markup,
                      std::vector<ElementData> elements, RECT place = kView) {
  ElementData body = {.tag = L"BODY",
                      .text = text,
                      .markup = markup,
                      .place = place,
                      .children = std::move(elements)};
  return {std::move(url),
          {.tag = L"HTML",
           .text = std::move(text),
           .markup = L"<HEAD></HEAD>\r\n<BODY>" + markup + L"</BODY>",
           .place = place,
           .children = {std::move(body)}}};
}

// Puts the elements one below the other.
std::vector<ElementData> InRows(std::vector<ElementData> elements) {
  LONG top = 0;
  for (ElementData& element : elements) {
    element.place = {0, top, kView.right, top + kRowHeight};
    top += kRowHeight;
  }
  return elements;
}

ElementData InlineFrame(std::wstring id, std::wstring name, RECT place, DocumentData content) {
  return {.tag = L"IFRAME",
          .id = std::move(id),
          .name = std::move(name),
          .place = place,
          .frame = {std::move(content)}};
}

}  // namespace

DocumentData FruitPage() {
  const std::wstring items = L"林檎\r\n蜜柑\r\n葡萄";
  const std::wstring markup = L"\r\n<LI>林檎\r\n<LI>蜜柑\r\n<LI id=last>葡萄</LI>";
  ElementData list = {.tag = L"UL",
                      .text = items,
                      .markup = markup,
                      .place = {10, 50, 390, 200},
                      .children = {{.tag = L"LI",
                                    .value = 0L,
                                    .text = L"林檎",
                                    .markup = L"林檎",
                                    .place = {20, 60, 200, 80}},
                                   {.tag = L"LI",
                                    .value = 0L,
                                    .text = L"蜜柑",
                                    .markup = L"蜜柑",
                                    .place = {20, 80, 200, 100}},
                                   {.tag = L"LI",
                                    .id = L"last",
                                    .value = 3L,
                                    .text = L"葡萄",
                                    .markup = L"葡萄",
                                    .place = {20, 100, 200, 120}}}};
  return Document(
      L"http://kudamono.example/一覧.html", L"果物の頁\r\n\r\n" + items + L"\r\n\r\n 店へ",
      L"<H1>果物の頁</H1>\r\n<DIV id=box><UL>" + markup +
          L"</UL></DIV>\r\n<INPUT value=無花果 name=fruit> <A href=\"shop.html\">店へ</A>",
      {{.tag = L"H1",
        .id = L"title",
        .text = L"果物の頁",
        .markup = L"果物の頁",
        .place = {10, 10, 390, 40}},
       {.tag = L"DIV",
        .id = L"box",
        .text = items,
        .markup = L"<UL>" + markup + L"</UL>",
        .place = {10, 50, 390, 200},
        .children = {std::move(list)}},
       {.tag = L"INPUT",
        .name = L"fruit",
        .type = L"text",
        .value = L"無花果",
        .place = {10, 210, 200, 230}},
       {.tag = L"A",
        .name = L"",
        .type = L"",
        .text = L"店へ",
        .markup = L"店へ",
        .place = {10, 240, 200, 260}}});
}

DocumentData KindsPage() {
  const auto input = [](std::wstring type, std::wstring id, Attribute value) {
    return ElementData{.tag = L"INPUT",
                       .id = std::move(id),
                       .name = L"",
                       .type = std::move(type),
                       .value = std::move(value)};
  };
  return Document(
      L"http://host.example/kinds", L"種類", L"種類",
      InRows({
          input(L"text", L"t", L"文字"),
          input(L"password", L"p", L"secret"),
          input(L"checkbox", L"c", L"on"),
          input(L"radio", L"r", L"2"),
          input(L"button", L"b", L"押す"),
          input(L"submit", L"s", L"送信"),
          input(L"reset", L"", L"取消"),
          input(L"file", L"f", L"C:\\書類\\一.txt"),
          input(L"hidden", L"h", L"0"),
          input(L"image", L"i", {}),
          {.tag = L"SELECT", .name = L"choice", .type = L"select-one", .value = L"乙"},
          {.tag = L"TEXTAREA",
           .name = L"memo",
           .type = L"textarea",
           .value = L"一行\r\n二行",
           .text = L"一行\r\n二行"},
          {.tag = L"BUTTON", .name = L"go", .type = L"submit", .value = L"", .text = L"行く"},
          {.tag = L"LI", .value = 0L, .text = L"項目"},
          {.tag = L"LI", .value = 7L, .text = L"七番"},
          {.tag = L"BLOCKQUOTE", .text = L"引用\r\n\r\n二段"},
          {.tag = L"SPAN", .id = L"twelve-chars", .text = L"ちょうど"},
          {.tag = L"SPAN", .id = L"thirteen-char", .text = L"一つ多い"},
          {.tag = L"INPUT",
           .id = L"number",
           .name = L"number",
           .type = L"datetime-local",
           .value = L"2026-11-21T12"},
          {.tag = L"IMG", .id = L"画像", .name = L"picture"},
      }),
      {0, 0, kView.right, 500});
}

DocumentData LengthsPage() {
  const auto paragraph = [](std::wstring text) {
    return ElementData{.tag = L"P", .text = std::move(text)};
  };
  return Document(
      L"http://host.example/lengths", L"長さ", L"長さ",
      InRows({paragraph(std::wstring(50, L'a')), paragraph(std::wstring(52, L'b')),
              paragraph(std::wstring(53, L'c')),
              paragraph(std::wstring(26, L'd') + L"\r\n" + std::wstring(25, L'd')),
              paragraph(std::wstring(60, L'長')),
              paragraph(std::wstring(49, L'e') + L"\r\n\r\n\r\n" + std::wstring(10, L'f'))}));
}

DocumentData FrameSetPage() {
  DocumentData ad = Document(
      L"http://ads.example/", L"広告", L"<P>広告</P>",
      {{.tag = L"P", .id = L"pr", .text = L"広告", .place = {0, 0, 100, 20}}}, {0, 0, 100, 50});
  DocumentData menu = Document(
      L"http://host.example/menu", L"献立", L"<A>献立</A>",
      {{.tag = L"A", .id = L"entry", .text = L"献立", .markup = L"献立", .place = {0, 0, 100, 20}}},
      {0, 0, 100, 300});
  ElementData inner = InlineFrame(L"ad", L"", {50, 100, 150, 150}, std::move(ad));
  inner.windowName = L"ad";
  DocumentData main = Document(
      L"http://host.example/main", L"本文", L"<P>本文</P>",
      {{.tag = L"P", .text = L"本文", .markup = L"<B>本文</B>", .place = {10, 10, 290, 40}},
       std::move(inner)},
      {0, 0, 300, 300});
  ElementData set = {
      .tag = L"FRAMESET",
      .place = kView,
      .children = {
          {.tag = L"FRAME", .name = L"menu", .place = {0, 0, 100, 300}, .frame = {std::move(menu)}},
          {.tag = L"FRAME",
           .id = L"body",
           .name = L"body",
           .place = {100, 0, 400, 300},
           .frame = {std::move(main)}}}};
  return {L"http://host.example/set",
          {.tag = L"HTML", .place = kView, .children = {std::move(set)}}};
}

DocumentData UnnamedFramesPage() {
  const auto frame = [](LONG left, const std::wstring& text) {
    return ElementData{
        .tag = L"FRAME",
        .name = L"",
        .place = {left, 0, left + 200, 300},
        .frame = {Document(L"http://host.example/" + text, text, text,
                           {{.tag = L"P", .id = text, .text = text, .place = {0, 0, 200, 100}}},
                           {0, 0, 200, 300})}};
  };
  return {L"http://host.example/two",
          {.tag = L"HTML",
           .place = kView,
           .children = {{.tag = L"FRAMESET",
                         .place = kView,
                         .children = {frame(0, L"左"), frame(200, L"右")}}}}};
}

DocumentData ScrolledFramesPage() {
  DocumentData document = Document(
      L"http://host.example/0", L"奥", L"<P id=deep>奥</P>",
      {{.tag = L"P", .id = L"deep", .text = L"奥", .markup = L"奥", .place = {150, 190, 250, 210}}},
      {0, 0, 1000, 1000});
  for (const wchar_t* const name : {L"third", L"second", L"first"}) {
    document = Document(std::wstring(L"http://host.example/") + name, L"", L"<IFRAME></IFRAME>",
                        {InlineFrame(L"", name, {-30, -40, 370, 260}, std::move(document))});
  }
  return document;
}

DocumentData ForeignFramePage() {
  return Document(L"http://host.example/foreign", L"外", L"外<IFRAME></IFRAME>",
                  {InlineFrame(L"foreign", L"foreign", {10, 10, 210, 110},
                               Document(L"http://other.example/", L"秘密", L"秘密", {}))});
}

DocumentData ChainPage(int elements) {
  ElementData chain = {
      .tag = L"B", .id = L"leaf", .text = L"葉", .markup = L"葉", .place = {0, 0, 400, 280}};
  for (int i = elements - 1; i > 2; --i) {
    ElementData outer = {.tag = L"DIV", .id = L"d" + std::to_wstring(i), .place = chain.place};
    outer.text = outer.markup = L"葉";
    outer.children.push_back(std::move(chain));
    chain = std::move(outer);
  }
  return Document(L"http://host.example/chain", L"葉", L"葉", {std::move(chain)});
}

DocumentData NestedFramesPage(int frames) {
  DocumentData document = Document(L"http://host.example/bottom", L"底", L"底",
                                   {{.tag = L"P", .text = L"底", .markup = L"底", .place = kView}});
  for (int i = 0; i < frames; ++i) {
    document = Document(L"http://host.example/nest", L"", L"",
                        {InlineFrame(L"f", L"f", kView, std::move(document))});
  }
  return document;
}

DocumentData HugePage(std::size_t characters) {
  const std::wstring text = fixture::HugeText(characters);
  return Document(L"http://host.example/huge", text, text,
                  {{.tag = L"P", .text = text, .markup = text, .place = {0, 0, 400, 280}}});
}

DocumentData OrphanPage() {
  return Document(L"http://host.example/orphan", L"外側", L"外側",
                  {{.tag = L"P",
                    .text = L"孤児",
                    .markup = L"<B>孤児</B>",
                    .place = {0, 0, 400, 280},
                    .orphan = true}});
}

}  // namespace html
