#include "capture/Chime.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "capture/CaptureSystem.h"
#include "platform/API_Shell.h"

namespace capture {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FakeChimeCalls : public ChimeCalls {
 public:
  explicit FakeChimeCalls(std::set<std::wstring> files) : files_(std::move(files)) {}

  std::wstring ProgramFolder() override { return L"D:\\道具"; }
  std::wstring WindowsFolder() override { return L"C:\\windows"; }
  bool IsFile(const std::wstring& path) override { return files_.contains(path); }
  void Play(const std::wstring& path) override { done.push_back(L"play " + path); }
  void Pump() override { done.push_back(L"pump"); }

  std::vector<std::wstring> done;

 private:
  std::set<std::wstring> files_;
};

std::vector<std::wstring> Played(const std::wstring& file, std::set<std::wstring> files) {
  FakeChimeCalls calls(std::move(files));
  PlayChime(file, calls);
  return calls.done;
}

TEST(ChimeTest, PlaysTheFileBesideTheProgramOnceAndPumps) {
  EXPECT_THAT(Played(L"鐘.wav", {L"D:\\道具\\鐘.wav"}),
              ElementsAre(L"play D:\\道具\\鐘.wav", L"pump"));
}

TEST(ChimeTest, PrefersItToTheOneOfWindows) {
  EXPECT_THAT(Played(L"chimes.wav", {L"C:\\windows\\media\\chimes.wav", L"D:\\道具\\chimes.wav"}),
              ElementsAre(L"play D:\\道具\\chimes.wav", L"pump"));
}

TEST(ChimeTest, ElsePlaysTheOneOfWindows) {
  EXPECT_THAT(Played(L"chimes.wav", {L"C:\\windows\\media\\chimes.wav"}),
              ElementsAre(L"play C:\\windows\\media\\chimes.wav", L"pump"));
}

TEST(ChimeTest, WithoutAFileNothingHappens) {
  EXPECT_THAT(Played(L"chimes.wav", {L"C:\\windows\\chimes.wav", L"chimes.wav"}), IsEmpty());
}

TEST(ChimeTest, LooksInTheFoldersOfTheProgramAndOfWindows) {
  ChimeCalls calls;
  EXPECT_EQ(calls.ProgramFolder(), API_Shell::ProgramFolder());
  EXPECT_EQ(calls.WindowsFolder(), API_Shell::FolderPath(API_Shell::kWindowsFolder));
  EXPECT_TRUE(calls.IsFile(calls.ProgramFolder() + L"\\unit_tests.exe"));
}

TEST(ChimeTest, ACaptureHasItPlayed) {
  const std::unique_ptr<CaptureSystem> system = MakeCaptureSystem(nullptr);
  const auto messageWaits = [] {
    MSG message{};
    return PeekMessageW(&message, nullptr, WM_APP, WM_APP, PM_NOREMOVE) != FALSE;
  };
  PostThreadMessageW(GetCurrentThreadId(), WM_APP, 0, 0);
  system->PlayChime(L"no such file.wav");
  EXPECT_TRUE(messageWaits());
  // A file beside this program, if not a sound: what follows the playing is seen.
  system->PlayChime(L"unit_tests.exe");
  EXPECT_FALSE(messageWaits());
}

// Without a name, what is looked at are the folders.
TEST(ChimeTest, AFolderIsNoSound) {
  ChimeCalls calls;
  EXPECT_FALSE(calls.IsFile(calls.ProgramFolder() + L"\\"));
  EXPECT_FALSE(calls.IsFile(calls.WindowsFolder()));
}

}  // namespace
}  // namespace capture
