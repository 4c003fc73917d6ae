#include "settings/ConfigFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "TemporaryFolder.h"
#include "bed/Needs.h"
#include "settings/ConfigText.h"
#include "ui/MainWindowConfig.h"

namespace settings {
namespace {

using testing::ElementsAre;

// A main window that records what is done to it.
class RecordingWindow : public ConfigWindow {
 public:
  ScreenTwips Screen() const override { return {19200, 11520, 15, 15}; }
  void HoldLayout(bool hold) override { calls.push_back(hold ? "hold" : "release"); }
  void ApplyPlacement(const WindowValues& values) override {
    placed = values;
    calls.push_back("place");
  }
  WindowValues CurrentValues() const override { return current; }
  void HighlightMousePos() override { calls.push_back("highlight"); }
  std::int32_t SetTurnBackBox(std::int32_t value) override { return Box("turn back", value); }
  void SetDetailBox(std::int32_t value) override { Box("detail", value); }
  void SetAutoStopBox(std::int32_t value) override { Box("auto stop", value); }
  void SetVisibleTopPaneHeight(std::int32_t height) override {
    calls.push_back("height " + std::to_string(height));
  }
  void RunLayout() override { calls.push_back("layout"); }

  WindowValues placed;
  WindowValues current;
  std::vector<std::string> calls;

 private:
  std::int32_t Box(const std::string& name, std::int32_t value) {
    calls.push_back(name + " " + std::to_string(value));
    return value != 0 ? 1 : 0;
  }
};

void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string ReadBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

class ConfigFileTest : public testing::Test {
 protected:
  std::wstring Path() const { return ConfigPath(folder_.Path().wstring()); }

  TemporaryFolder folder_;
  RecordingWindow window_;
  Settings record_;
};

TEST_F(ConfigFileTest, LiesBesideTheProgram) {
  EXPECT_EQ(ConfigPath(L"C:\\道具\\velmora"), L"C:\\道具\\velmora\\Conf.txt");
}

TEST_F(ConfigFileTest, AppliesEverythingWhileTheLayoutIsHeld) {
  WriteBytes(Path(), "turn back = 5\r\ndetail = 3\r\nauto stop = 2\r\ntop height = 900\r\n");
  LoadConfig(Path(), window_, record_);
  EXPECT_THAT(window_.calls, ElementsAre("hold", "place", "turn back 5", "detail 3", "auto stop 2",
                                         "height 900", "release", "layout"));
  EXPECT_EQ(record_.turnBack, 1);  // kept by its box
  EXPECT_EQ(record_.detail, 3);
  EXPECT_EQ(record_.autoStop, 2);
}

TEST_F(ConfigFileTest, HighlightsThePositionForClientAndForHex) {
  WriteBytes(Path(), "mous pos = client\r\n");
  LoadConfig(Path(), window_, record_);
  EXPECT_THAT(window_.calls, testing::Contains("highlight").Times(1));

  // The handle's mode colours the position label too.
  RecordingWindow hex;
  WriteBytes(Path(), "win handle = hex\r\n");
  LoadConfig(Path(), hex, record_);
  EXPECT_THAT(hex.calls, testing::Contains("highlight").Times(1));

  RecordingWindow other;
  WriteBytes(Path(), "mous pos = Client\r\nwin handle = HEX\r\n");
  LoadConfig(Path(), other, record_);
  EXPECT_THAT(other.calls, testing::Not(testing::Contains("highlight")));
}

TEST_F(ConfigFileTest, WithoutAFileEverythingIsDefault) {
  record_.hint = 1;
  LoadConfig(Path(), window_, record_);
  EXPECT_EQ(window_.placed, (WindowValues{640, 256, 1024, 576, 0}));
  EXPECT_EQ(record_.hint, 0);
  EXPECT_EQ(record_.hotkey, L"ESC");
  EXPECT_EQ(record_.autoStart, 0);
  EXPECT_FALSE(std::filesystem::exists(Path()));
}

TEST_F(ConfigFileTest, AFolderOfThatNameCountsAsNoFile) {
  std::filesystem::create_directory(Path());
  LoadConfig(Path(), window_, record_);
  EXPECT_EQ(record_.chimeFile, L"chimes.wav");
  SaveConfig(Path(), window_, record_);
  EXPECT_TRUE(std::filesystem::is_directory(Path()));
}

TEST_F(ConfigFileTest, AcceptsBytesThatAreNoText) {
  std::string bytes;
  for (int i = 0; i < 4096; ++i) bytes += static_cast<char>(i * 7 + i / 256);
  WriteBytes(Path(), bytes + "\r\nhint = 1\r\n");
  LoadConfig(Path(), window_, record_);
  EXPECT_EQ(record_.hint, 1);
}

TEST_F(ConfigFileTest, AppliesARectangleOffTheScreenAsItStands) {
  WriteBytes(Path(), "form left=-5000\nform top=9000\nform right=-4000\nform bottom=8000\n");
  LoadConfig(Path(), window_, record_);
  EXPECT_EQ(window_.placed, (WindowValues{-5000, 9000, -4000, 8000, 0}));
}

TEST_F(ConfigFileTest, SavesWhatIsLoadedAgain) {
  NEEDS(bed::CodePage932());
  LoadConfig(Path(), window_, record_);
  record_.hotkey = L"Shift+F3";
  record_.accValueText = L"edit,表示";
  record_.shiftx = -20;
  window_.current = {11, 22, 333, 444, 1};
  SaveConfig(Path(), window_, record_);

  RecordingWindow next;
  Settings loaded;
  LoadConfig(Path(), next, loaded);
  Settings expected = record_;
  expected.turnBack = 1;
  EXPECT_EQ(loaded, expected);
  EXPECT_EQ(next.placed, window_.current);
}

TEST_F(ConfigFileTest, ReplacesTheFileAndForgetsUnknownKeys) {
  WriteBytes(Path(), "colour = red\r\nhint = 1\r\n" + std::string(10'000, 'x'));
  LoadConfig(Path(), window_, record_);
  SaveConfig(Path(), window_, record_);
  const std::string bytes = ReadBytes(Path());
  EXPECT_EQ(bytes.find("colour"), bytes.npos);
  EXPECT_EQ(bytes.find("xxx"), bytes.npos);
  EXPECT_EQ(std::ranges::count(bytes, '\n'), 39);
  EXPECT_NE(bytes.find("\r\nhint = 1\r\n"), bytes.npos);
}

class CodePageConfigTest : public ConfigFileTest {};

TEST_F(CodePageConfigTest, IsWrittenInTheSystemCodePageWithoutAMark) {
  struct {
    UINT codePage;
    const wchar_t* name;
    const char* bytes;
  } static constexpr kNames[] = {{932, L"鐘.wav", "\x8F\xE0.wav"},
                                 {1252, L"été.wav", "\xE9t\xE9.wav"}};
  const auto* const name = std::ranges::find_if(
      kNames, [](const auto& candidate) { return candidate.codePage == GetACP(); });
  ASSERT_NE(name, std::end(kNames)) << "no name for code page " << GetACP();
  LoadConfig(Path(), window_, record_);
  record_.chimeFile = name->name;
  SaveConfig(Path(), window_, record_);
  const std::string bytes = ReadBytes(Path());
  EXPECT_TRUE(bytes.starts_with("form left = "));
  EXPECT_NE(bytes.find("chime file = " + std::string(name->bytes) + "\r\n"), bytes.npos);

  Settings loaded;
  LoadConfig(Path(), window_, loaded);
  EXPECT_EQ(loaded.chimeFile, name->name);
}

TEST_F(ConfigFileTest, AFullDiskKeepsTheLinesWrittenSoFar) {
  ConfigValues values;
  SetDefaults(window_.Screen(), values);
  std::string written;
  int calls = 0;
  const auto fullAfterTwo = [&](std::string_view bytes) {
    if (++calls > 2) return false;
    written += bytes;
    return true;
  };
  WriteConfig(fullAfterTwo, values);
  EXPECT_EQ(written, "form left = 640\r\nform top = 256\r\n");
  EXPECT_EQ(calls, 3);
}

TEST(NormalPlacementTest, IsRestoredAndNothingElse) {
  const WINDOWPLACEMENT placement = ui::NormalPlacement({-100, 50, 300, 40, 1});
  EXPECT_EQ(placement.length, sizeof(WINDOWPLACEMENT));
  EXPECT_EQ(placement.flags, 0U);
  EXPECT_EQ(placement.showCmd, static_cast<UINT>(SW_SHOWNORMAL));
  EXPECT_EQ(placement.ptMinPosition.x, 0);
  EXPECT_EQ(placement.ptMinPosition.y, 0);
  EXPECT_EQ(placement.ptMaxPosition.x, 0);
  EXPECT_EQ(placement.ptMaxPosition.y, 0);
  EXPECT_EQ(placement.rcNormalPosition.left, -100);
  EXPECT_EQ(placement.rcNormalPosition.top, 50);
  EXPECT_EQ(placement.rcNormalPosition.right, 300);
  EXPECT_EQ(placement.rcNormalPosition.bottom, 40);
}

}  // namespace
}  // namespace settings
