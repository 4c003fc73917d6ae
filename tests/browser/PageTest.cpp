// The page that the other tests rely on.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wrl/client.h>

#include <stdexcept>
#include <string>

#include "Page.h"
#include "platform/ComOwners.h"

namespace html {
namespace {

using Microsoft::WRL::ComPtr;
using platform::UniqueBstr;
using platform::UniqueVariant;
using testing::ElementsAre;

DocumentData Framed() {
  return {
      .url = L"http://host/top",
      .root = {.tag = L"HTML",
               .place = {0, 0, 400, 300},
               .children = {
                   {.tag = L"BODY",
                    .place = {0, 0, 400, 300},
                    .children = {
                        {.tag = L"DIV", .id = L"under", .place = {10, 10, 110, 60}},
                        {.tag = L"INPUT",
                         .name = L"over",
                         .type = L"text",
                         .value = 0L,
                         .place = {50, 10, 150, 60}},
                        {.tag = L"IFRAME",
                         .id = L"box",
                         .name = L"inner",
                         .place = {20, 100, 220, 200},
                         .frame = {{.url = L"http://host/in",
                                    .root = {.tag = L"HTML", .place = {0, -50, 200, 500}}}}}}}}}};
}

class PageTest : public testing::Test {
 protected:
  ComPtr<IHTMLElement> ElementAt(LONG x, LONG y) {
    ComPtr<IHTMLElement> element;
    EXPECT_EQ(page_.Top().elementFromPoint(x, y, element.GetAddressOf()), S_OK);
    return element;
  }

  static std::wstring Text(IDispatch* object, std::wstring name) {
    UniqueVariant answer;
    const HRESULT result = Read(object, std::move(name), answer);
    if (result != S_OK) return L"";
    return answer.Get().bstrVal == nullptr ? L"" : answer.Get().bstrVal;
  }

  static HRESULT Read(IDispatch* object, std::wstring name, UniqueVariant& answer) {
    wchar_t* names[] = {name.data()};
    DISPID number = 0;
    const HRESULT known = object->GetIDsOfNames(IID_NULL, names, 1, 0, &number);
    if (known != S_OK) return known;
    DISPPARAMS none = {};
    return object->Invoke(number, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, answer.Receive(),
                          nullptr, nullptr);
  }

  Page page_{Framed()};
};

TEST_F(PageTest, TheInnermostElementLiesAtAPoint) {
  EXPECT_EQ(Text(ElementAt(20, 20).Get(), L"id"), L"under");
  EXPECT_EQ(Text(ElementAt(60, 20).Get(), L"Name"), L"over");
  EXPECT_EQ(Text(ElementAt(300, 280).Get(), L"tagName"), L"BODY");
  EXPECT_EQ(ElementAt(400, 280).Get(), nullptr);
  EXPECT_EQ(page_.References(), 0);
}

TEST_F(PageTest, FramesAreWindowsOfTheDocument) {
  ComPtr<IHTMLFramesCollection2> frames;
  ASSERT_EQ(page_.Top().get_frames(frames.GetAddressOf()), S_OK);
  LONG count = 0;
  EXPECT_EQ(frames->get_length(&count), S_OK);
  EXPECT_EQ(count, 1);

  VARIANT first = UniqueVariant(0).Get();
  UniqueVariant frame;
  ASSERT_EQ(frames->item(&first, frame.Receive()), S_OK);
  EXPECT_EQ(Text(frame.Get().pdispVal, L"name"), L"inner");
  ComPtr<IHTMLWindow2> window;
  ASSERT_EQ(frame.Get().pdispVal->QueryInterface(IID_PPV_ARGS(window.GetAddressOf())), S_OK);
  ComPtr<IHTMLDocument2> content;
  ASSERT_EQ(window->get_document(content.GetAddressOf()), S_OK);
  EXPECT_EQ(Text(content.Get(), L"url"), L"http://host/in");
  ComPtr<IHTMLWindow2> parent;
  ASSERT_EQ(window->get_parent(parent.GetAddressOf()), S_OK);
  ComPtr<IHTMLDocument2> outer;
  ASSERT_EQ(parent->get_document(outer.GetAddressOf()), S_OK);
  EXPECT_EQ(outer.Get(), &page_.Top());

  VARIANT second = UniqueVariant(1).Get();
  EXPECT_EQ(frames->item(&second, frame.Receive()), DISP_E_MEMBERNOTFOUND);
}

TEST_F(PageTest, AttributesAreNullTextOrNumber) {
  Element& input = page_.At("INPUT@over");
  UniqueVariant answer;
  wchar_t type[] = L"type";
  EXPECT_EQ(input.getAttribute(type, 0, answer.Receive()), S_OK);
  EXPECT_STREQ(answer.Get().bstrVal, L"text");
  wchar_t value[] = L"value";
  EXPECT_EQ(input.getAttribute(value, 0, answer.Receive()), S_OK);
  EXPECT_EQ(answer.Get().vt, VT_I4);
  EXPECT_EQ(page_.At("DIV#under").getAttribute(value, 0, answer.Receive()), S_OK);
  EXPECT_EQ(answer.Get().vt, VT_NULL);
}

TEST_F(PageTest, WhatAnElementDoesNotHaveItDoesNotKnow) {
  UniqueVariant answer;
  EXPECT_EQ(Read(ElementAt(20, 20).Get(), L"name", answer), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(Read(ElementAt(60, 20).Get(), L"VALUE", answer), S_OK);
  EXPECT_EQ(answer.Get().lVal, 0);
}

TEST_F(PageTest, RectanglesAreThoseOfThePage) {
  ComPtr<IHTMLRect> place;
  ASSERT_EQ(page_.At("IFRAME#box").getBoundingClientRect(place.GetAddressOf()), S_OK);
  LONG left = 0;
  EXPECT_EQ(place->get_left(&left), S_OK);
  EXPECT_EQ(left, 20);
  UniqueVariant bottom;
  EXPECT_EQ(Read(place.Get(), L"Bottom", bottom), S_OK);
  EXPECT_EQ(bottom.Get().lVal, 200);
  EXPECT_EQ(page_.References(), 1);
}

TEST_F(PageTest, CallsAreRecordedAndFailAsSet) {
  page_.watch.failures = {{".tagName", E_FAIL},
                          {"window inner.document", E_ACCESSDENIED},
                          {"document http://host/top.elementFromPoint 1,2", E_UNEXPECTED}};
  IHTMLElement* element = nullptr;
  EXPECT_EQ(page_.Top().elementFromPoint(1, 2, &element), E_UNEXPECTED);
  UniqueBstr text;
  EXPECT_EQ(page_.At("BODY").get_tagName(text.Receive()), E_FAIL);
  IHTMLDocument2* document = nullptr;
  EXPECT_EQ(page_.WindowNamed("inner").get_document(&document), E_ACCESSDENIED);
  EXPECT_THAT(page_.watch.calls, ElementsAre("document http://host/top.elementFromPoint 1,2",
                                             "BODY.tagName", "window inner.document"));
  EXPECT_EQ(page_.watch.callCount, 3U);
  EXPECT_THROW(page_.At("P#none"), std::out_of_range);
}

TEST_F(PageTest, UnusedMembersAreRefused) {
  EXPECT_EQ(page_.At("BODY").click(), E_NOTIMPL);
  BSTR text = nullptr;
  EXPECT_EQ(page_.Top().get_cookie(&text), E_NOTIMPL);
}

}  // namespace
}  // namespace html
