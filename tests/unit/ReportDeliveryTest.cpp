// How the texts of a report reach the panes while it is made.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "FakeReaders.h"
#include "MessageBoxes.h"
#include "bed/Needs.h"
#include "capture/OutputDelivery.h"

namespace capture {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

std::filesystem::path OnDesktop(std::wstring_view file) {
  return std::filesystem::path(DesktopFolder()) / file;
}

// Saves over-long texts to the desktop.
class ReportDeliveryTest : public ReportComposerTest {
 protected:
  void SetUp() override {
    NEEDS(bed::DesktopWithoutSavedTexts());
    RemoveFiles();
  }
  void TearDown() override {
    if (!IsSkipped()) RemoveFiles();
  }
  static void RemoveFiles() {
    std::filesystem::remove(OnDesktop(kTopOverflowFile));
    std::filesystem::remove(OnDesktop(kBottomOverflowFile));
  }
  void ReadPage() {
    readers_.className = L"Internet Explorer_Server";
    readers_.hasPage = true;
  }
};

TEST_F(ReportDeliveryTest, OverAPageTheTopPaneWaitsForTheAccessibleReport) {
  ReadPage();
  fake_.view.texts[ViewText::TopPane] = L"前";
  std::wstring topBefore;
  std::wstring bottomBefore;
  readers_.onAccessible = [&](const platform::ReadSession&) {
    topBefore = Text(ViewText::TopPane);
    bottomBefore = Text(ViewText::BottomPane);
  };
  Compose();
  EXPECT_EQ(topBefore, L"前");
  EXPECT_EQ(bottomBefore, L"<b>");
  EXPECT_EQ(Text(ViewText::TopPane), L"a\r\nb\r\nc");
}

TEST_F(ReportDeliveryTest, AnOverlongPageIsSavedByEitherWayOfDelivery) {
  ReadPage();
  readers_.pageMarkup.assign(kOverlong, L'x');
  fake_.settings.toFile = 1;
  std::wstring refreshed;
  readers_.onAccessible = [&](const platform::ReadSession&) {
    refreshed = Text(ViewText::BottomPane);
    EXPECT_FALSE(std::filesystem::exists(OnDesktop(kTopOverflowFile)));
  };
  Compose();
  EXPECT_NE(refreshed.find(kBottomOverflowFile), std::wstring::npos);
  EXPECT_NE(Text(ViewText::BottomPane).find(kTopOverflowFile), std::wstring::npos);
  EXPECT_TRUE(std::filesystem::exists(OnDesktop(kBottomOverflowFile)));
  EXPECT_TRUE(std::filesystem::exists(OnDesktop(kTopOverflowFile)));
}

TEST_F(ReportDeliveryTest, AnOverlongTextIsSavedOncePerReport) {
  readers_.pointText.assign(kOverlong, L'x');
  fake_.settings.toFile = 1;
  readers_.onAccessible = [](const platform::ReadSession&) {
    EXPECT_TRUE(std::filesystem::remove(OnDesktop(kTopOverflowFile)));
  };
  Compose();
  EXPECT_FALSE(std::filesystem::exists(OnDesktop(kTopOverflowFile)));
  readers_.onAccessible = nullptr;
  Compose();
  EXPECT_TRUE(std::filesystem::exists(OnDesktop(kTopOverflowFile)));
}

TEST_F(ReportDeliveryTest, TheMethodOfTheListStandsBesideItsCount) {
  std::wstring during = L"?";
  readers_.listMethod = L"LVM_GETITEMW";
  readers_.onRead = [&](const report::ControlRead&) { during = Text(ViewText::lblListKind); };
  fake_.view.texts[ViewText::lblListKind] = L"前";
  Compose();
  EXPECT_EQ(during, L"");
  EXPECT_EQ(Text(ViewText::lblListKind), L"LVM_GETITEMW");
  EXPECT_EQ(Text(ViewText::lblTextKind), L"Accessible");
  ReadPage();
  Compose();
  EXPECT_EQ(Text(ViewText::lblListKind), L"");
}

TEST_F(ReportDeliveryTest, MessagesAboutAPageAreShown) {
  ReadPage();
  readers_.pageMessage = L"ResolveFrameDocument:5 Access denied.";
  Compose();
  EXPECT_EQ(Text(ViewText::lblMsg), L"ResolveFrameDocument:5 Access denied.");
}

}  // namespace
}  // namespace capture
