#include "Programs.h"

#include <commctrl.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>

#include "Installer.h"
#include "TargetRoom.h"
#include "WindowTexts.h"
#include "bed/Needs.h"
#include "driver/Control.h"
#include "driver/Paths.h"
#include "driver/RealSystemFolder.h"
#include "driver/Text.h"
#include "driver/Windows.h"

namespace corpus {
namespace {

using cross::Bits;

// Some of the system's programs for another kind of process only start the real one, and two have
// thousands of items.
enum class Kinds { kBoth, kSystemsOwn };

struct Row {
  const char* name;
  const char* file;       // empty: the installer
  const char* arguments;  // the installer's page
  const char* windowClass;
  int windows;
  int characters;
  Kinds kinds = Kinds::kBoth;
};

constexpr Row kRows[] = {
    {"InstallerWelcome", "", "welcome", kInstallerClass, 5, 200},
    {"InstallerLicence", "", "licence", kInstallerClass, 8, 6000},
    {"InstallerComponents", "", "components", kInstallerClass, 8, 150},
    {"InstallerFolder", "", "folder", kInstallerClass, 8, 100},
    {"InstallerChoices", "", "choices", kInstallerClass, 12, 500},
    {"InstallerLog", "", "log", kInstallerClass, 5, 5000},
    {"Notepad", "notepad.exe", "<licence>", "Notepad", 3, 6000},
    {"RegistryEditor", "regedit.exe", "", "RegEdit_RegEdit", 4, 300, Kinds::kSystemsOwn},
    {"TaskManager", "taskmgr.exe", "", "#32770", 5, 100},
    {"Configuration", "winecfg.exe", "", "#32770", 8, 100, Kinds::kSystemsOwn},
    {"FileManager", "winefile.exe", "", "WFS_Frame", 5, 50},
    {"Version", "winver.exe", "", "#32770", 3, 10000, Kinds::kSystemsOwn},
    {"Uninstaller", "uninstaller.exe", "", "#32770", 4, 50, Kinds::kSystemsOwn},
    {"Explorer", "explorer.exe", "", "ExplorerWClass", 4, 30},
    {"ObjectViewer", "oleview.exe", "", "OleView", 3, 100, Kinds::kSystemsOwn},
    {"WordPad", "Windows NT\\Accessories\\wordpad.exe", "", "WORDPADTOP", 5, 50},
    {"ControlPanel", "control.exe", "", "", 1, 10},
    {"Browser", "Internet Explorer\\iexplore.exe", "", "IEFrame", 2, 10},
};

std::filesystem::path FolderOf(const wchar_t* variable) {
  std::array<wchar_t, MAX_PATH> text{};
  GetEnvironmentVariableW(variable, text.data(), static_cast<DWORD>(text.size()));
  return text.data();
}

// A 32-bit process sees the 32-bit programs in the system's folders.
std::filesystem::path SystemProgram(const ProgramCase& program) {
  const std::filesystem::path windows = FolderOf(L"SystemRoot");
  const std::filesystem::path programs =
      FolderOf(program.bits == Bits::k64 ? L"ProgramW6432" : L"ProgramFiles");
  for (const std::filesystem::path& folder : {windows / L"system32", windows, programs}) {
    const std::filesystem::path file = folder / gui::ToWide(program.file);
    if (std::filesystem::exists(file)) return file;
  }
  throw std::runtime_error("no such program: " + program.file);
}

std::string ArgumentsOf(const ProgramCase& program) {
  return program.arguments == "<licence>" ? "\"" + gui::ToUtf8(LicenceFile().wstring()) + "\""
                                          : program.arguments;
}

std::unique_ptr<gui::ChildProcess> Start(const ProgramCase& program,
                                         const std::filesystem::path& folder) {
  if (program.file.empty()) return StartInstaller(program.bits, program.arguments, folder);
  std::optional<gui::RealSystemFolder> seen;
  if (program.bits == Bits::k64) seen.emplace();
  return StartIn(folder, SystemProgram(program), ArgumentsOf(program));
}

// Whether the windows hold at least the texts of the case.
bool HoldTexts(const std::vector<HWND>& windows, const ProgramCase& program, std::string& seen) {
  int withText = 0;
  int characters = 0;
  for (HWND window : windows) {
    const WindowTexts texts = TextsOf(window);
    if (!texts.Any()) continue;
    ++withText;
    characters += static_cast<int>(texts.caption.size() + texts.items.size());
    if (withText >= program.windows && characters >= program.characters) return true;
  }
  seen = std::to_string(withText) + " windows with " + std::to_string(characters) + " characters";
  return false;
}

}  // namespace

void PrintTo(const ProgramCase& program, std::ostream* out) { *out << program.name; }

std::vector<ProgramCase> ProgramsOfThisSystem() {
  std::vector<ProgramCase> cases;
  for (const Bits bits : {Bits::k32, Bits::k64}) {
    if (bits == Bits::k64 && !bed::Is64BitSystem()) continue;
    const bool own = (bits == Bits::k64) == bed::Is64BitSystem();
    for (const Row& row : kRows) {
      if (row.kinds == Kinds::kSystemsOwn && !own) continue;
      cases.push_back({row.name + std::string(bits == Bits::k64 ? "64" : "32"), row.file,
                       row.arguments, row.windowClass, row.windows, row.characters, bits});
    }
  }
  return cases;
}

std::wstring Licence() {
  std::ifstream in(LicenceFile(), std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(in), {}};
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  return gui::ToWide(bytes.starts_with(kMark) ? bytes.substr(kMark.size()) : bytes);
}

RunningProgram::RunningProgram(const ProgramCase& program)
    : folder_(gui::FreshFolder()), process_(Start(program, folder_)) {
  gui::WaitForWindow(*process_, program.windowClass);
  gui::Require(gui::WaitFor(program.name + " shows its texts", [&](std::string& seen) {
    return HoldTexts(Windows(), program, seen);
  }));
}

std::vector<HWND> RunningProgram::Windows() const {
  std::vector<HWND> windows;
  for (HWND top : gui::VisibleWindows(process_->Id())) {
    windows.push_back(top);
    for (HWND inside : gui::Descendants(top)) {
      if (IsWindowVisible(inside)) windows.push_back(inside);
    }
  }
  return windows;
}

HWND RunningProgram::Tabs() const {
  for (HWND window : Windows()) {
    if (gui::Control(window, "").ClassName() == "SysTabControl32") return window;
  }
  return nullptr;
}

int RunningProgram::Pages() const {
  HWND tabs = Tabs();
  return tabs == nullptr ? 1 : cross::Ask(tabs, TCM_GETITEMCOUNT);
}

void RunningProgram::ShowPage(int page) const {
  HWND tabs = Tabs();
  if (tabs == nullptr) return;
  // Unlike TCM_SETCURSEL this tells the program.
  cross::Ask(tabs, TCM_SETCURFOCUS, static_cast<WPARAM>(page));
  gui::Require(gui::WaitFor("page " + std::to_string(page) + " shows", [&](std::string& seen) {
    const int shown = cross::Ask(tabs, TCM_GETCURSEL);
    seen = "page " + std::to_string(shown);
    return shown == page;
  }));
}

}  // namespace corpus
