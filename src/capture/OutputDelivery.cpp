#include "capture/OutputDelivery.h"

#include "platform/API_Shell.h"
#include "platform/DiskFile.h"
#include "platform/ErrorReport.h"
#include "platform/TextCodec.h"
#include "settings/ConfigText.h"

namespace capture {
namespace {

constexpr std::wstring_view kCrLf = L"\r\n";
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

void PutPaneText(CaptureView& view, ViewText pane, const std::wstring& text, std::int32_t toFile,
                 std::wstring_view fileName, const FolderFunction& desktop) {
  if (text.size() < kOverlong) {
    view.SetText(pane, text);
    return;
  }
  if (toFile != 1) {
    view.SetText(pane, CutText(text, {}));
    return;
  }
  const std::wstring folder = desktop();
  if (!platform::IsDirectory(folder)) {
    ReportMissingDesktop(folder);
    return;
  }
  if (WriteWhole(folder + L"\\" + std::wstring(fileName), text))
    view.SetText(pane, CutText(text, fileName));
}

PaneChoice ChoosePanes(std::int32_t detail, std::int32_t dispText, bool fromDocument) {
  const std::size_t detailed = detail != 0 ? 1 : 0;
  const std::size_t asText = fromDocument && dispText != 0 ? 1 : 0;
  return {2 - detailed, (1 - detailed) * asText + (2 - detailed)};
}

void RedisplayPanes(const CaptureState& state, const settings::Settings& settings,
                    CaptureView& view) {
  const bool fromDocument = settings::LeadingNumber(state.BottomTexts[0]) == 1;
  const PaneChoice choice = ChoosePanes(settings.detail, settings.dispText, fromDocument);
  PutPaneText(view, ViewText::TopPane, state.TopTexts[choice.top], settings.toFile, kOverflowFile);
  PutPaneText(view, ViewText::BottomPane, state.BottomTexts[choice.bottom], settings.toFile,
              kOverflowFile);
}

}  // namespace capture
