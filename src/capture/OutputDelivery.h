// How a text gets into a pane: cut when it is over-long, and then saved whole when the user wants
// that.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "capture/CaptureState.h"
#include "capture/CaptureView.h"
#include "settings/Settings.h"

namespace capture {

// A text of so many characters is over-long, and so many of it are then shown. Odd, and stays:
// docs/ODDITIES.md.
constexpr std::size_t kOverlong = 65'535;
constexpr std::size_t kShownOfOverlong = 65'000;

// The files on the desktop for the whole of an over-long text. When both panes are redisplayed,
// both use the first name. The second is for a bottom pane that is refreshed alone. Odd, and stays:
// docs/ODDITIES.md.
constexpr std::wstring_view kTopOverflowFile = L"文字数オーバー上段(Velmora).txt";
constexpr std::wstring_view kBottomOverflowFile = L"文字数オーバー下段(Velmora).txt";

// What the pane shows instead of an over-long text. savedAs is the name of the file on the desktop
// that holds the whole text; empty when there is none.
std::wstring CutText(std::wstring_view text, std::wstring_view savedAs);

using FolderFunction = std::function<std::wstring()>;

// The user's desktop folder.
std::wstring DesktopFolder();

// Indexes into TopTexts and BottomTexts.
struct PaneChoice {
  std::size_t top;
  std::size_t bottom;
};

// Which texts the panes show. fromDocument: the texts came from a browser document. Every value but
// 0 counts as a ticked box.
PaneChoice ChoosePanes(std::int32_t detail, std::int32_t dispText, bool fromDocument);

// Delivers the texts of one report, or of one click on the detail switch. A report redisplays
// several times: the same over-long text is written, or reported, only once.
class PaneDelivery {
 public:
  explicit PaneDelivery(CaptureView& view, FolderFunction desktop = DesktopFolder);

  // Puts text into pane. An over-long one is cut, after being written whole to fileName in the
  // desktop folder when toFile is 1. When that folder is no directory, says so in a message box and
  // leaves the pane as it was; when writing fails, leaves it silently.
  void PutPaneText(ViewText pane, const std::wstring& text, std::int32_t toFile,
                   std::wstring_view fileName);

  // Shows in both panes what the settings choose of the texts that were read.
  void RedisplayPanes(const CaptureState& state, const settings::Settings& settings);

  // The same for the bottom pane alone, which then saves under its own name.
  void RefreshBottomPane(const CaptureState& state, const settings::Settings& settings);

 private:
  // Distinguishes texts without keeping them, because they may be huge.
  struct TextMark {
    std::size_t length;
    std::size_t hash;
    bool operator==(const TextMark&) const = default;
  };
  struct SavedText {
    TextMark text;
    std::wstring fileName;
    bool operator==(const SavedText&) const = default;
  };

  bool IsSaved(const std::wstring& text, std::wstring_view fileName);

  CaptureView& view_;
  FolderFunction desktop_;
  std::vector<SavedText> saved_;
  std::vector<TextMark> complainedOf_;  // reported, because there was no desktop folder
};

}  // namespace capture
