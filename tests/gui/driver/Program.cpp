#include "driver/Program.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

#include "driver/Paths.h"
#include "driver/Text.h"
#include "driver/Windows.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

constexpr char kWindowClass[] = "frmQuorvinFromPoint";
constexpr char kStart[] = "開始";
constexpr char kStop[] = "停止";

std::string WithCrLf(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '\n') result += '\r';
    result += c;
  }
  return result;
}

std::filesystem::path Prepared(const ProgramStart& start) {
  const std::filesystem::path folder = start.folder.empty() ? FreshFolder() : start.folder;
  std::filesystem::create_directories(folder);
  if (!std::filesystem::exists(folder / "Velmora.exe")) CopyPackageTo(folder);
  if (start.conf.has_value()) {
    std::ofstream out(folder / "Conf.txt", std::ios::binary);
    out << ToCodePage(WithCrLf(*start.conf));
    if (!out.flush()) throw std::runtime_error("cannot write Conf.txt");
  }
  return folder;
}

}  // namespace

Program::Program(const ProgramStart& start)
    : folder_(Prepared(start)),
      process_(folder_ / "Velmora.exe", start.arguments, folder_),
      window_(WaitForWindow(process_, kWindowClass)) {}

Program::~Program() {
  if (!process_.IsRunning()) return;
  Close();
  (void)process_.WaitForExit(Milliseconds(2000));
}

Control Program::Window() const { return {window_, "the main window"}; }

Control Program::operator[](int id) const {
  for (HWND window : Descendants(window_)) {
    if (GetDlgCtrlID(window) == id) return {window, "control " + std::to_string(id)};
  }
  throw std::runtime_error("the main window has no control " + std::to_string(id));
}

Control Program::TopPane() const {
  const Control scrolling = (*this)[ui::txtWinTextT0];
  return scrolling.IsVisible() ? scrolling : (*this)[ui::txtWinTextT1];
}

Control Program::BottomPane() const {
  const Control scrolling = (*this)[ui::txtWinTextB0];
  return scrolling.IsVisible() ? scrolling : (*this)[ui::txtWinTextB1];
}

void Program::StartCapture() const {
  const Control button = (*this)[ui::cmdGo];
  if (button.Text() != kStart) throw std::runtime_error("a capture runs already");
  button.PressButton();
  Require(button.TextBecomes(kStop));
}

void Program::StopCapture() const {
  const Control button = (*this)[ui::cmdGo];
  if (button.Text() != kStop) throw std::runtime_error("no capture runs");
  button.PressButton();
  Require(button.TextBecomes(kStart));
}

bool Program::IsCapturing() const { return (*this)[ui::cmdGo].Text() == kStop; }

void Program::MoveWindowTo(int left, int top, int width, int height) const {
  SetWindowPos(window_, nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

int Program::CloseMessages() const {
  int closed = 0;
  for (HWND window : VisibleWindows(process_.Id())) {
    if (Control(window, "").ClassName() != kMessageBoxClass) continue;
    PostMessageW(window, WM_CLOSE, 0, 0);
    ++closed;
  }
  return closed;
}

void Program::Close() const { PostMessageW(window_, WM_CLOSE, 0, 0); }

std::optional<DWORD> Program::CloseAndWait() {
  Close();
  return process_.WaitForExit();
}

std::string Program::ConfBytes() const {
  std::ifstream in(ConfFile(), std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

std::vector<std::string> Program::ConfLines() const {
  return Split(FromCodePage(ConfBytes()), "\r\n");
}

}  // namespace gui
