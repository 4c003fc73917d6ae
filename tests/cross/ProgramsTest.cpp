// The list-type controls of programs that come with Wine, compared with another reading.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "ListFixture.h"
#include "OtherReading.h"
#include "Reading.h"
#include "RegistryKey.h"
#include "bed/Needs.h"
#include "driver/Target.h"
#include "driver/Text.h"
#include "driver/WaitFor.h"

namespace cross {
namespace {

struct ProgramCase {
  const char* program;
  const char* windowClass;
  int controls;  // how many it shows at least
  int lines;     // how many items these have together at least
  int lines64;   // on a 64-bit system, where list views are read through accessibility
};

void PrintTo(const ProgramCase& program, std::ostream* out) { *out << program.program; }

int Lines(const std::wstring& text) {
  int lines = 0;
  for (const wchar_t character : text) lines += character == L'\n' ? 1 : 0;
  return lines;
}

bool IsCompared(const std::string& kind, HWND control) {
  return !kind.empty() && (kind != "listview" || !IsIn64BitProcess(control));
}

// A list may change between the two readings, as that of the running processes does.
bool ReadingsAgree(const std::string& kind, HWND control, Reading& ours, std::wstring& other) {
  for (int attempt = 0; attempt < 10; ++attempt) {
    ours = Read(kind, control, {.as32BitSystem = !IsIn64BitProcess(control)});
    other = ReadOtherwise(kind, control);
    if (ours.text == other) return true;
  }
  return false;
}

class ProgramsTest : public testing::TestWithParam<ProgramCase> {};

TEST_P(ProgramsTest, EveryControlReadsTheSameInTwoWays) {
  NEEDS(bed::ProgramsOfWine());
  const ProgramCase& one = GetParam();
  // For the registry editor: the key that it opens at its start, and what it shows there.
  const RegistryKey shown(
      HKEY_CURRENT_USER, L"Software\\Velmora 試験",
      {{L"名前", L"値, \"引用\""}, {L"b", L"c"}, {L"長い", std::wstring(300, L'長')}});
  const RegistryKey start(HKEY_CURRENT_USER,
                          L"Software\\Microsoft\\Windows\\CurrentVersion\\Applets\\Regedit",
                          {{L"LastKey", L"HKEY_CURRENT_USER\\Software\\Velmora 試験"}});
  // For the uninstaller.
  const RegistryKey installed(
      HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Velmora 試験",
      {{L"DisplayName", L"試験用プログラム"},
       {L"Publisher", L"発行元"},
       {L"DisplayVersion", L"1.2"},
       {L"UninstallString", L"none.exe"}});

  const gui::WineProgram program(one.program, "", one.windowClass);
  const HWND window = program.Window().Handle();

  int controls = 0;
  int lines = 0;
  EXPECT_TRUE(gui::WaitFor("the controls are filled", [&](std::string& seen) {
    controls = lines = 0;
    for (HWND control : gui::Descendants(window)) {
      const std::string kind = KindOfClass(gui::Control(control, "").ClassName());
      if (!kind.empty()) ++controls;
      if (!IsCompared(kind, control)) continue;
      lines += Lines(ReadOtherwise(kind, control));
    }
    seen = std::to_string(controls) + " controls, " + std::to_string(lines) + " lines";
    return controls >= one.controls &&
           lines >= (IsIn64BitProcess(window) ? one.lines64 : one.lines);
  }));

  for (HWND control : gui::Descendants(window)) {
    const std::string kind = KindOfClass(gui::Control(control, "").ClassName());
    if (!IsCompared(kind, control)) continue;
    Reading ours;
    std::wstring other;
    EXPECT_TRUE(ReadingsAgree(kind, control, ours, other)) << gui::ToUtf8(ours.text) << "\nbut\n"
                                                           << gui::ToUtf8(other);
    std::printf("%-16s | %-8s | %5d lines | %-12s | %s\n", one.program, kind.c_str(),
                Lines(ours.text), gui::ToUtf8(ours.method).c_str(), Shown(ours.text).c_str());
  }
}

constexpr ProgramCase kPrograms[] = {
    {"regedit.exe", "RegEdit_RegEdit", 1, 3, 0}, {"taskmgr.exe", "#32770", 3, 5, 3},
    {"winefile.exe", "WFS_Frame", 4, 3, 3},      {"uninstaller.exe", "#32770", 2, 2, 1},
    {"winver.exe", "#32770", 1, 1000, 1000},     {"winecfg.exe", "#32770", 3, 20, 16},
    {"oleview.exe", "OleView", 2, 1, 1},         {"explorer.exe", "ExplorerWClass", 3, 4, 0},
};

INSTANTIATE_TEST_SUITE_P(Programs, ProgramsTest, testing::ValuesIn(kPrograms),
                         [](const auto& test) {
                           const std::string name = test.param.program;
                           return name.substr(0, name.find('.'));
                         });

}  // namespace
}  // namespace cross
