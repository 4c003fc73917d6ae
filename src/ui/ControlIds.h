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

  // Main window: centre strip. The class box txtWin0 stands in the top band.
  frCenter = 1021,
  chkDetail = 1022,
  txtCount = 1023,
  txtWin0 = 1024,
  txtWin1 = 1025,
  txtWin2 = 1026,
  txtWin3 = 1027,

  // Main window: splitter.
  imgSplitter = 1031,
  picSplitter = 1032,

  // Main window: foot.
  txtStatus = 1041,
  lblMsg = 1042,
  fr_Help = 1043,
  Help_Url = 1044,
  MyUrl = 1045,
};

}  // namespace ui
