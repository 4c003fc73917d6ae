#include <windows.h>

#include <gtest/gtest.h>

#include "bed/Run.h"
#include "driver/GuiTest.h"

int main(int count, char** words) {
  // Rectangles and pixels must not be scaled for this process, whatever the screen's resolution.
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  testing::InitGoogleTest(&count, words);
  gui::SaveScreenshotOnFailure();
  return bed::Run();
}
