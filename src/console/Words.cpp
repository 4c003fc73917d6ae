#include "console/Words.h"

#include <windows.h>

#include "BuildOptions.h"

namespace console {
namespace {

struct Phrase {
  std::wstring_view japanese;
  std::wstring_view english;

  std::wstring In(Language language) const {
    return std::wstring(language == Language::kJapanese ? japanese : english);
  }
};

// %1 is the option, %2 the other word.
Phrase PhraseOf(Fault fault) {
  switch (fault) {
    case Fault::kUnknown:
      return {L"%1：そのようなオプションはありません", L"%1: no such option"};
    case Fault::kNoValue:
      return {L"%1：値がありません", L"%1: its value is missing"};
    case Fault::kBadValue:
      return {L"%1：値「%2」は使えません", L"%1: the value \"%2\" cannot be used"};
    case Fault::kTwice:
      return {L"%1：2 回指定されています", L"%1: is given twice"};
    case Fault::kNeeds:
      return {L"%1：%2 が必要です", L"%1: needs %2"};
    default:
      return {L"%1：%2 と一緒には使えません", L"%1: cannot be used together with %2"};
  }
}

Phrase PhraseOf(Outcome outcome) {
  switch (outcome) {
    case Outcome::kNothingThere:
      return {L"ここに文字列はありません", L"There is no text there."};
    case Outcome::kNoSuchWindow:
      return {L"そのようなウィンドウはありません", L"There is no such window."};
    case Outcome::kNotAllowed:
      return {L"管理者として実行中のため読み取れません",
              L"Its program runs as administrator and cannot be read."};
    case Outcome::kNoAnswer:
      return {L"応答していないため読み取れません", L"The window does not answer."};
    default:
      return {};
  }
}

std::wstring Filled(std::wstring phrase, const ArgumentFault& fault) {
  std::wstring text;
  for (std::size_t at = 0; at < phrase.size(); ++at) {
    const std::wstring_view rest = std::wstring_view(phrase).substr(at);
    if (rest.starts_with(L"%1")) {
      text += fault.option;
    } else if (rest.starts_with(L"%2")) {
      text += fault.other;
    } else {
      text += phrase[at];
      continue;
    }
    ++at;
  }
  return text;
}

constexpr Phrase kHelp = {
    L"VelmoraText - ウィンドウの文字列を読み取り、標準出力に書きます\r\n"
    L"\r\n"
    L"  VelmoraText [場所] [形式] [その他]\r\n"
    L"\r\n"
    L"場所\r\n"
    L"  --pointer             マウスポインタの位置（既定）\r\n"
    L"  --at X,Y              画面のその点（ピクセル）\r\n"
    L"  --window HANDLE       そのハンドルのウィンドウ（10 進、または x と 16 進）\r\n"
    L"  --title TEXT          タイトルに TEXT を含む、見えている最初のウィンドウ\r\n"
    L"  --control CLASS[:N]   その中の、そのクラスの N 番目の部品\r\n"
    L"\r\n"
    L"形式\r\n"
    L"  （なし）              一覧の行（タブ区切り）。一覧がなければ文字列\r\n"
    L"  --csv                 一覧の行（カンマ区切り）\r\n"
    L"  --json                わかったことすべて（JSON）\r\n"
    L"  --tree                見えている子孫のウィンドウも\r\n"
    L"  --watch               ポインタが止まるたびに JSON を 1 行（Ctrl+C まで）\r\n"
    L"\r\n"
    L"その他\r\n"
    L"  --after SECONDS       その秒数だけ待ってから読む\r\n"
    L"  --timeout SECONDS     応答を待つ秒数（既定は 10）\r\n"
    L"  --most N              一覧は N 行まで\r\n"
    L"  --help, --version\r\n"
    L"\r\n"
    L"終了コード\r\n"
    L"  0 読み取れた   1 文字列がない   2 引数の誤り   3 ウィンドウがない\r\n"
    L"  4 管理者として実行中で読めない   5 応答がない\r\n",
    L"VelmoraText - reads the text of a window and writes it to the standard output\r\n"
    L"\r\n"
    L"  VelmoraText [WHAT] [FORM] [MORE]\r\n"
    L"\r\n"
    L"What\r\n"
    L"  --pointer             where the mouse pointer is (default)\r\n"
    L"  --at X,Y              that point of the screen (pixels)\r\n"
    L"  --window HANDLE       the window of that handle (decimal, or x and hexadecimal)\r\n"
    L"  --title TEXT          the first visible window whose title contains TEXT\r\n"
    L"  --control CLASS[:N]   the Nth control of that class in it\r\n"
    L"\r\n"
    L"Form\r\n"
    L"  (none)                the rows of the list, by tabs; without a list the text\r\n"
    L"  --csv                 the rows of the list, by commas\r\n"
    L"  --json                everything that is known, as JSON\r\n"
    L"  --tree                the visible windows inside, too\r\n"
    L"  --watch               a line of JSON whenever the pointer rests, until Ctrl+C\r\n"
    L"\r\n"
    L"More\r\n"
    L"  --after SECONDS       waits that long before it reads\r\n"
    L"  --timeout SECONDS     how long an answer may take (10)\r\n"
    L"  --most N              at most N rows of a list\r\n"
    L"  --help, --version\r\n"
    L"\r\n"
    L"Exit codes\r\n"
    L"  0 read   1 no text there   2 wrong arguments   3 no such window\r\n"
    L"  4 runs as administrator, cannot be read   5 does not answer\r\n"};

}  // namespace

Language SystemLanguage() {
  return PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_JAPANESE ? Language::kJapanese
                                                                    : Language::kEnglish;
}

std::wstring FaultText(const ArgumentFault& fault, Language language) {
  constexpr Phrase kSeeHelp = {L"（使い方：--help）", L" (see --help)"};
  return Filled(PhraseOf(fault.fault).In(language), fault) + kSeeHelp.In(language);
}

std::wstring OutcomeText(Outcome outcome, Language language) {
  return PhraseOf(outcome).In(language);
}

std::wstring IncompleteText(Language language) {
  constexpr Phrase kIncomplete = {L"一覧には続きがあります", L"The list has more rows."};
  return kIncomplete.In(language);
}

std::wstring CountdownText(std::int32_t seconds, Language language) {
  constexpr Phrase kSeconds = {L" 秒後に読み取ります", L" s until the reading"};
  return std::to_wstring(seconds) + kSeconds.In(language);
}

std::wstring HelpText(Language language) { return kHelp.In(language); }

std::wstring VersionText() {
  return L"VelmoraText " + std::to_wstring(VELMORA_VERSION_MAJOR) + L"." +
         std::to_wstring(VELMORA_VERSION_MINOR) + L"." + std::to_wstring(VELMORA_VERSION_REVISION) +
         L"\r\n";
}

}  // namespace console
