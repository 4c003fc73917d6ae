#include "capture/OutputDelivery.h"

#include <algorithm>
#include <utility>

#include "platform/API_Shell.h"
#include "platform/DiskFile.h"
#include "platform/ErrorReport.h"
#include "platform/LineEnd.h"
#include "platform/NumberText.h"
#include "platform/TextCodec.h"

namespace capture {
namespace {

using platform::kCrLf;
constexpr std::wstring_view kRule = L"--------------------------------";

void ReportMissingDesktop(const std::wstring& desktop) {
  platform::ShowMessage(
      L"ファイル出力先（デスクトップ）パスが無効です！ - 制限文字数超過時\r\n" + desktop +
          L"\r\n\r\nファイル出力を停止するには、\r\n"
          L"[設定]→[その他]→[制限文字数超過時にファイル出力] をオフにして下さい。",
      L"ファイル出力エラー");
}

// Returns whether the whole text is on the disk.
bool WriteWhole(const std::wstring& path, const std::wstring& text) {
  platform::NewFile file(path);
  return file.Write(platform::ToAnsi(text)) && file.Write("\r\n");
}

PaneChoice Choice(const CaptureState& state, const settings::Settings& settings) {
  const bool fromDocument = platform::LeadingNumber(state.BottomTexts[0]) == 1;
  return ChoosePanes(settings.detail, settings.dispText, fromDocument);
}

}  // namespace

std::wstring CutText(std::wstring_view text, std::wstring_view savedAs) {
  std::wstring shown(text.substr(0, kShownOfOverlong));
  shown.append(kCrLf).append(kCrLf).append(kRule).append(kCrLf);
  shown.append(L"文字数オーバー　65000文字迄");
  if (!savedAs.empty()) {
    shown.append(kCrLf).append(L"デスクトップの「").append(savedAs).append(L"」に");
    shown.append(kCrLf).append(L"保存しました！");
  }
  shown.append(kCrLf).append(kRule);
  return shown;
}

std::wstring DesktopFolder() { return API_Shell::FolderPath(API_Shell::kDesktopFolder); }

PaneDelivery::PaneDelivery(CaptureView& view, FolderFunction desktop)
    : view_(view), desktop_(std::move(desktop)) {}

bool PaneDelivery::IsSaved(const std::wstring& text, std::wstring_view fileName) {
  const TextMark mark{text.size(), std::hash<std::wstring>()(text)};
  const SavedText entry{mark, std::wstring(fileName)};
  if (std::ranges::find(saved_, entry) != saved_.end()) return true;
  const std::wstring folder = desktop_();
  if (!platform::IsDirectory(folder)) {
    if (std::ranges::find(complainedOf_, mark) != complainedOf_.end()) return false;
    complainedOf_.push_back(mark);
    ReportMissingDesktop(folder);
    return false;
  }
  if (!WriteWhole(folder + L"\\" + entry.fileName, text)) return false;
  saved_.push_back(entry);
  return true;
}

void PaneDelivery::PutPaneText(ViewText pane, const std::wstring& text, std::int32_t toFile,
                               std::wstring_view fileName) {
  if (text.size() < kOverlong) {
    view_.SetText(pane, text);
  } else if (toFile != 1) {
    view_.SetText(pane, CutText(text, {}));
  } else if (IsSaved(text, fileName)) {
    view_.SetText(pane, CutText(text, fileName));
  }
}

PaneChoice ChoosePanes(std::int32_t detail, std::int32_t dispText, bool fromDocument) {
  const std::size_t detailed = detail != 0 ? 1 : 0;
  const std::size_t asText = fromDocument && dispText != 0 ? 1 : 0;
  return {2 - detailed, (1 - detailed) * asText + (2 - detailed)};
}

void PaneDelivery::RedisplayPanes(const CaptureState& state, const settings::Settings& settings) {
  const PaneChoice choice = Choice(state, settings);
  PutPaneText(ViewText::TopPane, state.TopTexts[choice.top], settings.toFile, kTopOverflowFile);
  PutPaneText(ViewText::BottomPane, state.BottomTexts[choice.bottom], settings.toFile,
              kTopOverflowFile);  // odd, and stays: docs/ODDITIES.md
}

void PaneDelivery::RefreshBottomPane(const CaptureState& state,
                                     const settings::Settings& settings) {
  PutPaneText(ViewText::BottomPane, state.BottomTexts[Choice(state, settings).bottom],
              settings.toFile, kBottomOverflowFile);
}

}  // namespace capture
