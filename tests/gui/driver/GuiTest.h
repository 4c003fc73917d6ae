// The base of every GUI test.
#pragma once

#include <gtest/gtest.h>

namespace gui {

// The pointer is parked and no key is down when a test begins. Skipped where the pointer is not to
// be taken, or the windows have no room.
class GuiTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
};

// From now on the first failure of a test saves a screenshot named after the test.
void SaveScreenshotOnFailure();

}  // namespace gui
