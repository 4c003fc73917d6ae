#include <windows.h>

#include <gtest/gtest.h>
#include <objbase.h>

#include "bed/Run.h"

int main(int count, char** words) {
  // For accessible objects, as in the program.
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  testing::InitGoogleTest(&count, words);
  return bed::Run();
}
