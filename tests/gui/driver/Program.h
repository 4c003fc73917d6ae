// The real program, run in its own folder.
#pragma once

#include <windows.h>

#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "driver/ChildProcess.h"
#include "driver/Control.h"

namespace gui {

// The window class of the system's message boxes.
inline constexpr char kMessageBoxClass[] = "#32770";

// How the program is started. Without `conf` there is no Conf.txt.
struct ProgramStart {
  std::optional<std::string> conf = std::nullopt;  // UTF-8, lines end with "\n"
  std::string arguments = {};
  // Of an earlier start; empty: a fresh one of the running test.
  std::filesystem::path folder = {};
};

class Program {
 public:
  // Puts the package and the settings file into the folder, starts the program and waits until its
  // main window is visible and answers. Throws std::runtime_error when that does not happen.
  explicit Program(const ProgramStart& start = {});
  // Closes the program, by force when it does not end.
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Control Window() const;
  // The control with that number of ui/ControlIds.h. Throws std::runtime_error when there is none.
  Control operator[](int id) const;

  // Text and list of the pane in use: the visible member of each pair.
  Control TopPane() const;
  Control BottomPane() const;

  // Starts or stops a capture with the button, and waits until its caption has changed.
  void StartCapture() const;
  void StopCapture() const;
  // Whether a capture runs, seen from the button's caption.
  bool IsCapturing() const;

  // Puts the main window's outer rectangle there.
  void MoveWindowTo(int left, int top, int width, int height) const;

  // Closes the open message boxes; returns how many there were.
  int CloseMessages() const;

  // Posts WM_CLOSE.
  void Close() const;
  // Closes and waits; the exit code, or nothing when the program still runs at the deadline.
  std::optional<DWORD> CloseAndWait();

  const ChildProcess& Process() const { return process_; }
  const std::filesystem::path& Folder() const { return folder_; }

  std::filesystem::path ConfFile() const { return folder_ / "Conf.txt"; }
  // The current settings file: its bytes, and its lines in UTF-8 without their line ends.
  std::string ConfBytes() const;
  std::vector<std::string> ConfLines() const;

 private:
  std::filesystem::path folder_;
  ChildProcess process_;
  HWND window_ = nullptr;
};

}  // namespace gui
