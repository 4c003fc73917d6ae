#include "browser/MyInternetexplore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "../browser/Page.h"
#include "FakeBrowser.h"
#include "MessageBoxes.h"
#include "browser/ElementReaders.h"

namespace MyInternetexplore {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

constexpr char kNull[] = "object 4711 {00000000-0000-0000-0000-000000000000} 0";
constexpr char kByName[] = "object 4711 {332C4425-26CB-11D0-B483-00C04FD90119} 0";
constexpr char kSend[] = "send 7 page 0 0 2 2000";
constexpr char kRegister[] = "register WM_HTML_GETOBJECT";

const HWND kWindow = reinterpret_cast<HWND>(7);

html::DocumentData OneParagraph() {
  return {.url = L"http://host/",
          .root = {.tag = L"HTML",
                   .place = {0, 0, 100, 100},
                   .children = {{.tag = L"P", .id = L"text", .place = {10, 10, 20, 20}}}}};
}

// Has no interface of a document.
class NoDocument : public IUnknown {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = id == IID_IUnknown ? this : nullptr;
    if (*object == nullptr) return E_NOINTERFACE;
    ++references;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() override { return --references; }

  ULONG references = 0;
};

class MyInternetexploreTest : public testing::Test {
 protected:
  MyInternetexploreTest() { fake_.served = &page_.Top(); }
  ~MyInternetexploreTest() override { EXPECT_EQ(page_.References(), 0); }

  DocumentPtr Document() { return GetIeObjFromhWnd(kWindow, fake_.access); }
  ElementPtr ByPos(int x, int y) {
    return GetElByPos(x, y, fake_.access,
                      [this](const std::wstring& text) { said_.push_back(text); });
  }

  html::Page page_{OneParagraph()};
  FakeBrowser fake_;
  MessageBoxes boxes_;
  std::vector<std::wstring> said_;
};

TEST_F(MyInternetexploreTest, TheDocumentIsRequestedUnderTheAllZeroIdentifier) {
  EXPECT_EQ(Document().Get(), &page_.Top());
  EXPECT_THAT(fake_.calls, ElementsAre(kRegister, kSend, kNull));
}

TEST_F(MyInternetexploreTest, WhenThatIsRefusedTheDocumentsInterfaceIsRequested) {
  fake_.refusesNull = true;
  EXPECT_EQ(Document().Get(), &page_.Top());
  EXPECT_THAT(fake_.calls, ElementsAre(kRegister, kSend, kNull, kSend, kByName));
}

TEST_F(MyInternetexploreTest, AnAnswerOfNothingIsNoDocument) {
  fake_.answer = 0;
  EXPECT_EQ(Document(), nullptr);
  EXPECT_THAT(fake_.calls, ElementsAre(kRegister, kSend));
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(MyInternetexploreTest, AnAnswerThatIsNoObjectIsNoDocument) {
  fake_.served = nullptr;
  EXPECT_EQ(Document(), nullptr);
  EXPECT_THAT(fake_.calls, ElementsAre(kRegister, kSend, kNull, kSend, kByName));
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(MyInternetexploreTest, AnObjectOfAnotherKindIsNoDocument) {
  NoDocument other;
  fake_.served = &other;
  EXPECT_EQ(Document(), nullptr);
  EXPECT_EQ(other.references, 0U);
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(MyInternetexploreTest, AHungWindowIsAskedOnce) {
  fake_.sendError = ERROR_TIMEOUT;
  EXPECT_EQ(Document(), nullptr);
  EXPECT_EQ(Document(), nullptr);
  EXPECT_THAT(fake_.calls, Contains(kSend).Times(1));
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(MyInternetexploreTest, AMessageThatCannotBeRegisteredIsReported) {
  fake_.message = 0;
  EXPECT_EQ(Document(), nullptr);
  EXPECT_THAT(fake_.calls, ElementsAre(kRegister));
  // ERROR_NOT_ENOUGH_MEMORY as a COM error.
  ASSERT_EQ(boxes_.shown.size(), 1U);
  EXPECT_EQ(boxes_.shown[0], L"Generate|-2147024888 " +
                                 platform::SystemDescription(static_cast<long>(0x80070008)) +
                                 L"\r\nError Line = 0");
}

TEST_F(MyInternetexploreTest, OtherFailuresAreReportedToo) {
  fake_.onSend = [] { throw std::bad_alloc(); };
  EXPECT_EQ(Document(), nullptr);
  ASSERT_EQ(boxes_.shown.size(), 1U);
  EXPECT_THAT(boxes_.shown[0], StartsWith(L"Generate|8 "));
}

TEST_F(MyInternetexploreTest, TheElementIsThatOfTheWindowAtThePoint) {
  fake_.windowPlace = {100, 200, 300, 400};
  fake_.pointer = {115, 215};
  EXPECT_EQ(GetElIdOrName(ByPos(112, 213).Get()), L"text");
  EXPECT_THAT(fake_.calls,
              ElementsAre("window at 112,213", "place of 7", kRegister, kSend, kNull, "pointer"));
  // Without frames, one call for each of the two points.
  EXPECT_THAT(
      page_.watch.calls,
      ElementsAre("document http://host/.elementFromPoint 12,13", "P#text.tagName",
                  "document http://host/.elementFromPoint 15,15", "P#text.tagName", "P#text.id"));
  EXPECT_THAT(said_, IsEmpty());
}

TEST_F(MyInternetexploreTest, AWindowWithoutADocumentIsReported) {
  fake_.answer = 0;
  EXPECT_EQ(ByPos(1, 2), nullptr);
  EXPECT_THAT(said_, ElementsAre(L"GetElByPos:Generate Html-DOC failed"));
}

TEST_F(MyInternetexploreTest, NoErrorIsAddedToThatText) {
  fake_.message = 0;
  EXPECT_EQ(ByPos(1, 2), nullptr);
  EXPECT_THAT(said_, ElementsAre(L"GetElByPos:Generate Html-DOC failed"));
  EXPECT_EQ(boxes_.shown.size(), 1U);
}

TEST_F(MyInternetexploreTest, APageWithoutAnElementThereIsNotReported) {
  fake_.pointer = {500, 500};
  EXPECT_EQ(ByPos(500, 500), nullptr);
  EXPECT_THAT(said_, IsEmpty());
}

TEST_F(MyInternetexploreTest, WithoutAnInnermostDocumentTheElementIsNotLookedFor) {
  page_.watch.failures["document http://host/.elementFromPoint 12,13"] = E_FAIL;
  fake_.pointer = {15, 15};
  EXPECT_EQ(ByPos(12, 13), nullptr);
  EXPECT_EQ(page_.watch.callCount, 1U);
  EXPECT_THAT(boxes_.shown, IsEmpty());
}

}  // namespace
}  // namespace MyInternetexplore
