// Measures the program against yardsticks that do only what cannot be left out.
//
// Prints one row a line, fields separated by TABs: name, ratio to the yardstick, limit of the
// ratio, median of the program's figures in milliseconds, spread (the distance between the
// quartiles of the ratios). A row that exceeds its limit is measured again, twice at most. The
// exit code is 1 when a row still exceeds its limit.
#include <windows.h>

#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "ListReaders.h"
#include "ProcessorTime.h"
#include "ReportCost.h"
#include "Statistics.h"
#include "driver/ChildProcess.h"
#include "driver/Paths.h"
#include "driver/Pointer.h"
#include "driver/Program.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kStarts = 31;
constexpr int kRounds = 7;
constexpr gui::Milliseconds kRound{4000};
constexpr gui::Milliseconds kWarmUp{1500};

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

std::filesystem::path Yardstick(const wchar_t* name) {
  wchar_t own[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, own, MAX_PATH);
  return std::filesystem::path(own).parent_path() / name;
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

std::vector<bench::Pair> MeasureStartUp() {
  const std::filesystem::path folder = gui::FreshFolder();
  const std::filesystem::path program = folder / "Velmora.exe";
  std::filesystem::copy_file(gui::ProgramFile(), program);
  const std::filesystem::path yardstick = Yardstick(L"bench_empty_window.exe");
  std::vector<bench::Pair> pairs;
  for (int i = 0; i <= kStarts; ++i) {
    const double ours = StartUpTime(program, L"frmQuorvinFromPoint");
    const double theirs = StartUpTime(yardstick, L"BenchEmptyWindow");
    if (i > 0) pairs.push_back({ours, theirs});  // the first start fills the caches
  }
  return pairs;
}

// Both run side by side, with the pointer at rest.
std::vector<bench::Pair> MeasureProcessorTime(bool capturing) {
  gui::pointer::Park();
  const std::filesystem::path yardstick = Yardstick(L"bench_bare_loop.exe");
  const gui::ChildProcess bare(yardstick, capturing ? "capture" : "idle", yardstick.parent_path());
  const gui::Program program;
  if (capturing) program.StartCapture();
  gui::Last(kWarmUp);

  const bench::ProcessorTime ours(program.Process().Handle(), program.Folder() / "Velmora.exe");
  const bench::ProcessorTime theirs(bare.Handle(), yardstick);
  std::vector<bench::Pair> pairs;
  for (int i = 0; i < kRounds; ++i) {
    const double ourStart = ours.Now();
    const double theirStart = theirs.Now();
    gui::Last(kRound);
    pairs.push_back({ours.Now() - ourStart, theirs.Now() - theirStart});
  }
  return pairs;
}

struct Row {
  std::string name;
  double limit;
  std::function<std::vector<bench::Pair>()> measure;
};

// False when the limit is exceeded every time.
bool Measure(const Row& row) {
  constexpr int kTries = 3;
  bench::Summary summary = {};
  for (int attempt = 0; attempt < kTries; ++attempt) {
    summary = bench::Summarise(row.measure());
    if (summary.ratio <= row.limit) break;
  }
  std::printf("%s\n", bench::RowText(row.name, row.limit, summary).c_str());
  std::fflush(stdout);
  return summary.ratio <= row.limit;
}

}  // namespace

int main() {
  const Row rows[] = {
      {"start-up", 2.0, MeasureStartUp},
      {"idle processor time", 1.3, [] { return MeasureProcessorTime(false); }},
      {"resting capture processor time", 1.3, [] { return MeasureProcessorTime(true); }},
      {"information block, 5000 children", 1.15, bench::MeasureInformation},
      {"information block, growth to 5000 children", 1.15, bench::MeasureInformationGrowth},
      {"delivery with file, growth to 20 MB", 1.15, bench::MeasureDeliveryGrowth},
      {"items of a list box", 1.1, [] { return bench::MeasureItems("listbox", 4000); }},
      {"items of a combo box", 1.1, [] { return bench::MeasureItems("dropdown", 4000); }},
      {"buttons of a toolbar", 1.1, [] { return bench::MeasureItems("toolbar", 4000); }},
      {"tabs of a tab control", 1.1, [] { return bench::MeasureItems("tabs", 4000); }},
      {"100000 rows of a list view", 1.1, [] { return bench::MeasureItems("ownerdata", 100'000); }},
      {"list view, growth to 100000 rows", 1.05, [] { return bench::MeasureRowGrowth(100'000); }},
  };
  bool held = true;
  try {
    for (const Row& row : rows) held = Measure(row) && held;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
  }
  return held ? 0 : 1;
}
