// The fixture answers from another process as browsers do.
#include <windows.h>

#include <gtest/gtest.h>
#include <mshtml.h>
#include <oleacc.h>
#include <wrl/client.h>

#include <string>

#include "BrowserProcess.h"
#include "driver/WaitFor.h"
#include "platform/ComOwners.h"

namespace html {
namespace {

using Microsoft::WRL::ComPtr;
using platform::UniqueBstr;
using platform::UniqueVariant;

class FixtureTest : public testing::Test {
 protected:
  FixtureTest() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~FixtureTest() override { CoUninitialize(); }

  static LRESULT Ask(const BrowserProcess& browser, UINT milliseconds = 5000) {
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(browser.Window(), RegisterWindowMessageW(L"WM_HTML_GETOBJECT"), 0, 0,
                        SMTO_ABORTIFHUNG, milliseconds, &answer);
    return static_cast<LRESULT>(answer);
  }

  static ComPtr<IHTMLDocument2> Document(LRESULT answer, REFIID id) {
    ComPtr<IUnknown> object;
    void* received = nullptr;
    if (ObjectFromLresult(answer, id, 0, &received) != S_OK) return nullptr;
    *object.GetAddressOf() = static_cast<IUnknown*>(received);
    ComPtr<IHTMLDocument2> document;
    object->QueryInterface(IID_PPV_ARGS(document.GetAddressOf()));
    return document;
  }

  static std::wstring TagAt(IHTMLDocument2* document, LONG x, LONG y) {
    ComPtr<IHTMLElement> element;
    if (document->elementFromPoint(x, y, element.GetAddressOf()) != S_OK) return L"failed";
    if (element == nullptr) return L"none";
    UniqueBstr tag;
    element->get_tagName(tag.Receive());
    return tag.Text();
  }

  static testing::AssertionResult Forgets(const BrowserProcess& browser) {
    return gui::WaitFor("the page's objects are released", [&](std::string& seen) {
      seen = std::to_string(browser.References());
      return seen == "0";
    });
  }
};

TEST_F(FixtureTest, AnyIdentifierGivesTheDocument) {
  const BrowserProcess browser("place=40,40,400,300 fruit");
  for (const IID& id : {IID_IHTMLDocument2, IID_NULL}) {
    const ComPtr<IHTMLDocument2> document = Document(Ask(browser), id);
    ASSERT_NE(document, nullptr);
    EXPECT_EQ(TagAt(document.Get(), 30, 65), L"LI");
    EXPECT_EQ(TagAt(document.Get(), 350, 280), L"BODY");
    EXPECT_EQ(TagAt(document.Get(), 450, 280), L"none");
  }
  EXPECT_TRUE(Forgets(browser));
  EXPECT_EQ(browser.Requests(), 2);
  EXPECT_EQ(browser.Calls(), 10);
}

TEST_F(FixtureTest, FramesAndRectanglesCross) {
  const BrowserProcess browser("place=40,40,400,300 scrolled");
  const ComPtr<IHTMLDocument2> document = Document(Ask(browser), IID_IHTMLDocument2);
  ASSERT_NE(document, nullptr);
  ComPtr<IHTMLFramesCollection2> frames;
  ASSERT_EQ(document->get_frames(frames.GetAddressOf()), S_OK);
  VARIANT index = UniqueVariant(0).Get();
  UniqueVariant frame;
  ASSERT_EQ(frames->item(&index, frame.Receive()), S_OK);
  ComPtr<IHTMLWindow2> window;
  ASSERT_EQ(frame.Get().pdispVal->QueryInterface(IID_PPV_ARGS(window.GetAddressOf())), S_OK);
  UniqueBstr name;
  EXPECT_EQ(window->get_name(name.Receive()), S_OK);
  EXPECT_EQ(name.Text(), L"first");

  ComPtr<IHTMLElement> element;
  ASSERT_EQ(document->elementFromPoint(5, 5, element.GetAddressOf()), S_OK);
  ComPtr<IHTMLElement2> placed;
  ASSERT_EQ(element.As(&placed), S_OK);
  ComPtr<IHTMLRect> place;
  ASSERT_EQ(placed->getBoundingClientRect(place.GetAddressOf()), S_OK);
  LONG left = 0;
  EXPECT_EQ(place->get_left(&left), S_OK);
  EXPECT_EQ(left, -30);
}

TEST_F(FixtureTest, ABareDocumentIsNothingElse) {
  const BrowserProcess browser("place=40,40,400,300 bare");
  EXPECT_EQ(Document(Ask(browser), IID_IDispatch), nullptr);
  const ComPtr<IHTMLDocument2> document = Document(Ask(browser), IID_IHTMLDocument2);
  ASSERT_NE(document, nullptr);
  EXPECT_EQ(TagAt(document.Get(), 30, 65), L"LI");
}

TEST_F(FixtureTest, AnswersMayBeNoObjects) {
  const BrowserProcess zero("place=40,40,400,300 zero");
  EXPECT_EQ(Ask(zero), 0);
  const BrowserProcess junk("place=40,40,400,300 junk");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Document(Ask(junk), IID_IHTMLDocument2), nullptr);
  const BrowserProcess second("place=40,40,400,300 second");
  EXPECT_EQ(Document(Ask(second), IID_NULL), nullptr);
  EXPECT_NE(Document(Ask(second), IID_IHTMLDocument2), nullptr);
}

TEST_F(FixtureTest, AHungOrSilentProgramDoesNotAnswer) {
  const BrowserProcess hung("place=40,40,400,300 hung");
  EXPECT_EQ(Ask(hung, 300), 0);
  EXPECT_EQ(hung.Requests(), -1);
  const BrowserProcess silent("place=40,40,400,300 silent");
  EXPECT_EQ(Ask(silent, 300), 0);
  EXPECT_EQ(silent.Requests(), 1);
}

TEST_F(FixtureTest, TheProgramMayDieInACall) {
  const BrowserProcess browser("place=40,40,400,300 dies=tagName");
  const ComPtr<IHTMLDocument2> document = Document(Ask(browser), IID_IHTMLDocument2);
  ASSERT_NE(document, nullptr);
  EXPECT_EQ(TagAt(document.Get(), 30, 65), L"");
  EXPECT_TRUE(
      gui::WaitFor("the fixture is gone", [&](std::string&) { return !browser.IsRunning(); }));
}

}  // namespace
}  // namespace html
