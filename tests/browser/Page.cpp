#include "Page.h"

#include <stdexcept>

namespace html {
namespace {

ElementData WithoutContent(const ElementData& data) {
  return {.tag = data.tag,
          .id = data.id,
          .name = data.name,
          .type = data.type,
          .value = data.value,
          .text = data.text,
          .markup = data.markup,
          .place = data.place,
          .orphan = data.orphan};
}

}  // namespace

Page::Page(const DocumentData& data) {
  AddDocument(data, windows_.emplace_back(watch, L"", nullptr));
}

Document& Page::AddDocument(const DocumentData& data, Window& window) {
  Document& document = documents_.emplace_back(watch, data.url, window);
  window.content = &document;
  document.root = &AddElement(data.root, document, nullptr);
  return document;
}

Element& Page::AddElement(const ElementData& data, Document& document, Element* parent) {
  Element& element = elements_.emplace_back(watch, WithoutContent(data), document, parent);
  if (parent != nullptr) parent->children.push_back(&element);
  for (const DocumentData& content : data.frame) {
    Window& outer = *document.window;
    Window& inner =
        windows_.emplace_back(watch, data.windowName.value_or(data.name.value_or(L"")), &outer);
    inner.frameElement = &element;
    outer.frames.push_back(&inner);
    element.content = &inner;
    AddDocument(content, inner);
  }
  for (const ElementData& child : data.children) AddElement(child, document, &element);
  return element;
}

Element& Page::At(std::string_view label) {
  for (Element& element : elements_) {
    if (element.Label() == label) return element;
  }
  throw std::out_of_range("no element " + std::string(label));
}

Window& Page::WindowNamed(std::string_view name) {
  for (Window& window : windows_) {
    if (window.Label() == "window " + std::string(name)) return window;
  }
  throw std::out_of_range("no window " + std::string(name));
}

LONG Page::References() const {
  LONG count = 0;
  for (const Document& document : documents_) count += document.References();
  for (const Window& window : windows_) count += window.References();
  for (const Element& element : elements_) count += element.AllReferences();
  return count;
}

}  // namespace html
