#include <windows.h>

#include <objbase.h>

#include <gmock/gmock.h>

#include "Cases.h"
#include "bed/Run.h"

int main(int count, char** words) {
  testing::InitGoogleMock(&count, words);
  hostile::TellCaseOnCrash();
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  return bed::Run();
}
