#include "ui/SettingControls.h"

#include <algorithm>

#include "ui/ControlIds.h"

namespace ui {
namespace {

using S = settings::Settings;
using Field = std::int32_t settings::Settings::*;
using Text = const wchar_t*;
using Items = std::span<const Text>;

constexpr DWORD kTabStop = WS_VISIBLE | WS_TABSTOP;
constexpr DWORD kPage = BS_GROUPBOX | WS_GROUP;  // the chosen one is shown
constexpr DWORD kGroupBox = WS_VISIBLE | kPage;
constexpr DWORD kCheck = kTabStop | BS_AUTOCHECKBOX | BS_MULTILINE | BS_TOP;
constexpr DWORD kLabel = WS_VISIBLE | SS_LEFT | SS_NOPREFIX;
constexpr DWORD kShownKey = kLabel | SS_CENTER | SS_CENTERIMAGE | SS_SUNKEN;
constexpr DWORD kNumberBox = kTabStop | WS_BORDER | ES_AUTOHSCROLL;
constexpr DWORD kChosenList = kTabStop | WS_VSCROLL | CBS_DROPDOWNLIST;
constexpr DWORD kTypedList = kTabStop | WS_VSCROLL | CBS_DROPDOWN | CBS_AUTOHSCROLL;

constexpr Text kButton = L"BUTTON";

// A drop-down list's height counts its open list too.
constexpr std::int32_t kOpen = 2700;
constexpr TwipsRect kPagePlace{75, 480, 4335, 5460};

constexpr SettingControl PageButton(int id, Text caption, std::int32_t left, std::int32_t width) {
  const DWORD style = kTabStop | BS_OWNERDRAW | (id == lblButton0 ? WS_GROUP : 0);
  return {{id, 0, kButton, style, caption, {left, 75, width, 345}}};
}

constexpr SettingControl Page(int id, Text title) {
  return {{id, 0, kGroupClass, kPage, title, kPagePlace}};
}

constexpr SettingControl GroupBox(int id, int page, Text title, std::int32_t top, int rows,
                                  Text tip = nullptr) {
  return {{id, page, kGroupClass, kGroupBox, title, {150, top, 4035, 330 + 285 * rows}}, tip};
}

// The options of a group are placed below each other, in the order of their values.
constexpr SettingControl Option(int id, int group, Text caption, Field setting, std::int32_t value,
                                Text tip = nullptr) {
  const DWORD style = kTabStop | BS_AUTORADIOBUTTON | (value == 0 ? WS_GROUP : 0);
  const TwipsRect place{150, 255 + 285 * value, 3735, 270};
  return {{id, group, kButton, style, caption, place}, tip, Holds::Option, setting, value};
}

constexpr SettingControl Check(int id, int parent, Text caption, const TwipsRect& place,
                               Field setting, Text tip = nullptr) {
  return {{id, parent, kButton, kCheck, caption, place}, tip, Holds::Box, setting};
}

constexpr SettingControl Label(int id, int parent, Text caption, const TwipsRect& place) {
  return {{id, parent, L"STATIC", kLabel, caption, place}};
}

constexpr SettingControl NumberBox(int id, int parent, const TwipsRect& place, Field setting) {
  return {.row = {id, parent, L"EDIT", kNumberBox, L"", place},
          .holds = Holds::TypedNumber,
          .setting = setting,
          .typing = Typing::DigitsAndMinus};
}

constexpr SettingControl NumberList(int id, int parent, const TwipsRect& place, Field setting,
                                    std::int32_t width, Items items, Typing typing,
                                    Text tip = nullptr) {
  return {.row = {id, parent, L"COMBOBOX", kTypedList, L"", place},
          .toolTip = tip,
          .holds = Holds::ListNumber,
          .setting = setting,
          .number = width,
          .items = items,
          .typing = typing};
}

constexpr SettingControl IndexList(int id, int parent, const TwipsRect& place, Field setting,
                                   Items items) {
  return {.row = {id, parent, L"COMBOBOX", kChosenList, L"", place},
          .holds = Holds::ListIndex,
          .setting = setting,
          .items = items};
}

constexpr SettingControl Button(int id, int parent, Text caption, const TwipsRect& place,
                                Text tip = nullptr) {
  return {{id, parent, kButton, kTabStop | BS_PUSHBUTTON | WS_GROUP, caption, place}, tip};
}

// The empty entry switches the automatic stop off.
constexpr Text kSeconds[] = {L"",   L" 1", L" 2", L" 3", L" 4", L" 5", L" 7",
                             L"10", L"15", L"20", L"30", L"40", L"50", L"60"};
constexpr Text kLevels[] = {L"現在の階層", L"一つ上から", L"二つ上から", L"三つ上から",
                            L"四つ上から"};
constexpr Text kNameLengths[] = {L"  10", L"  20", L"  30", L"  50", L"  70", L" 100"};
constexpr Text kChildCounts[] = {L"   0", L"   5", L"  10", L"  50",
                                 L" 100", L" 500", L"1000", L"9999"};

// Heights leave the room that the broader message fonts of newer systems need.
constexpr SettingControl kControls[] = {
    PageButton(lblButton0, L"コントロール", 75, 1350),
    PageButton(lblButton1, L"HTML", 1425, 930),
    PageButton(lblButton2, L"MSAA", 2355, 930),
    PageButton(lblButton3, L"その他", 3285, 1125),

    Page(FrList0, L"各種コントロール情報取得設定"),
    GroupBox(frClipboard, FrList0, L"クリップボード転送", 330, 4),
    Option(Opt_Clipboard0, frClipboard, L"無し", &S::clipboard, 0, L"コピー操作以外は転送無し"),
    Option(Opt_Clipboard1, frClipboard, L"クリック時", &S::clipboard, 1,
           L"クリック時に対象コントロールの全文字列をクリップボードに転送"),
    Option(Opt_Clipboard2, frClipboard, L"停止時 上段テキスト", &S::clipboard, 2,
           L"[停止]時に自動的に上段テキストボックスの全文字列をクリップボードに転送"),
    Option(Opt_Clipboard3, frClipboard, L"停止時 下段テキスト", &S::clipboard, 3,
           L"[停止]時に自動的に下段テキストボックスの全文字列をクリップボードに転送"),
    GroupBox(frHint, FrList0, L"ヒントテキスト", 1890, 2, L"ポイントした時に表示される文字列"),
    Option(OptHint0, frHint, L"StatusBar", &S::hint, 0, L"ステータスバーの文字列"),
    Option(OptHint1, frHint, L"ToolTips", &S::hint, 1, L"ツールチップ（ToolTips）の表示文字列"),
    GroupBox(frTreeView, FrList0, L"ツリービュー", 2880, 1),
    Check(chkTreeViewIndent, frTreeView, L"インデント表示", {150, 255, 3735, 270},
          &S::treeviewIndent, L"チェック時：ツリービューを字下げ表示"),
    GroupBox(frListview, FrList0, L"リストビュー", 3585, 3),
    Option(OptListview0, frListview, L"タブ区切り", &S::listviewCol, 0,
           L"エクセルに直接貼り付けることが出来ます"),
    Option(OptListview1, frListview, L"カンマ区切り", &S::listviewCol, 1,
           L"CSVファイルとして利用可"),
    Option(OptListview2, frListview, L"１列目のみ", &S::listviewCol, 2,
           L"複数列の場合、2列目以降を無視"),
    Check(chkReadWhole, FrList0, L"省略せずに読む", {300, 4920, 3735, 270}, &S::readWhole,
          L"長い文字列や大きなリストビューを、途中で切らずに最後まで読み取ります（時間がかかること"
          L"があります）"),

    Page(FrList1, L"HTMLドキュメント"),
    Check(chkDispText, FrList1, L"テキスト表示", {150, 345, 4035, 270}, &S::dispText,
          L"既定はHTMLソース表示"),
    Label(lblStLevel, FrList1, L"表示開始階層", {150, 810, 1350, 255}),
    IndexList(cmbStLevel, FrList1, {1560, 765, 1650, kOpen}, &S::startNode, kLevels),

    Page(FrList2, L"MSAA(MS Active Accessibility) 設定"),
    Label(lblAccNameMax, FrList2, L"accNameの取得最大長", {150, 390, 3075, 255}),
    NumberList(cmbAccNameMax, FrList2, {3270, 345, 915, kOpen}, &S::accnameMax, 4, kNameLengths,
               Typing::Digits),
    // Misspelt. Odd, and stays: docs/ODDITIES.md.
    Label(lblChildMaxCount, FrList2, L"AccessiblityでのChild最大取得個数", {150, 795, 3075, 255}),
    NumberList(cmbChildMaxCount, FrList2, {3270, 750, 915, kOpen}, &S::parentChildrenMax, 4,
               kChildCounts, Typing::Nothing,
               L"MSAA(Microsoft Active Accessibility)でのParent/Child最大取得個数"),
    Check(ChkAccFromhWnd, FrList2, L"ウィンドウハンドルから取得", {150, 1200, 4035, 270},
          &S::fromHwnd, L"情報をポイント位置のウィンドウハンドルから取得"),
    GroupBox(frAct, FrList2, L"Action Test　　Ctrl キー", 1620, 4),
    Option(OptAct0, frAct, L"None", &S::actionTest, 0),
    Option(OptAct1, frAct, L"AccDoDefaultAction", &S::actionTest, 1),
    Option(OptAct2, frAct, L"AccSelect 1", &S::actionTest, 2),
    Option(OptAct3, frAct, L"AccSelect 2", &S::actionTest, 3),

    Page(FrList3, L"その他"),
    Check(chkContinue, FrList3, L"コピー＆継続 - 上段テキストをクリップボード転送＆継続実行",
          {150, 345, 4035, 510}, &S::continueCapture,
          L"ホットキー押下時に、上段文字列をクリップボードに転送後、連続実行"),
    Label(lblAutoStopTime, FrList3, L"自動停止", {150, 1035, 810, 255}),
    NumberList(cmbAutoStop, FrList3, {990, 990, 810, kOpen}, &S::autoStopTime, 2, kSeconds,
               Typing::Digits,
               L"マウスの動きが止まってから指定秒後に自動停止（空白は自動停止無し）"),
    Check(chkAutoClose, FrList3, L"自動終了", {1965, 1020, 1080, 270}, &S::autoClose,
          L"自動で処理を終了します"),
    Check(chkChime, FrList3, L"サウンド", {3105, 1020, 1080, 270}, &S::chime, L"停止時にサウンド"),
    Label(lblAutoStopNote, FrList3, L"マウス移動が無くなったら、指定秒後に自動停止",
          {150, 1365, 4035, 450}),
    Check(chkShift, FrList3, L"目標位置をシフト", {150, 1860, 4035, 270}, &S::shift),
    {{frShift, FrList3, kFrameClass, WS_GROUP, L"", {420, 2175, 3765, 690}}},
    Label(lblShift0, frShift, L"X軸（右）方向", {0, 45, 1500, 255}),
    NumberBox(txtShift0, frShift, {1530, 30, 780, 255}, &S::shiftx),
    Label(lblShift1, frShift, L"Y軸（下）方向", {0, 390, 1500, 255}),
    NumberBox(txtShift1, frShift, {1530, 375, 780, 255}, &S::shifty),
    Check(chkDispTop, FrList3, L"最前面表示", {150, 3000, 4035, 270}, &S::dispTop,
          L"ウィンドウを表示最前面"),
    Check(chkToFile, FrList3, L"制限文字数超過時にファイル出力", {150, 3315, 4035, 270}, &S::toFile,
          L"取得文字数が65000文字を超える時はデスクトップにテキストファイルとして出力する"),
    Check(chkAutoStart, FrList3, L"起動時に開始", {150, 3630, 4035, 270}, &S::autoStart,
          L"起動後に即、情報取得を開始します。"),
    Button(cmdHotKey, FrList3, L"ホットキーの設定/変更", {150, 4065, 2130, 375},
           L"ホットキーの変更"),
    {{lblHotKey, FrList3, L"STATIC", kShownKey, L"", {2355, 4065, 1830, 375}}},

    Button(cmdClose, 0, L"閉じる", {3195, 6225, 1140, 375}),
};

}  // namespace

std::span<const SettingControl> SettingControls() { return kControls; }

const SettingControl* FindSettingControl(int id) {
  const auto* const found = std::ranges::find_if(
      kControls, [id](const SettingControl& control) { return control.row.id == id; });
  return found == std::end(kControls) ? nullptr : found;
}

}  // namespace ui
