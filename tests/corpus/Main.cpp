#include <windows.h>

#include <gtest/gtest.h>
#include <objbase.h>

#include "Summary.h"
#include "bed/Run.h"
#include "driver/GuiTest.h"

int main(int count, char** words) {
  // Rectangles must not be scaled for this process; COM is for accessible objects. Both as in the
  // program.
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  testing::InitGoogleTest(&count, words);
  gui::SaveScreenshotOnFailure();
  const int result = bed::Run();
  corpus::PrintSummary();
  return result;
}
