// How a text gets into a pane: cut when it is over-long, and then saved whole when the user wants
// that.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "capture/CaptureState.h"
#include "capture/CaptureView.h"
#include "settings/Settings.h"

namespace capture {

// Characters from which on a text is over-long, and characters of it that are then shown.
constexpr std::size_t kOverlong = 65'535;
constexpr std::size_t kShownOfOverlong = 65'000;

// The file on the desktop for the whole of an over-long text. Both panes save there, and the last
// one stays: users look for it under this name.
constexpr std::wstring_view kOverflowFile = L"文字数オーバー上段(Velmora).txt";

// What the pane shows instead of an over-long text. savedAs is the name of the file on the desktop
// that holds the whole text; empty when there is none.
std::wstring CutText(std::wstring_view text, std::wstring_view savedAs);

using FolderFunction = std::function<std::wstring()>;

// The user's desktop folder.
std::wstring DesktopFolder();

// Puts text into pane. An over-long one is cut, after being written whole to fileName in the
// desktop folder when toFile is 1. When that folder is no directory, says so in a message box and
// leaves the pane as it was; when writing fails, leaves it silently.
void PutPaneText(CaptureView& view, ViewText pane, const std::wstring& text, std::int32_t toFile,
                 std::wstring_view fileName, const FolderFunction& desktop = DesktopFolder);

// Indexes into TopTexts and BottomTexts.
struct PaneChoice {
  std::size_t top;
  std::size_t bottom;
};

// Which texts the panes show. fromDocument: the texts came from a browser document. A setting
// other than 0 counts as 1.
PaneChoice ChoosePanes(std::int32_t detail, std::int32_t dispText, bool fromDocument);

// Shows in both panes what the settings choose of the texts that were read.
void RedisplayPanes(const CaptureState& state, const settings::Settings& settings,
                    CaptureView& view);

}  // namespace capture
