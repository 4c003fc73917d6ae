#include "ui/MainWindowControls.h"

#include <commctrl.h>

#include <algorithm>

#include "ui/ControlIds.h"
#include "ui/SplitterGrip.h"

namespace ui {
namespace {

constexpr DWORD kShown = WS_VISIBLE;
constexpr DWORD kTabStop = WS_VISIBLE | WS_TABSTOP;
constexpr DWORD kButton = kTabStop | BS_PUSHBUTTON;
constexpr DWORD kCheckBox = kTabStop | BS_AUTOCHECKBOX;
// A label takes clicks and tool tips only with SS_NOTIFY; hot-key names hold no access keys.
constexpr DWORD kLabel = kShown | SS_LEFT | SS_NOTIFY | SS_NOPREFIX;
constexpr DWORD kLineLabel = kLabel | SS_LEFTNOWORDWRAP | SS_ENDELLIPSIS;
constexpr DWORD kRightLabel = kLabel | SS_RIGHT | SS_ENDELLIPSIS;
constexpr DWORD kBox = kTabStop | WS_BORDER | ES_READONLY | ES_AUTOHSCROLL;
constexpr DWORD kWrapPane = WS_TABSTOP | WS_BORDER | WS_VSCROLL | ES_READONLY | ES_MULTILINE |
                            ES_AUTOVSCROLL | ES_NOHIDESEL;
constexpr DWORD kScrollPane = kWrapPane | WS_HSCROLL | ES_AUTOHSCROLL;

constexpr const wchar_t* kStatic = L"STATIC";
constexpr const wchar_t* kEdit = L"EDIT";
constexpr const wchar_t* kButtonClass = L"BUTTON";

// Twips. The band above the top pane is three rows high, each with a control at the right edge; it
// is kept low, because the window may be as low as 3150.
constexpr ControlRow kRows[] = {
    {cmdGo, 0, kButtonClass, kButton, L"開始", {30, 30, 690, 345}},
    {cmdSetting, 0, kButtonClass, kButton, L"設定", {30, 390, 690, 345}},
    {lblAutoStop, 0, kStatic, kLabel | SS_CENTER, L"", {780, 15, 225, 225}},
    {txtWin0, 0, kEdit, kBox, L"", {1020, 0, 2160, 255}},
    {chkAutoStop, 0, kButtonClass, kCheckBox, L"自動停止", {4500, 0, 1140, 240}},
    {chkTurnBack, 0, kButtonClass, kCheckBox, L"折り返し", {4500, 240, 1140, 240}},
    {lblStatus, 0, kStatic, kLabel | SS_LEFTNOWORDWRAP, L"", {780, 270, 2430, 480}},
    {fr_Mous, 0, kFrameClass, kShown, L"", {3240, 480, 2400, 270}},
    {lblMousePos, fr_Mous, kStatic, kLabel | SS_RIGHT, L"", {0, 15, 1035, 240}},
    {txthWnd, fr_Mous, kEdit, kBox, L"", {1065, 0, 1335, 255}},
    {txtWinTextT0, 0, kEdit, kScrollPane, L"", {30, 765, 5610, 1200}},
    {txtWinTextT1, 0, kEdit, kWrapPane, L"", {30, 765, 5610, 1200}},
    {frCenter, 0, kFrameClass, kShown, L"", {30, 1965, 5610, 555}},
    {lblTextKind, frCenter, kStatic, kLineLabel, L"", {0, 30, 1440, 240}},
    {txtWin3, frCenter, kEdit, kBox, L"", {1470, 15, 690, 255}},
    {txtWin1, frCenter, kEdit, kBox, L"", {2190, 15, 690, 255}},
    {txtWin2, frCenter, kEdit, kBox, L"", {2910, 15, 690, 255}},
    {lblListKind, frCenter, kStatic, kRightLabel, L"", {2160, 300, 1440, 240}},
    {txtCount, frCenter, kEdit, kBox, L"", {3660, 285, 1140, 255}},
    {chkDetail, frCenter, kButtonClass, kCheckBox, L"詳細", {4860, 15, 750, 255}},
    {imgSplitter, 0, kSplitterClass, kShown, L"", {30, 2520, 5610, 60}},
    {txtWinTextB0, 0, kEdit, kScrollPane, L"", {30, 2580, 5610, 930}},
    {txtWinTextB1, 0, kEdit, kWrapPane, L"", {30, 2580, 5610, 930}},
    {txtStatus, 0, kEdit, kBox, L"", {60, 3510, 5580, 255}},
    {lblMsg, 0, kStatic, kLineLabel, L"", {60, 3780, 3420, 225}},
    {fr_Help, 0, kFrameClass, kShown, L"", {3540, 3765, 2100, 240}},
    {Help_Url, fr_Help, WC_LINK, kTabStop, L"<a>ヘルプ</a>", {0, 15, 720, 225}},
    {MyUrl, fr_Help, WC_LINK, kTabStop, L"<a>ホームページ</a>", {780, 15, 1320, 225}},
    {picSplitter, 0, kStatic, SS_GRAYRECT, L"", {30, 2520, 5610, 30}},
};

using G = MainWindowGeometry;

constexpr MovedControl kMoved[] = {
    {chkAutoStop, &G::chkAutoStop}, {chkTurnBack, &G::chkTurnBack}, {fr_Mous, &G::fr_Mous},
    {lblStatus, &G::lblStatus},     {fr_Help, &G::fr_Help},         {lblMsg, &G::lblMsg},
    {txtStatus, &G::txtStatus},     {frCenter, &G::frCenter},       {imgSplitter, &G::imgSplitter},
    {picSplitter, &G::picSplitter}, {chkDetail, &G::chkDetail},     {txtCount, &G::txtCount},
    {txtWin1, &G::txtWin1},         {txtWin2, &G::txtWin2},         {lblListKind, &G::lblListKind},
};

const TwipsRect& DesignPlace(int id) {
  return std::ranges::find(kRows, id, &ControlRow::id)->place;
}

}  // namespace

std::span<const ControlRow> MainWindowControls() { return kRows; }

std::span<const MovedControl> MovedControls() { return kMoved; }

MainWindowGeometry DesignGeometry() {
  MainWindowGeometry geometry;
  for (const MovedControl& moved : kMoved) geometry.*moved.place = DesignPlace(moved.id);
  geometry.T = DesignPlace(txtWinTextT0);
  geometry.B = DesignPlace(txtWinTextB0);
  return geometry;
}

int TopPaneId(int member) { return member == 0 ? txtWinTextT0 : txtWinTextT1; }

int BottomPaneId(int member) { return member == 0 ? txtWinTextB0 : txtWinTextB1; }

}  // namespace ui
