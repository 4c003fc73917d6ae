#include "capture/Chime.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "TemporaryFolder.h"
#include "capture/CaptureSystem.h"

namespace capture {
namespace {

class ChimePathTest : public testing::Test {
 protected:
  void Add(const std::filesystem::path& file) {
    std::filesystem::create_directories((folder_.Path() / file).parent_path());
    std::ofstream(folder_.Path() / file) << "sound";
  }
  std::filesystem::path Found(const std::wstring& file) const {
    return ChimePath(file, Folder(L"道具"), Folder(L"windows"));
  }
  std::wstring Folder(const wchar_t* name) const { return (folder_.Path() / name).wstring(); }

  TemporaryFolder folder_;
};

TEST_F(ChimePathTest, IsTheFileBesideTheProgram) {
  Add(L"道具/鐘.wav");
  Add(L"windows/media/鐘.wav");
  EXPECT_EQ(Found(L"鐘.wav"), folder_.Path() / L"道具" / L"鐘.wav");
}

TEST_F(ChimePathTest, OtherwiseIsTheFileOfWindows) {
  Add(L"windows/media/chimes.wav");
  EXPECT_EQ(Found(L"chimes.wav"), folder_.Path() / L"windows" / L"media" / L"chimes.wav");
}

TEST_F(ChimePathTest, OtherwiseIsEmpty) {
  Add(L"windows/chimes.wav");
  Add(L"chimes.wav");
  EXPECT_EQ(Found(L"chimes.wav"), L"");
  // Without a name the folders themselves are found, which are not sounds.
  EXPECT_EQ(Found(L""), L"");
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
  // A file beside this program that is no sound: the test sees what happens after playing.
  system->PlayChime(L"unit_tests.exe");
  EXPECT_FALSE(messageWaits());
}

}  // namespace
}  // namespace capture
