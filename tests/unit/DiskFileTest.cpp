// Which files a search finds.
#include "platform/DiskFile.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <filesystem>
#include <fstream>

#include "TemporaryFolder.h"
#include "extract/StringUtilities.h"

namespace platform {
namespace {

class DiskFileTest : public testing::Test {
 protected:
  std::wstring Path(const std::wstring& name) const { return (folder_.Path() / name).wstring(); }

  std::wstring MakeFile(const std::wstring& name, DWORD attributes = FILE_ATTRIBUTE_NORMAL) const {
    const std::wstring path = Path(name);
    std::ofstream(std::filesystem::path(path)) << "x";
    SetFileAttributesW(path.c_str(), attributes);
    return path;
  }

  // Wine does not store the attribute everywhere, but hides a name that starts with a dot.
  std::wstring MakeHiddenFile() const { return MakeFile(L".hidden.wav", FILE_ATTRIBUTE_HIDDEN); }

  TemporaryFolder folder_;
};

TEST(IsListedTest, FoldersAndWhatIsHiddenOrTheSystemsAreNot) {
  constexpr DWORD kSeen[] = {FILE_ATTRIBUTE_NORMAL, FILE_ATTRIBUTE_ARCHIVE, FILE_ATTRIBUTE_READONLY,
                             FILE_ATTRIBUTE_COMPRESSED};
  constexpr DWORD kUnseen[] = {FILE_ATTRIBUTE_DIRECTORY, FILE_ATTRIBUTE_HIDDEN,
                               FILE_ATTRIBUTE_SYSTEM};
  for (const DWORD seen : kSeen) {
    EXPECT_TRUE(IsListed(seen)) << seen;
    for (const DWORD unseen : kUnseen) {
      EXPECT_FALSE(IsListed(seen | unseen)) << seen << " " << unseen;
    }
  }
}

TEST_F(DiskFileTest, AFileIsFoundAndAFolderIsNot) {
  EXPECT_TRUE(IsNormalFile(MakeFile(L"鐘 の音.wav")));
  EXPECT_TRUE(IsNormalFile(MakeFile(L"read only.wav", FILE_ATTRIBUTE_READONLY)));
  SetFileAttributesW(Path(L"read only.wav").c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_FALSE(IsNormalFile(folder_.Path().wstring()));
  EXPECT_FALSE(IsNormalFile(Path(L"none.wav")));
  EXPECT_FALSE(IsNormalFile(Path(L"none\\none.wav")));
  EXPECT_FALSE(IsNormalFile(L""));
}

TEST_F(DiskFileTest, AHiddenFileIsNot) {
  const std::wstring hidden = MakeHiddenFile();
  ASSERT_NE(GetFileAttributesW(hidden.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
  EXPECT_FALSE(IsNormalFile(hidden));
  EXPECT_FALSE(extract::FileExists(hidden));
}

TEST_F(DiskFileTest, APathThatEndsWithABackslashNamesNoFile) {
  const std::wstring file = MakeFile(L"a.wav");
  EXPECT_FALSE(IsNormalFile(Path(L"")));
  EXPECT_FALSE(IsNormalFile(file + L"\\"));
}

TEST_F(DiskFileTest, APatternYieldsWhatItMatches) {
  MakeHiddenFile();
  std::filesystem::create_directory(folder_.Path() / L"folder.wav");
  EXPECT_FALSE(IsNormalFile(Path(L"*.wav")));
  MakeFile(L"z.wav");
  EXPECT_TRUE(IsNormalFile(Path(L"*.wav")));
  EXPECT_TRUE(IsNormalFile(Path(L"?.wav")));
  EXPECT_FALSE(IsNormalFile(Path(L"?.txt")));
}

}  // namespace
}  // namespace platform
