#include "Latency.h"

#include <windows.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

#include "Yardstick.h"
#include "driver/ChildProcess.h"
#include "driver/Paths.h"
#include "driver/Pointer.h"
#include "driver/Program.h"
#include "driver/Target.h"
#include "driver/Windows.h"

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kStops = 200;
constexpr double kPatienceMs = 5000;
constexpr const char* kTexts[] = {"first", "second"};

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Two Notepads beside each other, with different texts.
class Notepads {
 public:
  Notepads() {
    for (std::size_t i = 0; i < notepads_.size(); ++i) {
      const std::filesystem::path file = gui::FreshFolder() / (std::string(kTexts[i]) + ".txt");
      std::ofstream(file) << kTexts[i];
      notepads_[i] = std::make_unique<gui::WineProgram>("notepad.exe", file.string(), "Notepad");
      notepads_[i]->MoveTo(static_cast<int>(i) * 320, 0, 300, 300);
    }
  }
  POINT Stop(std::size_t i) const { return notepads_[i]->Inside("Edit").Center(); }

 private:
  std::array<std::unique_ptr<gui::WineProgram>, 2> notepads_;
};

// The bare loop's window; its text is what it captured.
class BareCapture {
 public:
  BareCapture() : process_(Yardstick(L"bench_bare_loop.exe"), "report", Yardstick(L"")) {
    const auto start = Clock::now();
    while ((window_ = FindWindowW(L"BenchBareLoop", nullptr)) == nullptr) {
      if (MillisecondsSince(start) > kPatienceMs) throw std::runtime_error("no bare loop appears");
      Sleep(5);
    }
  }
  std::string Text() const { return gui::Control(window_, "the bare loop").Text(); }

 private:
  gui::ChildProcess process_;
  HWND window_ = nullptr;
};

Pair OneStop(int moment, POINT point, const std::string& text, const gui::Control& pane,
             const BareCapture& bare) {
  // Users do not wait for the pane before they move: the stops happen anywhere in a pass.
  gui::Last(gui::Milliseconds{40 + moment % 17});
  gui::pointer::MoveTo(point);
  const auto start = Clock::now();
  Pair pair{};
  while (pair.program == 0 || pair.yardstick == 0) {
    if (pair.program == 0 && pane.Text() == text) pair.program = MillisecondsSince(start);
    if (pair.yardstick == 0 && bare.Text() == text) pair.yardstick = MillisecondsSince(start);
    if (MillisecondsSince(start) > kPatienceMs) throw std::runtime_error("no text arrives");
    Sleep(1);
  }
  return pair;
}

}  // namespace

std::vector<Pair> MeasureLatency() {
  const Notepads notepads;
  const BareCapture bare;
  const gui::Program program;
  program.MoveWindowTo(700, 300, 400, 400);
  program.StartCapture();
  const gui::Control pane = program.TopPane();
  std::vector<Pair> pairs;
  for (int i = 0; i <= kStops; ++i) {
    const std::size_t side = static_cast<std::size_t>(i) % 2;
    const Pair stop = OneStop(i * 7, notepads.Stop(side), kTexts[side], pane, bare);
    if (i > 0) pairs.push_back(stop);  // the first one loads what the system needs
  }
  return pairs;
}

}  // namespace bench
