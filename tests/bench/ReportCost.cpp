#include "ReportCost.h"

#include <windows.h>

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "BareWindows.h"
#include "Yardstick.h"
#include "capture/OutputDelivery.h"
#include "driver/ChildProcess.h"
#include "driver/Paths.h"
#include "report/WindowInformation.h"

namespace bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRounds = 9;
constexpr int kManyChildren = 5000;
constexpr int kFewChildren = 500;
constexpr std::size_t kLongText = 20'000'000;

template <typename Work>
double Milliseconds(Work&& work) {
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// A process with a window that has that many children.
class WindowTree {
 public:
  explicit WindowTree(int children)
      : process_(Yardstick(L"bench_window_tree.exe"), std::to_string(children),
                 Yardstick(L"").parent_path()) {
    const std::wstring title = std::to_wstring(children);
    const auto deadline = Clock::now() + std::chrono::seconds(60);
    while (root_ == nullptr || !IsWindowVisible(root_)) {
      if (Clock::now() > deadline) throw std::runtime_error("the window tree does not appear");
      root_ = FindWindowW(L"BenchWindowTree", title.c_str());
      Sleep(5);
    }
  }
  HWND Root() const { return root_; }

 private:
  gui::ChildProcess process_;
  HWND root_ = nullptr;
};

double InformationTime(HWND root) {
  return Milliseconds([root] {
    const auto information = report::ReadWindowInformation(report::ReadWindowFacts(root));
    if (report::WindowInformationText(information, L"dec").size() < 1000) {
      throw std::runtime_error("no information about the window tree");
    }
  });
}

double BareTime(HWND root) {
  return Milliseconds([root] { AskInformation(root); });
}

// Accepts texts and shows nothing.
class BlindView : public capture::CaptureView {
 public:
  std::wstring Text(capture::ViewText) const override { return {}; }
  void SetText(capture::ViewText, const std::wstring&) override {}
  void SetVisible(capture::ViewText, bool) override {}
  void SetHandleTag(const std::wstring&) override {}
  void SetGoButton(const std::wstring&, const std::wstring&) override {}
  HWND GoButton() const override { return nullptr; }
  HWND MainWindow() const override { return nullptr; }
  void FocusTopPane() override {}
  void BringToFront() override {}
  void HideMainWindow() override {}
  void EnableTimer(capture::CaptureTimer, bool) override {}
  void ShowMarkers() override {}
  void PlaceMarkers(POINT) override {}
  void UnloadMarkers() override {}
};

double DeliveryTime(const std::wstring& text, const std::wstring& folder) {
  BlindView view;
  return Milliseconds([&] {
    capture::PaneDelivery delivery(view, [&folder] { return folder; });
    delivery.PutPaneText(capture::ViewText::TopPane, text, 1, L"text.txt");
  });
}

}  // namespace

std::vector<Pair> MeasureInformation() {
  const WindowTree tree(kManyChildren);
  std::vector<Pair> pairs;
  for (int i = 0; i < kRounds; ++i) {
    pairs.push_back({InformationTime(tree.Root()), BareTime(tree.Root())});
  }
  return pairs;
}

std::vector<Pair> MeasureInformationGrowth() {
  const WindowTree many(kManyChildren);
  const WindowTree few(kFewChildren);
  std::vector<Pair> pairs;
  for (int i = 0; i < kRounds; ++i) {
    pairs.push_back(
        {InformationTime(many.Root()), InformationTime(few.Root()) * kManyChildren / kFewChildren});
  }
  return pairs;
}

std::vector<Pair> MeasureDeliveryGrowth() {
  const std::wstring folder = gui::FreshFolder().wstring();
  const std::wstring longText(kLongText, L'長');
  const std::wstring shortText(kLongText / 10, L'短');
  std::vector<Pair> pairs;
  for (int i = 0; i < kRounds; ++i) {
    pairs.push_back({DeliveryTime(longText, folder), DeliveryTime(shortText, folder) * 10});
  }
  return pairs;
}

}  // namespace bench
