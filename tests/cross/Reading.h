// The program's readers, each under the name of the control that it reads.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "fixture/Contents.h"

namespace cross {

struct Reading {
  std::wstring text;
  std::wstring method;
  std::vector<std::wstring> progress;
  int yields = 0;
};

// What a test does to a reading.
struct Circumstances {
  // Called at every yield with the number of yields so far; false: the pointer is over another
  // window.
  std::function<bool(int yields)> stays = [](int) { return true; };
  // Reads a list view by its messages on a 64-bit system, too.
  bool as32BitSystem = false;
};

// kind is a name of fixture/Controls.cpp.
Reading Read(const std::string& kind, HWND control, const Circumstances& circumstances = {});

// What a reading of that kind of control with these contents gives.
std::wstring ExpectedText(const std::string& kind, const Contents& contents);

// The label of a reading of that kind of control.
std::wstring Label(const std::string& kind);

// text as it comes out of a block of that many bytes of the system code page.
std::wstring ThroughBlock(const std::wstring& text, std::size_t bytes);

// "one line" of text for a table: its length and the first characters, in UTF-8.
std::string Shown(const std::wstring& text);

}  // namespace cross
