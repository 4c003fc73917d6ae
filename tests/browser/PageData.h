// A page as plain data: what Page.h makes a document of.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace html {

struct DocumentData;

// What getAttribute answers: null, a text or a number.
using Attribute = std::variant<std::monostate, std::wstring, LONG>;

struct ElementData {
  std::wstring tag;
  std::wstring id{};
  // Without one the element does not know the member "name" at all.
  std::optional<std::wstring> name{};
  Attribute type{};
  Attribute value{};
  std::wstring text{};    // innerText
  std::wstring markup{};  // innerHTML
  RECT place{};           // left, top, right, bottom in pixels of its document
  bool orphan = false;    // has no parentElement
  std::vector<ElementData> children{};
  // What a frame shows: one document; none for what is no frame.
  std::vector<DocumentData> frame{};
  // The name of a frame's window, where it differs from the name of the frame.
  std::optional<std::wstring> windowName{};
};

struct DocumentData {
  std::wstring url;
  ElementData root;
};

}  // namespace html
