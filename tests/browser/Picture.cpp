#include "Picture.h"

namespace html {
namespace {

constexpr int kDeepestFrame = 4;

void DrawDocument(HDC dc, const Document& document, POINT origin, int depth);

void DrawElement(HDC dc, const Element& element, POINT origin, int depth) {
  RECT place = element.Data().place;
  OffsetRect(&place, origin.x, origin.y);
  FrameRect(dc, &place, GetSysColorBrush(COLOR_3DSHADOW));
  if (element.content != nullptr && element.content->content != nullptr) {
    DrawDocument(dc, *element.content->content, {place.left, place.top}, depth + 1);
  }
  for (const Element* const child : element.children) DrawElement(dc, *child, origin, depth);
  if (!element.children.empty()) return;
  const auto* const value = std::get_if<std::wstring>(&element.Data().value);
  std::wstring text = value == nullptr ? element.Data().text : *value;
  text.resize(text.size() < 60 ? text.size() : 60);
  InflateRect(&place, -3, -1);
  DrawTextW(dc, text.c_str(), -1, &place, DT_NOPREFIX);
}

void DrawDocument(HDC dc, const Document& document, POINT origin, int depth) {
  if (depth < kDeepestFrame) DrawElement(dc, *document.root, origin, depth);
}

}  // namespace

void Draw(HDC dc, const Document& document) {
  SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
  SetBkMode(dc, TRANSPARENT);
  DrawDocument(dc, document, {0, 0}, 0);
}

}  // namespace html
