#include "driver/GuiTest.h"

#include <cstdio>

#include "bed/Needs.h"
#include "driver/Keys.h"
#include "driver/Paths.h"
#include "driver/Pointer.h"
#include "driver/Resolution.h"
#include "driver/Screen.h"

namespace gui {
namespace {

// Takes the picture at the first failure, while the windows of the test still exist.
class ScreenshotOnFailure : public testing::EmptyTestEventListener {
  void OnTestPartResult(const testing::TestPartResult& result) override {
    if (!result.failed() || testing::UnitTest::GetInstance()->current_test_info() == lastFailed_) {
      return;
    }
    lastFailed_ = testing::UnitTest::GetInstance()->current_test_info();
    std::printf("screenshot: %s\n", SaveScreenshot(TestName()).string().c_str());
  }

  const testing::TestInfo* lastFailed_ = nullptr;
};

}  // namespace

void SaveScreenshotOnFailure() {
  // The listener list owns it.
  testing::UnitTest::GetInstance()->listeners().Append(new ScreenshotOnFailure);
}

void GuiTest::SetUp() {
  NEEDS(bed::ThePointer());
  NEEDS(bed::ScreenForAllWindows());
  keys::Reset();
  RestoreResolution();
  pointer::Park();
}

void GuiTest::TearDown() {
  if (!IsSkipped()) keys::Reset();
}

}  // namespace gui
