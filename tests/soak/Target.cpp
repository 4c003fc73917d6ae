#include "Target.h"

#include <filesystem>

#include "corpus/Installer.h"
#include "driver/WaitFor.h"
#include "driver/Windows.h"

// Both calls are the system's own, without a header.
extern "C" LONG WINAPI NtSuspendProcess(HANDLE process);
extern "C" LONG WINAPI NtResumeProcess(HANDLE process);

namespace soak {
namespace {

// Longer than any soak. The test's job ends what a soak leaves.
constexpr char kDeadline[] = "deadline=86400 ";

constexpr gui::Milliseconds kToClose{3000};
constexpr UINT kToAnswer = 20000;

std::string PlaceWord(const Place& place) {
  return "place=" + std::to_string(place.left) + "," + std::to_string(place.top) + "," +
         std::to_string(place.width) + "," + std::to_string(place.height) + " ";
}

}  // namespace

Target::Target(const TargetKind& kind, const Place& place) : kind_(&kind) {
  const std::string words = kDeadline + PlaceWord(place) + kind.words;
  switch (kind.source) {
    case Source::kSystem:
      StartSystemProgram();
      MoveTo(place);
      break;
    case Source::kInstaller:
      StartInstaller();
      MoveTo(place);
      break;
    case Source::kFixture:
      StartFixture(words);
      break;
    case Source::kLists:
      StartLists(words);
      break;
    case Source::kAccessible:
      StartAccessible(words);
      break;
    case Source::kBrowser:
      StartBrowser(words);
      break;
  }
}

void Target::StartSystemProgram() {
  program_ = std::make_unique<gui::WineProgram>(kind_->words, "", "");
  process_ = &program_->Process();
  window_ = program_->Window().Handle();
}

void Target::StartInstaller() {
  // The test's own folder is the program's.
  installer_ = corpus::StartInstaller(cross::Bits::k32, kind_->words,
                                      std::filesystem::temp_directory_path());
  process_ = installer_.get();
  window_ = gui::WaitForWindow(*process_, corpus::kInstallerClass);
}

void Target::MoveTo(const Place& place) {
  const bool sizes = (GetWindowLongW(window_, GWL_STYLE) & WS_THICKFRAME) != 0;
  SetWindowPos(window_, HWND_TOP, place.left, place.top, place.width, place.height,
               SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS | (sizes ? 0U : UINT{SWP_NOSIZE}));
}

void Target::StartFixture(const std::string& words) {
  fixture_ = std::make_unique<gui::Fixture>(words);
  process_ = &fixture_->Process();
  window_ = (*fixture_)["main"].Handle();
}

void Target::StartLists(const std::string& words) {
  lists_ = std::make_unique<cross::ListFixture>(cross::Bits::k32, words);
  process_ = &lists_->Process();
  const std::string controls = kind_->words;
  const std::size_t sign = controls.rfind('=');
  const std::size_t blank = controls.rfind(' ', sign);
  const std::size_t begin = blank == std::string::npos ? 0 : blank + 1;
  window_ = GetAncestor((*lists_)[controls.substr(begin, sign - begin)], GA_ROOT);
}

void Target::StartAccessible(const std::string& words) {
  accessible_ = std::make_unique<accessible::FixtureProcess>(words);
  process_ = &accessible_->Process();
  window_ = accessible_->Window();
}

void Target::StartBrowser(const std::string& words) {
  browser_ = std::make_unique<html::BrowserProcess>(words);
  process_ = &browser_->Process();
  window_ = (*browser_)["main"].Handle();
}

bool Target::IsWell() const {
  DWORD_PTR answer = 0;
  if (SendMessageTimeoutW(window_, WM_NULL, 0, 0, SMTO_NORMAL, kToAnswer, &answer) != 0) {
    return true;
  }
  // It may be ending at this moment.
  return kind_->mayDie && process_->WaitForExit(kToClose).has_value();
}

void Target::Close() {
  PostMessageW(window_, WM_CLOSE, 0, 0);
  (void)process_->WaitForExit(kToClose);
  Kill();
}

void Target::Kill() { process_->Kill(); }

void Target::Hang() { NtSuspendProcess(process_->Handle()); }

void Target::Wake() { NtResumeProcess(process_->Handle()); }

}  // namespace soak
