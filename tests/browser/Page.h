// A browser's page for tests: documents, elements and windows that answer what a test sets, in this
// process or in another one.
#pragma once

#include <windows.h>

#include <mshtml.h>

#include <deque>
#include <span>
#include <string>
#include <vector>

#include "PageData.h"
#include "RefusedMembers.h"
#include "ScriptObject.h"

namespace html {

class Document;
class Window;

class Rectangle : public ScriptObject<Rectangle, RefusedRectangle> {
 public:
  static std::span<const Member> Members();

  Rectangle(Watch& watch, const std::string& element, const RECT& place)
      : ScriptObject(watch, element + ".rectangle"), place_(place) {}

  void* Offer(REFIID id);
  bool Knows(const Member&) const { return true; }

  HRESULT STDMETHODCALLTYPE get_left(LONG* left) override;
  HRESULT STDMETHODCALLTYPE get_top(LONG* top) override;
  HRESULT STDMETHODCALLTYPE get_right(LONG* right) override;
  HRESULT STDMETHODCALLTYPE get_bottom(LONG* bottom) override;

 private:
  HRESULT Edge(const char* name, LONG edge, LONG* answer);

  RECT place_;
};

class Element : public ScriptObject<Element, RefusedElement, RefusedElement2> {
 public:
  static std::span<const Member> Members();

  // Takes all of data but its children and its frame.
  Element(Watch& watch, ElementData data, Document& document, Element* parentElement);

  void* Offer(REFIID id);
  bool Knows(const Member& member) const;

  const ElementData& Data() const { return data_; }
  // All references to this and to its rectangle.
  LONG AllReferences() const { return References() + rectangle_.References(); }
  bool IsBody() const { return data_.tag == L"BODY" || data_.tag == L"FRAMESET"; }
  // The innermost element there, this one or one inside; null when there is none. Later elements
  // are on top.
  Element* At(LONG x, LONG y);

  Document* document;
  Element* parent;
  std::vector<Element*> children;
  Window* content = nullptr;  // of a frame

  HRESULT STDMETHODCALLTYPE get_tagName(BSTR* text) override;
  HRESULT STDMETHODCALLTYPE get_id(BSTR* text) override;
  HRESULT STDMETHODCALLTYPE get_innerText(BSTR* text) override;
  HRESULT STDMETHODCALLTYPE get_innerHTML(BSTR* text) override;
  HRESULT STDMETHODCALLTYPE get_parentElement(IHTMLElement** element) override;
  HRESULT STDMETHODCALLTYPE get_document(IDispatch** object) override;
  HRESULT STDMETHODCALLTYPE getAttribute(BSTR name, LONG flags, VARIANT* answer) override;
  HRESULT STDMETHODCALLTYPE getBoundingClientRect(IHTMLRect** rectangle) override;

 private:
  static HRESULT Name(Element& element, VARIANT* answer);
  static HRESULT Type(Element& element, VARIANT* answer);
  static HRESULT Value(Element& element, VARIANT* answer);
  HRESULT Text(const char* member, const std::wstring& text, BSTR* answer);

  ElementData data_;
  Rectangle rectangle_;
};

// A window is the collection of its frames, too.
class Window : public ScriptObject<Window, RefusedWindow> {
 public:
  static std::span<const Member> Members();

  Window(Watch& watch, std::wstring name, Window* parentWindow);

  void* Offer(REFIID id);
  bool Knows(const Member&) const { return true; }

  Document* content = nullptr;
  Element* frameElement = nullptr;  // that this is the window of
  Window* parent;                   // of the topmost window: itself
  std::vector<Window*> frames;

  HRESULT STDMETHODCALLTYPE item(VARIANT* index, VARIANT* frame) override;
  HRESULT STDMETHODCALLTYPE get_length(LONG* count) override;
  HRESULT STDMETHODCALLTYPE get_frames(IHTMLFramesCollection2** collection) override;
  HRESULT STDMETHODCALLTYPE get_name(BSTR* text) override;
  HRESULT STDMETHODCALLTYPE get_parent(IHTMLWindow2** window) override;
  HRESULT STDMETHODCALLTYPE get_document(IHTMLDocument2** document) override;

 private:
  static HRESULT FrameElement(Window& window, VARIANT* answer);

  std::wstring name_;
};

class Document : public ScriptObject<Document, RefusedDocument> {
 public:
  static std::span<const Member> Members();

  Document(Watch& watch, std::wstring url, Window& window);

  void* Offer(REFIID id);
  bool Knows(const Member&) const { return true; }

  Window* window;
  Element* root = nullptr;

  HRESULT STDMETHODCALLTYPE elementFromPoint(LONG x, LONG y, IHTMLElement** element) override;
  HRESULT STDMETHODCALLTYPE get_frames(IHTMLFramesCollection2** collection) override;
  HRESULT STDMETHODCALLTYPE get_body(IHTMLElement** element) override;
  HRESULT STDMETHODCALLTYPE get_URL(BSTR* text) override;
  HRESULT STDMETHODCALLTYPE get_parentWindow(IHTMLWindow2** parentWindow) override;

 private:
  std::wstring url_;
};

// Owns all objects of a page and of the pages in its frames.
class Page {
 public:
  explicit Page(const DocumentData& data);

  Watch watch;

  Document& Top() { return documents_.front(); }
  // By label, as the calls are recorded: "DIV#menu" (tag and id), "IFRAME@ad" (tag and name),
  // "BODY". The first in the page; throws std::out_of_range when there is none.
  Element& At(std::string_view label);
  Window& WindowNamed(std::string_view name);

  // What others hold of all objects together: 0 when nothing was left behind.
  LONG References() const;

 private:
  Document& AddDocument(const DocumentData& data, Window& window);
  Element& AddElement(const ElementData& data, Document& document, Element* parent);

  std::deque<Document> documents_;
  std::deque<Window> windows_;
  std::deque<Element> elements_;
};

}  // namespace html
