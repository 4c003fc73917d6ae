#include "capture/ReportComposer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeCapture.h"

namespace capture {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

// Gives texts that tell where they come from and notes what it was asked.
class FakeReaders : public ReportReaders {
 public:
  explicit FakeReaders(std::vector<std::string>& trace) : trace_(trace) {}

  WindowFacts Facts(HWND hwnd) override {
    Note("facts");
    return {hwnd, className, title, {1, 2, 3, 4}};
  }
  WindowInformation Information(const WindowFacts& window) override {
    Note("information");
    return {window, {}, {}, {}};
  }
  std::wstring TextFromPoint(POINT point, std::wstring& method,
                             const std::function<void(const std::wstring&)>& showMessage) override {
    Note("point");
    askedPoint = point;
    if (!message.empty()) showMessage(message);
    method = L"Accessible";
    return pointText;
  }
  std::wstring NameOfWindow(HWND) override {
    Note("name of window");
    return L"窓の名";
  }
  std::wstring MyGetEditItem(const CategoryRead& read) override { return Read("edit", read); }
  std::wstring MyGetListBoxItem(const CategoryRead& read) override { return Read("list", read); }
  std::wstring MyGetComboBoxItem(const CategoryRead& read) override { return Read("combo", read); }
  std::wstring AccessibleChildren(const CategoryRead& read) override {
    return Read("children", read);
  }
  std::wstring GetListViewItem(const CategoryRead& read) override {
    return Read("list view", read);
  }
  std::wstring AccessibleTree(const CategoryRead& read) override { return Read("tree", read); }
  std::wstring GetToolbarItem(const CategoryRead& read) override { return Read("toolbar", read); }
  std::wstring GetTabControlItem(const CategoryRead& read) override { return Read("tabs", read); }
  std::wstring GetTooltipText(const CategoryRead& read) override { return Read("tool tip", read); }
  std::wstring GetOther(const CategoryRead& read) override { return Read("other", read); }
  std::wstring GetChildText(const CategoryRead& read) override { return Read("dialog", read); }
  std::unique_ptr<MyInternetexplore::PageReader> Page(HWND window, POINT point) override {
    Note("page");
    documentWindow = window;
    askedPoint = point;
    return hasPage ? std::make_unique<FakePage>(*this) : nullptr;
  }
  bool Answers(HWND hwnd) override {
    EXPECT_EQ(hwnd, WindowNumber(77));
    return answers;
  }
  AccessibleTexts Accessible(HWND hwnd, POINT point,
                             const platform::ReadSession& session) override {
    Note("accessible");
    accessibleAt = point;
    session.showProgress(L"9");
    if (onAccessible) onAccessible(session);
    accessibleOf = hwnd;
    return {L"MSAA", L"名"};
  }
  std::wstring StatusText(HWND target, std::wstring_view ofClass,
                          std::wstring_view ofTitle) override {
    Note("status");
    statusOf = target;
    EXPECT_EQ(ofClass, className);
    EXPECT_EQ(ofTitle, title);
    return L"状態";
  }

  std::wstring className = L"Button";
  std::wstring title = L"題";
  std::wstring pointText = L"a\nb\r\nc";
  std::wstring message;  // said while the text at the point is read
  bool hasPage = false;
  bool answers = true;
  HWND documentWindow = nullptr;
  MyInternetexplore::PageFacts pageFacts{
      L"http://host/",
      L"外/内",
      {{L"HTML", {}, {}, {}, L"全て"}, {L"P", {}, L"id", {}, L"長い段落"}}};
  std::function<void(const platform::ReadSession&)> onFacts;
  std::function<void(const CategoryRead&)> onRead;
  std::function<void(const platform::ReadSession&)> onAccessible;
  std::string failing;  // the reader that throws
  POINT askedPoint{};
  POINT listAt{};
  POINT accessibleAt{};
  HWND listOf = WindowNumber(77);
  HWND accessibleOf = WindowNumber(-1);
  HWND statusOf = nullptr;

 private:
  class FakePage : public MyInternetexplore::PageReader {
   public:
    explicit FakePage(FakeReaders& readers) : readers_(readers) {}
    MyInternetexplore::PageTexts Texts() override {
      readers_.Note("page texts");
      return {L"表示", L"<b>"};
    }
    MyInternetexplore::PageFacts Facts(const platform::ReadSession& session) override {
      if (readers_.onFacts) readers_.onFacts(session);
      readers_.Note("page facts");
      return readers_.pageFacts;
    }

   private:
    FakeReaders& readers_;
  };

  void Note(const std::string& what) {
    trace_.push_back(what);
    if (what == failing) throw std::runtime_error("the reader fails");
  }
  std::wstring Read(const std::string& what, const CategoryRead& read) {
    EXPECT_EQ(read.hwnd, listOf);
    listAt = read.point;
    if (onRead) onRead(read);
    Note(what);
    return L"一覧";
  }

  std::vector<std::string>& trace_;
};

class ReportComposerTest : public testing::Test {
 protected:
  ReportComposerTest() {
    fake_.state.TargetWindow = WindowNumber(77);
    fake_.state.CapturePoint = {300, 400};
    fake_.state.CaptureRunning = true;
  }
  void Compose() { ComposeReport(fake_.Context(), readers_); }
  std::wstring Text(ViewText part) { return fake_.view.texts[part]; }

  FakeCapture fake_;
  FakeReaders readers_{fake_.trace};
};

TEST_F(ReportComposerTest, FillsTheBoxes) {
  Compose();
  EXPECT_EQ(fake_.view.handleTag, L"77");
  EXPECT_EQ(Text(ViewText::txthWnd), L"77");
  EXPECT_EQ(Text(ViewText::txtWin0), L"Button");
  EXPECT_EQ(Text(ViewText::txtWin1), L"");
  EXPECT_EQ(Text(ViewText::txtWin2), L"名");
  EXPECT_EQ(Text(ViewText::txtWin3), L"a\nb\r\nc");
  EXPECT_EQ(Text(ViewText::lblTextKind), L"Accessible");
  EXPECT_EQ(Text(ViewText::txtStatus), L"状態");
}

TEST_F(ReportComposerTest, HexChangesTheBoxNotItsTag) {
  fake_.settings.winHandle = L"hex";
  Compose();
  EXPECT_EQ(fake_.view.handleTag, L"77");
  EXPECT_EQ(Text(ViewText::txthWnd), L"4D");
}

TEST_F(ReportComposerTest, FillsTheSlots) {
  fake_.state.TopTexts = {L"x", L"x", L"x"};
  fake_.state.BottomTexts = {L"x", L"x", L"x", L"x"};
  Compose();
  EXPECT_EQ(fake_.state.TopTexts[1], L"MSAA");
  EXPECT_EQ(fake_.state.TopTexts[2], L"a\r\nb\r\nc");
  EXPECT_EQ(fake_.state.BottomTexts[0], L"");
  EXPECT_TRUE(fake_.state.BottomTexts[1].starts_with(L"ウィンドウ情報\r\n"));
  EXPECT_EQ(fake_.state.BottomTexts[2], L"一覧");
  EXPECT_EQ(fake_.state.BottomTexts[3], L"");
}

TEST_F(ReportComposerTest, ShowsWhatDetailChooses) {
  Compose();
  EXPECT_EQ(Text(ViewText::TopPane), L"a\r\nb\r\nc");
  EXPECT_EQ(Text(ViewText::BottomPane), L"一覧");
  fake_.settings.detail = 1;
  Compose();
  EXPECT_EQ(Text(ViewText::TopPane), L"MSAA");
  EXPECT_TRUE(Text(ViewText::BottomPane).starts_with(L"ウィンドウ情報"));
}

TEST_F(ReportComposerTest, ReadsInThisOrder) {
  Compose();
  std::vector<std::string> reads;
  for (const std::string& call : fake_.trace) {
    if (call != "text" && call != "show part") reads.push_back(call);
  }
  EXPECT_THAT(
      reads, ElementsAre("facts", "point", "other", "pump", "information", "accessible", "status"));
}

TEST_F(ReportComposerTest, ShowsTheListBeforeItReadsOn) {
  std::wstring bottomInPump;
  std::wstring detailInPump = L"?";
  fake_.system.onPump = [&] {
    bottomInPump = Text(ViewText::BottomPane);
    detailInPump = fake_.state.BottomTexts[1];
  };
  Compose();
  EXPECT_EQ(bottomInPump, L"一覧");
  EXPECT_EQ(detailInPump, L"");
}

TEST_F(ReportComposerTest, StaysWithTheWindowItBeganWith) {
  fake_.system.onPump = [this] {
    fake_.state.TargetWindow = WindowNumber(88);
    fake_.state.CapturePoint = {1, 1};
  };
  Compose();
  EXPECT_EQ(readers_.statusOf, WindowNumber(77));
  EXPECT_NE(fake_.state.BottomTexts[1].find(L"：77(x4D)"), std::wstring::npos);
}

TEST_F(ReportComposerTest, ReadersSeeTheTargetMove) {
  readers_.onRead = [this](const CategoryRead& read) {
    EXPECT_EQ(read.session.target, WindowNumber(77));
    fake_.system.onPump = [this] { fake_.state.TargetWindow = WindowNumber(88); };
    read.session.yield();
    EXPECT_EQ(read.session.target, WindowNumber(88));
    EXPECT_TRUE(read.session.stillRunning());
    fake_.state.CaptureRunning = false;
    EXPECT_FALSE(read.session.stillRunning());
    read.session.showProgress(L"3/7");
    EXPECT_EQ(Text(ViewText::txtCount), L"3/7");
  };
  Compose();
  // The last progress stays: it is the number of items.
  EXPECT_EQ(Text(ViewText::txtCount), L"3/7");
}

TEST_F(ReportComposerTest, TheAccessibleReportKnowsThatTheTargetMovedBeforeIt) {
  fake_.system.onPump = [this] { fake_.state.TargetWindow = WindowNumber(88); };
  bool asked = false;
  readers_.onAccessible = [&](const platform::ReadSession& session) {
    asked = true;
    EXPECT_EQ(session.target, WindowNumber(88));
    EXPECT_EQ(session.window, WindowNumber(77));
  };
  Compose();
  EXPECT_TRUE(asked);
}

TEST_F(ReportComposerTest, TheAccessibleReportShowsItsProgressAndGivesTheCountBack) {
  readers_.onRead = [](const CategoryRead& read) { read.session.showProgress(L"3/7"); };
  readers_.onAccessible = [this](const platform::ReadSession&) {
    EXPECT_EQ(Text(ViewText::txtCount), L"9");
  };
  Compose();
  EXPECT_EQ(Text(ViewText::txtCount), L"3/7");
}

TEST_F(ReportComposerTest, TheStopKeyStopsBetweenTwoItems) {
  readers_.onRead = [this](const CategoryRead& read) {
    read.session.yield();
    EXPECT_TRUE(read.session.stillRunning());
    fake_.system.pressed.insert(VK_ESCAPE);
    read.session.yield();
    EXPECT_FALSE(read.session.stillRunning());
  };
  Compose();
  EXPECT_FALSE(fake_.state.CaptureRunning);
  EXPECT_EQ(fake_.system.clipboard, L"(before)");
}

TEST_F(ReportComposerTest, OrCopiesBetweenTwoItemsAndGoesOn) {
  fake_.settings.continueCapture = 1;
  fake_.view.texts[ViewText::TopPane] = L"上の文字";
  readers_.onRead = [this](const CategoryRead& read) {
    fake_.system.pressed.insert(VK_ESCAPE);
    read.session.yield();
    EXPECT_EQ(fake_.system.clipboard, L"上の文字");
    EXPECT_EQ(Text(ViewText::lblMsg), L"上段 クリップボード転送完了");
  };
  Compose();
  EXPECT_TRUE(fake_.state.CaptureRunning);
}

TEST_F(ReportComposerTest, TakesTheTextFromTheHandleWhenAsked) {
  fake_.settings.fromHwnd = 1;
  Compose();
  EXPECT_EQ(fake_.state.TopTexts[2], L"窓の名");
  EXPECT_EQ(readers_.accessibleOf, WindowNumber(77));
  EXPECT_THAT(fake_.trace, Not(Contains("point")));
  EXPECT_EQ(Text(ViewText::lblTextKind), L"");
}

TEST_F(ReportComposerTest, AHugeTextGivesItsMemoryBack) {
  readers_.pointText.assign(1'000'000, L'a');
  Compose();
  EXPECT_EQ(fake_.state.TopTexts[2].size(), 1'000'000U);
  readers_.pointText = L"b";
  Compose();
  EXPECT_EQ(fake_.state.TopTexts[2], L"b");
  EXPECT_LT(fake_.state.TopTexts[2].capacity(), 1000U);
}

TEST_F(ReportComposerTest, WithoutAWindowTheObjectIsThatAtThePoint) {
  fake_.settings.fromHwnd = 1;
  fake_.state.TargetWindow = nullptr;
  readers_.listOf = nullptr;
  Compose();
  EXPECT_EQ(readers_.accessibleOf, nullptr);
}

TEST_F(ReportComposerTest, ElseFromThePoint) {
  Compose();
  for (const POINT& asked : {readers_.askedPoint, readers_.listAt, readers_.accessibleAt}) {
    EXPECT_EQ(asked.x, 300);
    EXPECT_EQ(asked.y, 400);
  }
  EXPECT_EQ(readers_.accessibleOf, nullptr);
}

TEST_F(ReportComposerTest, WithTheTipAsHintTheStatusTextIsLeftAlone) {
  fake_.settings.hint = 1;
  fake_.view.texts[ViewText::txtStatus] = L"前";
  Compose();
  EXPECT_EQ(Text(ViewText::txtStatus), L"前");
  EXPECT_THAT(fake_.trace, Not(Contains("status")));
}

TEST_F(ReportComposerTest, TheStatusTextIsEmptiedFirst) {
  fake_.view.texts[ViewText::txtStatus] = L"前";
  readers_.failing = "status";
  Compose();
  EXPECT_EQ(Text(ViewText::txtStatus), L"");
}

TEST_F(ReportComposerTest, WhatTheReaderSaysIsShown) {
  readers_.message = L"GetElByPos:Generate Html-DOC failed";
  Compose();
  EXPECT_EQ(Text(ViewText::lblMsg), L"GetElByPos:Generate Html-DOC failed");
}

struct ReaderCase {
  const wchar_t* className;
  const char* reader;
};

class CategoryReaderTest : public ReportComposerTest,
                           public testing::WithParamInterface<ReaderCase> {};

TEST_P(CategoryReaderTest, IsTheOneOfTheCategory) {
  readers_.className = GetParam().className;
  Compose();
  EXPECT_THAT(fake_.trace, Contains(GetParam().reader).Times(1));
  EXPECT_EQ(fake_.state.BottomTexts[2], L"一覧");
}

INSTANTIATE_TEST_SUITE_P(
    Classes, CategoryReaderTest,
    testing::Values(ReaderCase{L"Edit", "edit"}, ReaderCase{L"ListBox", "list"},
                    ReaderCase{L"ComboBox", "combo"}, ReaderCase{L"ComboLBox", "children"},
                    ReaderCase{L"SysListView32", "list view"}, ReaderCase{L"SysTreeView32", "tree"},
                    ReaderCase{L"ToolbarWindow32", "toolbar"},
                    ReaderCase{L"SysTabControl32", "tabs"},
                    ReaderCase{L"tooltips_class32", "tool tip"}, ReaderCase{L"Static", "other"},
                    ReaderCase{L"#32770", "dialog"}));

TEST_F(ReportComposerTest, TheFrameOfABrowserHasNoList) {
  readers_.className = L"IEFrame";
  Compose();
  EXPECT_EQ(fake_.state.BottomTexts[2], L"");
  EXPECT_TRUE(fake_.state.BottomTexts[1].starts_with(L"ウィンドウ情報"));
}

constexpr wchar_t kElementReport[] =
    L"URL     http://host/\r\n"
    L"\r\n"
    L"Tag     Type        Id          value       表示文字\r\n"
    L"------------------------------------------\r\n"
    L"HTML                                        全て\r\n"
    L"P                   id                      長...\r\n";

class PageReportTest : public ReportComposerTest {
 protected:
  PageReportTest() {
    readers_.className = L"Internet Explorer_Server";
    readers_.hasPage = true;
    fake_.settings.htmlTagTextLength = 1;
  }
  std::vector<std::string> Reads() const {
    std::vector<std::string> reads;
    for (const std::string& call : fake_.trace) {
      if (call != "text" && !call.ends_with(" part")) reads.push_back(call);
    }
    return reads;
  }
};

TEST_F(PageReportTest, FillsTheSlotsAndTheBoxes) {
  Compose();
  EXPECT_EQ(fake_.state.BottomTexts[0], L"1");
  EXPECT_EQ(fake_.state.BottomTexts[1], kElementReport);
  EXPECT_EQ(fake_.state.BottomTexts[2], L"<b>");
  EXPECT_EQ(fake_.state.BottomTexts[3], L"表示");
  EXPECT_EQ(fake_.state.TopTexts[1], L"MSAA");
  EXPECT_EQ(Text(ViewText::txtWin1), L"外/内　P");
  EXPECT_EQ(Text(ViewText::txtWin2), L"名");
  EXPECT_EQ(Text(ViewText::lblTextKind), L"HTML");
  EXPECT_EQ(Text(ViewText::txtStatus), L"状態");
  EXPECT_FALSE(fake_.view.shown[ViewText::txtCount]);
}

TEST_F(PageReportTest, OutsideOfFramesThePathIsEmpty) {
  readers_.pageFacts.framePath.clear();
  Compose();
  EXPECT_EQ(Text(ViewText::txtWin1), L"　P");
}

TEST_F(PageReportTest, ReadsInThisOrder) {
  Compose();
  EXPECT_THAT(Reads(), ElementsAre("facts", "point", "page", "page texts", "pump", "page facts",
                                   "accessible", "status"));
}

TEST_F(PageReportTest, TheTextsAreThereBeforeTheElements) {
  fake_.system.onPump = [this] {
    EXPECT_EQ(fake_.state.BottomTexts[2], L"<b>");
    EXPECT_EQ(fake_.state.BottomTexts[3], L"表示");
  };
  Compose();
}

TEST_F(PageReportTest, TheBottomPaneIsRefreshedBeforeTheAccessibleReport) {
  readers_.failing = "accessible";
  Compose();
  EXPECT_EQ(Text(ViewText::BottomPane), L"<b>");
}

TEST_F(PageReportTest, TheSettingsChooseWhatThePanesShow) {
  Compose();
  EXPECT_EQ(Text(ViewText::BottomPane), L"<b>");
  fake_.settings.dispText = 1;
  Compose();
  EXPECT_EQ(Text(ViewText::BottomPane), L"表示");
  fake_.settings.detail = 1;
  Compose();
  EXPECT_EQ(Text(ViewText::TopPane), L"MSAA");
  EXPECT_EQ(Text(ViewText::BottomPane), kElementReport);
}

TEST_F(PageReportTest, TheElementsAreReadUnderASessionThatLeavesTheCount) {
  readers_.onFacts = [this](const platform::ReadSession& session) {
    EXPECT_EQ(session.target, WindowNumber(77));
    session.showProgress(L"5");
    fake_.system.onPump = [this] { fake_.state.TargetWindow = WindowNumber(88); };
    session.yield();
    EXPECT_EQ(session.target, WindowNumber(88));
    fake_.state.CaptureRunning = false;
    EXPECT_FALSE(session.stillRunning());
  };
  Compose();
  EXPECT_EQ(Text(ViewText::txtCount), L"");
}

TEST_F(PageReportTest, ThePageIsThatOfTheWindowItselfAtThePoint) {
  fake_.system.parents[WindowNumber(77)] = WindowNumber(70);
  for (const wchar_t* className : {L"Internet Explorer_Server", L"MicrosoftSilverlight"}) {
    readers_.className = className;
    Compose();
    EXPECT_EQ(readers_.documentWindow, WindowNumber(77));
    EXPECT_EQ(readers_.askedPoint.x, 300);
    EXPECT_EQ(readers_.askedPoint.y, 400);
  }
}

TEST_F(PageReportTest, ListsOfThePageAreReadThroughTheirParent) {
  fake_.system.parents[WindowNumber(77)] = WindowNumber(70);
  for (const wchar_t* className :
       {L"Internet Explorer_TridentCmboBx", L"Internet Explorer_TridentLstBox"}) {
    readers_.className = className;
    readers_.documentWindow = nullptr;
    Compose();
    EXPECT_EQ(readers_.documentWindow, WindowNumber(70)) << className;
    EXPECT_EQ(fake_.state.BottomTexts[1], kElementReport);
  }
}

TEST_F(PageReportTest, WithoutADocumentWindowTheInformationIsShown) {
  readers_.className = L"Internet Explorer_Hidden";
  Compose();
  EXPECT_EQ(fake_.state.BottomTexts[0], L"1");
  EXPECT_EQ(fake_.state.BottomTexts[2], L"");
  EXPECT_TRUE(fake_.state.BottomTexts[1].starts_with(L"ウィンドウ情報"));
  EXPECT_EQ(Text(ViewText::txtWin1), L"");
  EXPECT_EQ(Text(ViewText::lblTextKind), L"Accessible");
  EXPECT_THAT(Reads(), ElementsAre("facts", "point", "information", "accessible", "status"));
}

TEST_F(PageReportTest, WithoutADocumentToo) {
  readers_.hasPage = false;
  Compose();
  EXPECT_EQ(fake_.state.BottomTexts[0], L"1");
  EXPECT_FALSE(fake_.view.shown[ViewText::txtCount]);
  EXPECT_TRUE(fake_.state.BottomTexts[1].starts_with(L"ウィンドウ情報"));
  EXPECT_EQ(Text(ViewText::txtWin1), L"");
}

TEST_F(PageReportTest, WithoutAnElementTheAddressIsShown) {
  fake_.view.texts[ViewText::txtWin1] = L"前";
  readers_.pageFacts = {L"http://host/", {}, {}};
  Compose();
  EXPECT_TRUE(fake_.state.BottomTexts[1].starts_with(L"URL     http://host/\r\n"));
  EXPECT_EQ(Text(ViewText::txtWin1), L"");
}

TEST_F(PageReportTest, TheNextWindowHasNothingOfThePage) {
  Compose();
  readers_.className = L"Notepad";
  Compose();
  EXPECT_EQ(fake_.state.BottomTexts[0], L"");
  EXPECT_EQ(fake_.state.BottomTexts[3], L"");
  EXPECT_EQ(Text(ViewText::txtWin1), L"");
  EXPECT_EQ(Text(ViewText::lblTextKind), L"Accessible");
  EXPECT_TRUE(fake_.view.shown[ViewText::txtCount]);
}

TEST_F(PageReportTest, AHungWindowIsAskedNothingThatCannotEnd) {
  readers_.answers = false;
  readers_.hasPage = false;
  fake_.settings.fromHwnd = 1;
  Compose();
  EXPECT_THAT(Reads(), ElementsAre("facts", "page", "information"));
  EXPECT_EQ(fake_.state.TopTexts[1], L"");
  EXPECT_EQ(fake_.state.TopTexts[2], L"");
  EXPECT_EQ(Text(ViewText::txtStatus), L"");
}

class FailingPageTest : public PageReportTest, public testing::WithParamInterface<const char*> {};

TEST_P(FailingPageTest, LeavesItsSlotsAndTheReportGoesOn) {
  readers_.failing = GetParam();
  Compose();
  EXPECT_EQ(fake_.state.BottomTexts[3].empty(), readers_.failing != "page facts");
  EXPECT_FALSE(fake_.state.BottomTexts[1].empty());
  EXPECT_EQ(fake_.state.TopTexts[1], L"MSAA");
  EXPECT_EQ(Text(ViewText::txtStatus), L"状態");
}

INSTANTIATE_TEST_SUITE_P(Steps, FailingPageTest,
                         testing::Values("page", "page texts", "page facts"));

class FailingReaderTest : public ReportComposerTest,
                          public testing::WithParamInterface<const char*> {};

TEST_P(FailingReaderTest, LeavesItsSlotAndTheReportGoesOn) {
  readers_.failing = GetParam();
  Compose();
  EXPECT_EQ(fake_.state.TopTexts[2].empty(), readers_.failing == "point");
  EXPECT_EQ(fake_.state.BottomTexts[2].empty(), readers_.failing == "other");
  EXPECT_EQ(fake_.state.BottomTexts[1].empty(), readers_.failing == "information");
  EXPECT_EQ(fake_.state.TopTexts[1].empty(), readers_.failing == "accessible");
  EXPECT_THAT(fake_.trace, Contains("status"));
}

INSTANTIATE_TEST_SUITE_P(Readers, FailingReaderTest,
                         testing::Values("point", "other", "information", "accessible", "status"));

TEST_F(ReportComposerTest, SurvivesAScreenAndASystemThatFail) {
  fake_.view.failing = true;
  fake_.system.failing = true;
  EXPECT_NO_THROW(Compose());
  EXPECT_EQ(fake_.state.TopTexts[2], L"a\r\nb\r\nc");
}

TEST(WithLineEndsTest, EndsEveryLineWithCrLf) {
  EXPECT_EQ(WithLineEnds(L"x\ny\r\nz"), L"x\r\ny\r\nz");
  EXPECT_EQ(WithLineEnds(L"x\x01y\rz"), L"x\r\ny\rz");
}

}  // namespace
}  // namespace capture
