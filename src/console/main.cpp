// The program that scripts call: VelmoraText.exe.
#include <windows.h>

#include <string>
#include <vector>

#include "console/Program.h"

int wmain(int count, wchar_t** words) {
  const std::vector<std::wstring> given(words + 1, words + (count > 0 ? count : 1));
  return console::Run(given);
}
