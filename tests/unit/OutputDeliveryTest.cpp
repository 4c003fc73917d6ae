#include "capture/OutputDelivery.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "FakeCapture.h"
#include "TemporaryFolder.h"
#include "bed/Needs.h"
#include "platform/ErrorReport.h"
#include "platform/TextCodec.h"
#include "platform/UniqueHandle.h"

namespace capture {
namespace {

constexpr std::wstring_view kRule = L"--------------------------------";

TEST(ChoosePanesTest, FollowsDetailAndForDocumentsTheirText) {
  // detail, disp text, from a document: top, bottom.
  const struct {
    std::int32_t detail;
    std::int32_t dispText;
    bool fromDocument;
    std::size_t top;
    std::size_t bottom;
  } kCases[] = {
      {0, 0, false, 2, 2}, {0, 1, false, 2, 2}, {1, 0, false, 1, 1},  {1, 1, false, 1, 1},
      {0, 0, true, 2, 2},  {0, 1, true, 2, 3},  {1, 0, true, 1, 1},   {1, 1, true, 1, 1},
      {0, 9, true, 2, 3},  {5, 9, true, 1, 1},  {-1, 0, false, 1, 1},
  };
  for (const auto& row : kCases) {
    const PaneChoice choice = ChoosePanes(row.detail, row.dispText, row.fromDocument);
    EXPECT_EQ(choice.top, row.top) << row.detail << row.dispText << row.fromDocument;
    EXPECT_EQ(choice.bottom, row.bottom) << row.detail << row.dispText << row.fromDocument;
  }
}

TEST(RedisplayPanesTest, ShowsTheChosenTexts) {
  FakeCapture fake;
  fake.state.TopTexts = {L"t0", L"t1", L"t2"};
  fake.state.BottomTexts = {L"", L"b1", L"b2", L"b3"};
  PaneDelivery(fake.view).RedisplayPanes(fake.state, fake.settings);
  EXPECT_EQ(fake.view.texts[ViewText::TopPane], L"t2");
  EXPECT_EQ(fake.view.texts[ViewText::BottomPane], L"b2");

  fake.settings.dispText = 1;
  fake.state.BottomTexts[0] = L"1";
  PaneDelivery(fake.view).RedisplayPanes(fake.state, fake.settings);
  EXPECT_EQ(fake.view.texts[ViewText::BottomPane], L"b3");

  fake.settings.detail = 1;
  PaneDelivery(fake.view).RedisplayPanes(fake.state, fake.settings);
  EXPECT_EQ(fake.view.texts[ViewText::TopPane], L"t1");
  EXPECT_EQ(fake.view.texts[ViewText::BottomPane], L"b1");
}

TEST(RedisplayPanesTest, BothPanesNameTheSameFile) {
  FakeCapture fake;
  const TemporaryFolder folder;
  fake.state.TopTexts[2].assign(kOverlong, L'a');
  fake.state.BottomTexts[2].assign(kOverlong, L'b');
  // The file is named in the shown text only when it is written.
  fake.settings.toFile = 1;
  PaneDelivery(fake.view, [&] {
    return folder.Path().wstring();
  }).RedisplayPanes(fake.state, fake.settings);
  for (const ViewText pane : {ViewText::TopPane, ViewText::BottomPane}) {
    EXPECT_NE(fake.view.texts[pane].find(kTopOverflowFile), std::wstring::npos);
  }
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / L"文字数オーバー下段(Velmora).txt"));
}

TEST(RefreshBottomPaneTest, LeavesTheTopPaneAndHasAFileOfItsOwn) {
  FakeCapture fake;
  const TemporaryFolder folder;
  fake.view.texts[ViewText::TopPane] = L"before";
  fake.state.TopTexts[2] = L"t2";
  fake.state.BottomTexts = {L"1", L"b1", std::wstring(kOverlong, L'b'), L"b3"};
  fake.settings.toFile = 1;
  PaneDelivery delivery(fake.view, [&] { return folder.Path().wstring(); });
  delivery.RefreshBottomPane(fake.state, fake.settings);
  EXPECT_EQ(fake.view.texts[ViewText::TopPane], L"before");
  EXPECT_NE(
      fake.view.texts[ViewText::BottomPane].find(L"「文字数オーバー下段(Velmora).txt」に\r\n"),
      std::wstring::npos);
  EXPECT_TRUE(std::filesystem::exists(folder.Path() / L"文字数オーバー下段(Velmora).txt"));
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / kTopOverflowFile));

  fake.settings.dispText = 1;
  delivery.RefreshBottomPane(fake.state, fake.settings);
  EXPECT_EQ(fake.view.texts[ViewText::BottomPane], L"b3");
}

class PutPaneTextTest : public testing::Test {
 protected:
  PutPaneTextTest()
      : before_(
            platform::SetMessageBox([this](const std::wstring& text, const std::wstring& title) {
              boxText_ = text;
              boxTitle_ = title;
              ++boxes_;
            })) {
    fake_.view.texts[ViewText::TopPane] = L"before";
  }
  ~PutPaneTextTest() override { platform::SetMessageBox(before_); }

  void Put(const std::wstring& text, std::int32_t toFile) {
    delivery_.PutPaneText(ViewText::TopPane, text, toFile, L"長い.txt");
  }
  std::wstring Shown() { return fake_.view.texts[ViewText::TopPane]; }
  std::filesystem::path File() { return std::filesystem::path(desktop_) / L"長い.txt"; }

  FakeCapture fake_;
  TemporaryFolder folder_;
  std::wstring desktop_ = folder_.Path().wstring();
  PaneDelivery delivery_{fake_.view, [this] { return desktop_; }};
  std::wstring boxText_;
  std::wstring boxTitle_;
  int boxes_ = 0;
  platform::MessageBoxFunction before_;
};

TEST_F(PutPaneTextTest, ShowsATextWholeUpToTheLimit) {
  const std::wstring text(65'534, L'漢');
  Put(text, 1);
  EXPECT_EQ(Shown(), text);
  EXPECT_FALSE(std::filesystem::exists(File()));
}

TEST_F(PutPaneTextTest, CutsAndMarksALongerOne) {
  std::wstring text(65'535, L'漢');
  text[64'999] = L'末';
  Put(text, 0);
  EXPECT_EQ(Shown(), text.substr(0, 65'000) + L"\r\n\r\n" + std::wstring(kRule) +
                         L"\r\n文字数オーバー　65000文字迄\r\n" + std::wstring(kRule));
  EXPECT_FALSE(std::filesystem::exists(File()));
}

TEST_F(PutPaneTextTest, WritesTheWholeTextWhenAsked) {
  std::wstring text(70'000, L'字');
  text += L"終\r\nend";
  Put(text, 1);
  EXPECT_TRUE(
      Shown().ends_with(L"\r\n文字数オーバー　65000文字迄\r\nデスクトップの「長い.txt」"
                        L"に\r\n保存しました！\r\n" +
                        std::wstring(kRule)));
  std::ifstream file(File(), std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  EXPECT_EQ(bytes.str(), platform::ToAnsi(text) + "\r\n");
}

TEST_F(PutPaneTextTest, AVeryLongTextIsWrittenToItsLastByte) {
  NEEDS(bed::CodePage932());
  std::wstring text;
  for (int line = 0; text.size() < 10'000'000; ++line) {
    text += std::to_wstring(line) + L"\t表示する文字\r\n";
  }
  Put(text, 1);
  std::ifstream file(File(), std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  EXPECT_TRUE(bytes.str() == platform::ToAnsi(text) + "\r\n");
  EXPECT_GT(bytes.str().size(), 13'000'000U);
  EXPECT_TRUE(Shown().starts_with(text.substr(0, 65'000) + L"\r\n\r\n---"));
}

TEST_F(PutPaneTextTest, AFileThatAnotherProgramHoldsIsKeptAndThePaneToo) {
  std::ofstream(File()) << "kept";
  {
    const platform::UniqueKernelHandle held(CreateFileW(
        File().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    Put(std::wstring(65'535, L'a'), 1);
  }
  EXPECT_TRUE(Shown() == L"before");
  EXPECT_EQ(boxes_, 0);
  EXPECT_EQ(std::filesystem::file_size(File()), 4U);
}

TEST_F(PutPaneTextTest, ReplacesTheFileOfTheTimeBefore) {
  std::ofstream(File()) << std::string(500'000, 'x');
  Put(std::wstring(65'535, L'a'), 1);
  EXPECT_EQ(std::filesystem::file_size(File()), 65'537U);
}

TEST_F(PutPaneTextTest, OnlyOneMeansToFile) {
  for (const std::int32_t toFile : {0, 2, -1}) {
    Put(std::wstring(65'535, L'a'), toFile);
    EXPECT_FALSE(std::filesystem::exists(File()));
  }
}

TEST_F(PutPaneTextTest, AMissingDesktopIsReportedAndThePaneKept) {
  desktop_ = L"Z:\\無い\\場所";
  Put(std::wstring(65'535, L'a'), 1);
  EXPECT_EQ(Shown(), L"before");
  EXPECT_EQ(boxes_, 1);
  EXPECT_EQ(boxTitle_, L"ファイル出力エラー");
  EXPECT_EQ(boxText_,
            L"ファイル出力先（デスクトップ）パスが無効です！ - 制限文字数超過時\r\n"
            L"Z:\\無い\\場所\r\n"
            L"\r\n"
            L"ファイル出力を停止するには、\r\n"
            L"[設定]→[その他]→[制限文字数超過時にファイル出力] をオフにして下さい。");
}

TEST_F(PutPaneTextTest, OneDeliveryReportsEachTextOnce) {
  desktop_ = L"Z:\\無い\\場所";
  const std::wstring text(65'535, L'a');
  for (int i = 0; i < 3; ++i) Put(text, 1);
  EXPECT_EQ(boxes_, 1);
  Put(text + L"b", 1);
  EXPECT_EQ(boxes_, 2);
  EXPECT_EQ(Shown(), L"before");
  PaneDelivery next(fake_.view, [this] { return desktop_; });
  next.PutPaneText(ViewText::TopPane, text, 1, L"長い.txt");
  EXPECT_EQ(boxes_, 3);
}

TEST_F(PutPaneTextTest, OneDeliveryWritesEachTextOnce) {
  const std::wstring text(65'535, L'a');
  Put(text, 1);
  const std::wstring shown = Shown();
  std::ofstream(File(), std::ios::trunc) << "changed since";
  fake_.view.texts[ViewText::TopPane].clear();
  Put(text, 1);
  EXPECT_EQ(Shown(), shown);
  EXPECT_EQ(std::filesystem::file_size(File()), 13U);
  // The same length, but another text.
  Put(std::wstring(65'535, L'b'), 1);
  EXPECT_EQ(std::filesystem::file_size(File()), 65'537U);
}

TEST_F(PutPaneTextTest, ATextIsWrittenToEachOfItsFiles) {
  const std::wstring text(65'535, L'a');
  Put(text, 1);
  delivery_.PutPaneText(ViewText::BottomPane, text, 1, L"下.txt");
  EXPECT_EQ(std::filesystem::file_size(File()), 65'537U);
  EXPECT_EQ(std::filesystem::file_size(std::filesystem::path(desktop_) / L"下.txt"), 65'537U);
}

TEST_F(PutPaneTextTest, AFileThatCannotBeWrittenLeavesThePaneSilently) {
  std::filesystem::create_directory(File());
  Put(std::wstring(65'535, L'a'), 1);
  EXPECT_EQ(Shown(), L"before");
  EXPECT_EQ(boxes_, 0);
}

}  // namespace
}  // namespace capture
