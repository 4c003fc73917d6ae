// Every control's number, under the control's own name. Code and GUI tests share this list; a
// number is never reused, so that scripts which address a control by number keep working.
#pragma once

namespace ui {

enum ControlId : int {
  // Main window: the two panes, member 0 scrolls sideways, member 1 wraps.
  txtWinTextT0 = 1001,
  txtWinTextT1 = 1002,
  txtWinTextB0 = 1003,
  txtWinTextB1 = 1004,

  // Main window: top band.
  cmdGo = 1011,
  cmdSetting = 1012,
  chkAutoStop = 1013,
  chkTurnBack = 1014,
  lblAutoStop = 1015,
  lblStatus = 1016,
  fr_Mous = 1017,
  lblMousePos = 1018,
  txthWnd = 1019,

  // Main window: centre strip. The class box txtWin0 is in the top band.
  frCenter = 1021,
  chkDetail = 1022,
  txtCount = 1023,
  txtWin0 = 1024,
  txtWin1 = 1025,
  txtWin2 = 1026,
  txtWin3 = 1027,
  lblTextKind = 1028,
  lblListKind = 1029,

  // Main window: splitter.
  imgSplitter = 1031,
  picSplitter = 1032,

  // Main window: foot.
  txtStatus = 1041,
  lblMsg = 1042,
  fr_Help = 1043,
  Help_Url = 1044,
  MyUrl = 1045,

  // Settings dialog: the pages, their buttons, and what is below them.
  FrList0 = 2001,
  FrList1 = 2002,
  FrList2 = 2003,
  FrList3 = 2004,
  lblButton0 = 2011,
  lblButton1 = 2012,
  lblButton2 = 2013,
  lblButton3 = 2014,
  cmdClose = 2021,

  // Settings dialog, page 0: reading the various controls.
  frClipboard = 2101,
  Opt_Clipboard0 = 2102,
  Opt_Clipboard1 = 2103,
  Opt_Clipboard2 = 2104,
  Opt_Clipboard3 = 2105,
  frHint = 2111,
  OptHint0 = 2112,
  OptHint1 = 2113,
  frTreeView = 2121,
  chkTreeViewIndent = 2122,
  frListview = 2131,
  OptListview0 = 2132,
  OptListview1 = 2133,
  OptListview2 = 2134,
  chkReadWhole = 2141,

  // Settings dialog, page 1: HTML documents.
  chkDispText = 2201,
  lblStLevel = 2202,
  cmbStLevel = 2203,

  // Settings dialog, page 2: accessible objects.
  lblAccNameMax = 2301,
  cmbAccNameMax = 2302,
  lblChildMaxCount = 2303,
  cmbChildMaxCount = 2304,
  ChkAccFromhWnd = 2305,
  frAct = 2311,
  OptAct0 = 2312,
  OptAct1 = 2313,
  OptAct2 = 2314,
  OptAct3 = 2315,

  // Settings dialog, page 3: everything else.
  chkContinue = 2401,
  lblAutoStopTime = 2411,
  cmbAutoStop = 2412,
  lblAutoStopNote = 2413,
  chkAutoClose = 2414,
  chkChime = 2415,
  chkShift = 2421,
  frShift = 2422,
  lblShift0 = 2423,
  txtShift0 = 2424,
  lblShift1 = 2425,
  txtShift1 = 2426,
  chkDispTop = 2431,
  chkToFile = 2432,
  chkAutoStart = 2433,
  cmdHotKey = 2441,
  lblHotKey = 2442,

  // Hot-key dialog.
  lblHotKeyName = 3001,
  cmbHotKey = 3002,
  chkEnableHotT = 3003,
  cmdClose0 = 3011,
  cmdClose1 = 3012,
};

}  // namespace ui
