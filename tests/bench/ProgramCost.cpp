#include "ProgramCost.h"

#include <windows.h>

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "ListFixture.h"
#include "ProcessorTime.h"
#include "Yardstick.h"
#include "driver/ChildProcess.h"
#include "driver/Paths.h"
#include "driver/Pointer.h"
#include "driver/Program.h"

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kStarts = 31;
constexpr int kRounds = 7;
constexpr gui::Milliseconds kRound{4000};
constexpr gui::Milliseconds kWarmUp{1500};

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// From the start of the process to its visible window.
double StartUpTime(const std::filesystem::path& program, const wchar_t* windowClass) {
  const auto start = Clock::now();
  const gui::ChildProcess process(program, "", program.parent_path());
  for (;;) {
    HWND window = FindWindowW(windowClass, nullptr);
    if (window != nullptr && IsWindowVisible(window)) return MillisecondsSince(start);
    Sleep(1);
  }
}

// From the start of the process to its end. Throws when it writes less than the rows.
double CallTime(const std::filesystem::path& program, const std::string& arguments) {
  constexpr std::size_t kLeast = 10'000;
  const auto start = Clock::now();
  gui::ChildProcess process(program, arguments, program.parent_path(),
                            gui::ChildProcess::Output::kRead);
  while (!process.WaitForExit(gui::Milliseconds(1))) process.ReadOutput();
  const double time = MillisecondsSince(start);
  if (process.ReadOutput().size() < kLeast) throw std::runtime_error("the rows are not read");
  return time;
}

}  // namespace

std::vector<Pair> MeasureStartUp() {
  const std::filesystem::path folder = gui::FreshFolder();
  const std::filesystem::path program = folder / "Velmora.exe";
  std::filesystem::copy_file(gui::ProgramFile(), program);
  const std::filesystem::path yardstick = Yardstick(L"bench_empty_window.exe");
  std::vector<Pair> pairs;
  for (int i = 0; i <= kStarts; ++i) {
    const double ours = StartUpTime(program, L"frmQuorvinFromPoint");
    const double theirs = StartUpTime(yardstick, L"BenchEmptyWindow");
    if (i > 0) pairs.push_back({ours, theirs});  // the first start fills the caches
  }
  return pairs;
}

std::vector<Pair> MeasureTextCall() {
  const std::filesystem::path program = gui::PackageFolder() / "VelmoraText.exe";
  const std::filesystem::path yardstick = Yardstick(L"bench_bare_text.exe");
  const cross::ListFixture fixture(cross::Bits::k32, "deadline=3600 rows=many:1000");
  const std::string handle = std::to_string(reinterpret_cast<INT_PTR>(fixture["rows"]));
  std::vector<Pair> pairs;
  for (int i = 0; i <= kStarts; ++i) {
    const double ours = CallTime(program, "--window " + handle);
    const double theirs = CallTime(yardstick, handle);
    if (i > 0) pairs.push_back({ours, theirs});
  }
  return pairs;
}

// Both run at the same time, with the pointer at rest.
std::vector<Pair> MeasureProcessorTime(bool capturing) {
  gui::pointer::Park();
  const std::filesystem::path yardstick = Yardstick(L"bench_bare_loop.exe");
  const gui::ChildProcess bare(yardstick, capturing ? "capture" : "idle", yardstick.parent_path());
  const gui::Program program;
  if (capturing) program.StartCapture();
  gui::Last(kWarmUp);

  const ProcessorTime ours(program.Process().Handle(), program.Folder() / "Velmora.exe");
  const ProcessorTime theirs(bare.Handle(), yardstick);
  std::vector<Pair> pairs;
  for (int i = 0; i < kRounds; ++i) {
    const double ourStart = ours.Now();
    const double theirStart = theirs.Now();
    gui::Last(kRound);
    pairs.push_back({ours.Now() - ourStart, theirs.Now() - theirStart});
  }
  return pairs;
}

}  // namespace bench
