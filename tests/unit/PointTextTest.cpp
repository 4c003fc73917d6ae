#include "extract/PointText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace extract {
namespace {

using testing::ElementsAre;

class FakeSources : public PointSources {
 public:
  std::wstring ClassName() override { return className; }
  std::optional<ElementTexts> Element() override {
    asked.push_back("element");
    return element;
  }
  bool Answers() override { return answers; }
  std::wstring AccessibleValue() override {
    asked.push_back("value");
    return value;
  }
  std::wstring AccessibleName() override {
    asked.push_back("name");
    return name;
  }
  TextReading WindowText() override {
    asked.push_back("text");
    if (text.empty()) return {};
    return {text, L"WM_GETTEXT", whole};
  }

  std::wstring className = L"Button";
  std::optional<ElementTexts> element;
  bool answers = true;
  std::wstring value;
  std::wstring name;
  std::wstring text;
  std::size_t whole = 0;
  std::vector<std::string> asked;
};

class PointTextTest : public testing::Test {
 protected:
  std::wstring Read(bool firstLineOnly = false) {
    TextReading reading = TextAtPoint(sources_, L"edit,DirectUIHWND", firstLineOnly);
    method_ = std::move(reading.method);
    return std::move(reading.text);
  }

  FakeSources sources_;
  std::wstring method_ = L"(before)";
};

TEST_F(PointTextTest, TakesTheElementsValueFirst) {
  sources_.className = L"internet EXPLORER_server";
  sources_.element = ElementTexts{L"値", L"INPUT", L"中"};
  EXPECT_EQ(Read(), L"値");
  EXPECT_EQ(method_, L"Value");
  EXPECT_THAT(sources_.asked, ElementsAre("element"));
}

TEST_F(PointTextTest, AnElementWithoutAValueGivesItsInnerText) {
  sources_.className = L"Internet Explorer_Server";
  sources_.element = ElementTexts{L"", L"P", L"中"};
  EXPECT_EQ(Read(), L"中");
  EXPECT_EQ(method_, L"InnerText");
}

TEST_F(PointTextTest, AListItemsValueOfZeroIsNone) {
  sources_.className = L"Internet Explorer_Server";
  sources_.element = ElementTexts{L"0", L"li", L"項目"};
  EXPECT_EQ(Read(), L"項目");
  EXPECT_EQ(method_, L"InnerText");

  sources_.element = ElementTexts{L"0", L"INPUT", L"項目"};
  EXPECT_EQ(Read(), L"0");
  EXPECT_EQ(method_, L"Value");

  sources_.element = ElementTexts{L"00", L"LI", L"項目"};
  EXPECT_EQ(Read(), L"00");
}

TEST_F(PointTextTest, WithAnEmptyElementTheOtherSourcesAreUsed) {
  sources_.className = L"Internet Explorer_Server";
  sources_.element = ElementTexts{};
  sources_.name = L"名前";
  EXPECT_EQ(Read(), L"名前");
  EXPECT_EQ(method_, L"Accessible");

  sources_.element.reset();
  EXPECT_EQ(Read(), L"名前");
  sources_.name.clear();
  EXPECT_EQ(Read(), L"");
  EXPECT_EQ(method_, L"");
}

TEST_F(PointTextTest, OfAHungDocumentsWindowNothingElseIsRead) {
  sources_.className = L"Internet Explorer_Server";
  sources_.answers = false;
  sources_.name = L"名前";
  EXPECT_EQ(Read(), L"");
  EXPECT_EQ(method_, L"");
  EXPECT_THAT(sources_.asked, ElementsAre("element"));
}

TEST_F(PointTextTest, OnlyTheDocumentsWindowHasAnElement) {
  sources_.className = L"Internet Explorer_ServerX";
  sources_.element = ElementTexts{L"値", L"INPUT", L""};
  sources_.text = L"text";
  EXPECT_EQ(Read(), L"text");
  EXPECT_THAT(sources_.asked, ElementsAre("name", "text"));
}

TEST_F(PointTextTest, ListedClassesGiveTheirValue) {
  sources_.className = L"Edit";
  sources_.value = L"値";
  sources_.name = L"名前";
  EXPECT_EQ(Read(), L"値");
  EXPECT_EQ(method_, L"Accessible");
  EXPECT_THAT(sources_.asked, ElementsAre("value"));
}

TEST_F(PointTextTest, ListedClassesWithoutAValueGiveTheirName) {
  sources_.className = L"Edit";
  sources_.name = L"名前";
  EXPECT_EQ(Read(), L"名前");
  EXPECT_THAT(sources_.asked, ElementsAre("value", "name"));
}

TEST_F(PointTextTest, OtherClassesGiveTheirNameOnly) {
  sources_.className = L"RichEdit20W";
  sources_.value = L"値";
  sources_.name = L"名前";
  EXPECT_EQ(Read(), L"名前");
  EXPECT_THAT(sources_.asked, ElementsAre("name"));
}

TEST_F(PointTextTest, FirstLineOnlyCutsAnAccessibleText) {
  sources_.name = L"一行目\r\n二行目";
  EXPECT_EQ(Read(true), L"一行目");
  EXPECT_EQ(Read(false), L"一行目\r\n二行目");
  sources_.name = L"一行だけ\n";
  EXPECT_EQ(Read(true), L"一行だけ\n");
}

TEST_F(PointTextTest, TheWindowTextIsTheLastResort) {
  sources_.text = L"文字\r\n列";
  EXPECT_EQ(Read(true), L"文字\r\n列");
  EXPECT_EQ(method_, L"WM_GETTEXT");
}

TEST_F(PointTextTest, WithoutADocumentTheWindowTextIsTheLastResortToo) {
  sources_.className = L"Internet Explorer_Server";
  sources_.text = L"文字";
  EXPECT_EQ(Read(), L"文字");
  EXPECT_EQ(method_, L"WM_GETTEXT");
  EXPECT_THAT(sources_.asked, ElementsAre("element", "name", "text"));
}

TEST_F(PointTextTest, NothingLeavesAnEmptyMethod) {
  EXPECT_EQ(Read(), L"");
  EXPECT_EQ(method_, L"");
}

TEST(WantsAccessibleValueTest, LooksForTheClassInTheListAsText) {
  constexpr std::wstring_view kList = L"edit,DirectUIHWND";
  EXPECT_TRUE(WantsAccessibleValue(L"Edit", kList));
  EXPECT_TRUE(WantsAccessibleValue(L"DIRECTUIHWND", kList));
  EXPECT_FALSE(WantsAccessibleValue(L"RichEdit20W", kList));
  EXPECT_TRUE(WantsAccessibleValue(L"d", kList));
  EXPECT_TRUE(WantsAccessibleValue(L"t,D", kList));
  EXPECT_TRUE(WantsAccessibleValue(L"", kList));
  EXPECT_FALSE(WantsAccessibleValue(L"", L""));
  EXPECT_FALSE(WantsAccessibleValue(L"Edit", L""));
}

}  // namespace
}  // namespace extract
