#include <windows.h>

#include <gtest/gtest.h>
#include <objbase.h>

#include "bed/Run.h"
#include "driver/GuiTest.h"

int main(int count, char** words) {
  SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  testing::InitGoogleTest(&count, words);
  gui::SaveScreenshotOnFailure();
  return bed::Run();
}
