// The choices of a soak: controls to press, numbers to type, lines to write.
#pragma once

#include <initializer_list>

#include "ui/ControlIds.h"

namespace soak {

// Of the main window.
inline constexpr int kToggles[] = {ui::chkDetail, ui::chkTurnBack, ui::chkAutoStop};
inline constexpr int kClicked[] = {ui::txthWnd,      ui::txtWin0,      ui::txtWin1,
                                   ui::txtWin2,      ui::txtWin3,      ui::txtCount,
                                   ui::txtStatus,    ui::txtWinTextT0, ui::txtWinTextT1,
                                   ui::txtWinTextB0, ui::txtWinTextB1};
inline constexpr int kDoubleClicked[] = {ui::lblMousePos,  ui::lblMsg,       ui::txthWnd,
                                         ui::txtWinTextT0, ui::txtWinTextB1, ui::txtWin0};

// Page after page, each after the button that shows it. Without the automatic close, which would
// end the run.
inline constexpr int kPressedSettings[] = {
    // clang-format off
    ui::lblButton0,
    ui::Opt_Clipboard0, ui::Opt_Clipboard1, ui::Opt_Clipboard2, ui::Opt_Clipboard3,
    ui::OptHint0, ui::OptHint1, ui::chkTreeViewIndent,
    ui::OptListview0, ui::OptListview1, ui::OptListview2, ui::chkReadWhole,
    ui::lblButton1, ui::chkDispText,
    ui::lblButton2, ui::ChkAccFromhWnd, ui::OptAct0, ui::OptAct1, ui::OptAct2, ui::OptAct3,
    ui::lblButton3, ui::chkContinue, ui::chkChime, ui::chkShift, ui::chkDispTop, ui::chkToFile,
    ui::chkAutoStart,
    // clang-format on
};

struct ListControl {
  int id;
  int entries;
};
inline constexpr ListControl kListControls[] = {
    {ui::cmbStLevel, 5}, {ui::cmbAccNameMax, 6}, {ui::cmbChildMaxCount, 8}, {ui::cmbAutoStop, 14}};

inline constexpr int kBoxes[] = {ui::txtShift0, ui::txtShift1};
inline constexpr int kNumbers[] = {0, 1, -1, 20, 30, -300, 300, 99999, -99999};

// A key of the settings file and values that users and their editors put there.
struct SettingsLine {
  const char* key;
  std::initializer_list<const char*> values;
};
inline const SettingsLine kLines[] = {
    {"top height", {"1200", "0", "3000", "-5", "2147483647", "x"}},
    {"disp top", {"0", "1"}},
    {"treeview indent", {"0", "1", "-1"}},
    {"listview col", {"0", "1", "2", "7"}},
    {"turn back", {"0", "1", "-1"}},
    {"mous pos", {"screen", "client", "Client", ""}},
    {"win handle", {"dec", "hex", ""}},
    {"enable hot t", {"0", "1"}},
    {"disp text", {"0", "1"}},
    {"start node", {"0", "4", "-3", "999999999999"}},
    {"auto start", {"0", "1"}},
    {"clipboard", {"0", "1", "2", "3", "9"}},
    {"hint", {"0", "1", "2"}},
    {"auto stop", {"0", "0", "1"}},
    {"auto stop time", {"0", "2", "60", "-1", "2147483647"}},
    {"chime", {"0", "1"}},
    {"chime file", {"chimes.wav", "", "\\\\.\\nul", "音.wav"}},
    {"detail", {"0", "1"}},
    {"shift", {"0", "0", "1"}},
    {"shiftx", {"20", "-20", "2147483647", "0"}},
    {"shifty", {"30", "-30", "-2147483648", "0"}},
    {"continue", {"0", "0", "1"}},
    {"parent & children", {"0", "1"}},
    {"parent & children max", {"10", "0", "1000", "-1"}},
    {"accname max", {"50", "0", "-7", "100000"}},
    {"from hwnd", {"0", "1"}},
    {"action test", {"0", "1", "2", "3", "4"}},
    {"html tag text length", {"50", "0", "-1"}},
    {"accvalue text", {"edit,DirectUIHWND", "", ",,,", "表"}},
    {"read whole", {"0", "1", "1"}},
    {"setting no", {"0", "1", "2", "3", "8", "-1"}},
    {"setting left", {"1500", "12900", "-99999", "99999"}},
    {"setting top", {"1500", "300", "-99999", "99999"}},
};

inline constexpr const char* kHotKeyWords[] = {"",   "PAUSE/BREAK", "ESC", "F1",  "F2",
                                               "F3", "F4",          "F5",  "F6",  "F7",
                                               "F8", "F9",          "F10", "F11", "F12"};

// Entries of the hot-key list.
inline constexpr int kHotKeys = 29;

}  // namespace soak
