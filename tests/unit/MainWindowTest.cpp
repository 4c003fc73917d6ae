// The main window inside the test's own process, for what cannot be seen from outside.

#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "TemporaryFolder.h"
#include "extract/Win32API_Window.h"
#include "ui/ControlIds.h"
#include "ui/HelpLinks.h"
#include "ui/MainWindowControls.h"
#include "ui/frmQuorvinFromPoint.h"

namespace ui {
namespace {

struct ChildSearch {
  int id;
  HWND found;
};

BOOL CALLBACK FindById(HWND child, LPARAM context) {
  auto& search = *reinterpret_cast<ChildSearch*>(context);
  if (GetDlgCtrlID(child) != search.id) return TRUE;
  search.found = child;
  return FALSE;
}

BOOL CALLBACK FindTips(HWND candidate, LPARAM context) {
  if (Win32API_Window::MyGetClassName(candidate) != TOOLTIPS_CLASSW) return TRUE;
  *reinterpret_cast<HWND*>(context) = candidate;
  return FALSE;
}

class MainWindowTest : public testing::Test {
 protected:
  std::filesystem::path ConfigurationFile() const { return folder_.Path() / "Conf.txt"; }

  void Configure(const std::string& configuration) const {
    std::ofstream(ConfigurationFile(), std::ios::binary) << configuration;
  }

  std::string Configuration() const {
    std::ifstream file(ConfigurationFile(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  void Load(const std::string& configuration, const std::wstring& commandLine = L"") {
    Configure(configuration);
    window_ = std::make_unique<frmQuorvinFromPoint>(
        settings_, state_,
        MainWindowPlan{folder_.Path().wstring(), commandLine, [this] { EndProgram(); }});
    ASSERT_TRUE(window_->Load());
  }

  HWND Control(int id) const {
    ChildSearch search{id, nullptr};
    EnumChildWindows(window_->Handle(), FindById, reinterpret_cast<LPARAM>(&search));
    return search.found;
  }

  // Whether the control itself is shown, also while its window is not.
  bool IsShown(int id) const {
    return (GetWindowLongPtrW(Control(id), GWL_STYLE) & WS_VISIBLE) != 0;
  }

  std::wstring Tip(int id) const {
    HWND tips = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FindTips, reinterpret_cast<LPARAM>(&tips));
    std::array<wchar_t, 1024> text{};
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.hwnd = window_->Handle();
    tool.uId = reinterpret_cast<UINT_PTR>(Control(id));
    tool.lpszText = text.data();
    SendMessageW(tips, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
    return text.data();
  }

  void DoubleClick(int id, WORD notification) {
    SendMessageW(GetParent(Control(id)), WM_COMMAND, MAKEWPARAM(id, notification),
                 reinterpret_cast<LPARAM>(Control(id)));
  }

  bool IsTopmost() const {
    return (GetWindowLongPtrW(window_->Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
  }

  RECT Place(int id) const {
    RECT place{};
    GetWindowRect(Control(id), &place);
    MapWindowPoints(nullptr, window_->Handle(), reinterpret_cast<POINT*>(&place), 2);
    return place;
  }

  void Tick(capture::CaptureTimer timer) {
    SendMessageW(window_->Handle(), WM_TIMER, static_cast<WPARAM>(timer) + 1, 0);
  }

  // Starts a capture with the button, and stops it with the button in its first pump.
  void CaptureForAMoment() {
    const auto button = reinterpret_cast<LPARAM>(Control(cmdGo));
    PostMessageW(window_->Handle(), WM_COMMAND, MAKEWPARAM(cmdGo, BN_CLICKED), button);
    SendMessageW(window_->Handle(), WM_COMMAND, MAKEWPARAM(cmdGo, BN_CLICKED), button);
  }

  bool ConfigurationWasWritten() const { return Configuration().starts_with("form left = "); }

  // Whether the settings were written before the program ended, and never again.
  bool ConfigurationWasWrittenOnce() {
    window_.reset();
    return saved_ && !std::filesystem::exists(ConfigurationFile());
  }

  // The program ends here; in a test the code after it still runs.
  void EndProgram() {
    ++ended_;
    saved_ = ConfigurationWasWritten();
    if (saved_) std::filesystem::remove(ConfigurationFile());
  }

  TemporaryFolder folder_;
  settings::Settings settings_;
  capture::CaptureState state_;
  int ended_ = 0;
  bool saved_ = false;
  std::unique_ptr<frmQuorvinFromPoint> window_;
};

TEST_F(MainWindowTest, EveryControlOfTheTableExistsInItsFrame) {
  Load("");
  for (const ControlRow& row : MainWindowControls()) {
    const HWND control = Control(row.id);
    ASSERT_NE(control, nullptr) << row.id;
    const HWND parent = row.parent == 0 ? window_->Handle() : Control(row.parent);
    EXPECT_EQ(GetParent(control), parent) << row.id;
  }
}

TEST_F(MainWindowTest, ANewDpiScalesEverything) {
  Load("form left=10\nform top=10\nform right=410\nform bottom=410\n");
  ASSERT_EQ(state_.TwipsPerPixelX, 15);
  const RECT buttonBefore = Place(cmdGo);
  const RECT suggested{20, 20, 620, 620};
  SendMessageW(window_->Handle(), WM_DPICHANGED, MAKEWPARAM(144, 144),
               reinterpret_cast<LPARAM>(&suggested));
  EXPECT_EQ(state_.TwipsPerPixelX, 10);
  EXPECT_EQ(state_.TwipsPerPixelY, 10);
  RECT now{};
  GetWindowRect(window_->Handle(), &now);
  EXPECT_TRUE(EqualRect(&now, &suggested));
  const RECT button = Place(cmdGo);
  EXPECT_EQ(button.right - button.left, (buttonBefore.right - buttonBefore.left) * 3 / 2);
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(Control(cmdGo), WM_GETFONT, 0, 0)), sizeof font,
             &font);
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, 144);
  EXPECT_EQ(font.lfHeight, metrics.lfMessageFont.lfHeight);
  // Laid out again: the right edge is kept.
  RECT inner{};
  GetClientRect(window_->Handle(), &inner);
  EXPECT_EQ(Place(chkAutoStop).right, inner.right);
}

TEST_F(MainWindowTest, StaysInFrontWhenTheSettingSaysSo) {
  Load("disp top = 1\n");
  EXPECT_TRUE(IsTopmost());
  window_.reset();
  Load("disp top = 0\n");
  EXPECT_FALSE(IsTopmost());
}

TEST_F(MainWindowTest, ANewSizeLeavesItInFrontOrNot) {
  Load("disp top = 1\n");
  SetWindowPos(window_->Handle(), HWND_NOTOPMOST, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  ASSERT_FALSE(IsTopmost());
  SetWindowPos(window_->Handle(), nullptr, 0, 0, 444, 333,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  RECT inner{};
  GetClientRect(window_->Handle(), &inner);
  ASSERT_EQ(Place(chkAutoStop).right, inner.right);  // laid out again
  EXPECT_FALSE(IsTopmost());
}

TEST_F(MainWindowTest, TheTipOfTheButtonNamesItsAction) {
  Load("");
  EXPECT_EQ(Tip(cmdGo), L"Velmora列取得開始");
}

TEST_F(MainWindowTest, TipsOfLinksShowTheirAddresses) {
  Load("");
  EXPECT_EQ(Tip(Help_Url), HelpAddress(folder_.Path().wstring()));
  EXPECT_EQ(Tip(MyUrl), HomeAddress(folder_.Path().wstring()));
}

TEST_F(MainWindowTest, APanesTipCountsItsCharacters) {
  Load("");
  state_.TopTexts[2] = L"ab あ\r\nc";
  SendMessageW(Control(chkDetail), BM_CLICK, 0, 0);
  SendMessageW(Control(chkDetail), BM_CLICK, 0, 0);
  constexpr std::wstring_view kCounts =
      L"字数:6(4) 改行:1 8byte  全角:1(1) 半角:4(3) 全SP:0 半SP:1 タブ:0";
  EXPECT_EQ(Tip(txtWinTextT0), kCounts);
  // The other member of the pair gets the text, and so the count.
  SendMessageW(Control(chkTurnBack), BM_CLICK, 0, 0);
  EXPECT_EQ(Tip(txtWinTextT1), kCounts);
}

TEST_F(MainWindowTest, OfATextThatWasCutTheTipCountsWhatIsShown) {
  Load("to file = 0\n");
  state_.TopTexts[2].assign(70'000, L'a');
  SendMessageW(Control(chkDetail), BM_CLICK, 0, 0);
  SendMessageW(Control(chkDetail), BM_CLICK, 0, 0);
  // 65,000 of them, and the lines about the cut.
  EXPECT_EQ(Tip(txtWinTextT0),
            L"字数:65084(65079) 改行:4 65099byte  全角:11(10) 半角:65069(65069) 全SP:1 半SP:0 "
            L"タブ:0");
}

TEST_F(MainWindowTest, TextsThatStayAsTheyAreKeepTheirSelection) {
  Load("");
  state_.TopTexts[1] = state_.TopTexts[2] = L"same text";
  state_.BottomTexts[1] = L"one";
  state_.BottomTexts[2] = L"two";
  SendMessageW(Control(chkDetail), BM_CLICK, 0, 0);
  for (const int pane : {txtWinTextT0, txtWinTextB0}) SendMessageW(Control(pane), EM_SETSEL, 1, 3);
  SendMessageW(Control(chkDetail), BM_CLICK, 0, 0);
  EXPECT_EQ(SendMessageW(Control(txtWinTextT0), EM_GETSEL, 0, 0), MAKELRESULT(1, 3));
  EXPECT_EQ(SendMessageW(Control(txtWinTextB0), EM_GETSEL, 0, 0), MAKELRESULT(0, 0));
}

TEST_F(MainWindowTest, PositionLabelNamesTheOtherModeInItsTip) {
  Load("");
  constexpr std::wstring_view kScreen =
      L"マウスポインタ（スクリーン）座標  ダブルクリックでクライアント座標に切り替え";
  constexpr std::wstring_view kClient =
      L"マウスポインタ（クライアント）座標  ダブルクリックでスクリーン座標に切り替え";
  EXPECT_EQ(Tip(lblMousePos), kScreen);
  DoubleClick(lblMousePos, STN_DBLCLK);
  EXPECT_EQ(Tip(lblMousePos), kClient);
  EXPECT_EQ(settings_.mousPos, L"client");
  DoubleClick(lblMousePos, STN_DBLCLK);
  EXPECT_EQ(Tip(lblMousePos), kScreen);
  EXPECT_EQ(settings_.mousPos, L"screen");
}

TEST_F(MainWindowTest, AnyOtherModeSwitchesToTheScreen) {
  Load("mous pos = Client\n");
  DoubleClick(lblMousePos, STN_DBLCLK);
  EXPECT_EQ(settings_.mousPos, L"screen");
}

TEST_F(MainWindowTest, ClosingWhileIdleSavesOnceAndEnds) {
  Load("hint = 1\n");
  SendMessageW(window_->Handle(), WM_CLOSE, 0, 0);
  EXPECT_EQ(ended_, 1);
  EXPECT_TRUE(ConfigurationWasWrittenOnce());
}

TEST_F(MainWindowTest, TheEndTimerSavesOnceAndEnds) {
  Load("hint = 1\n");
  Tick(capture::CaptureTimer::Timer_End);
  EXPECT_EQ(ended_, 1);
  EXPECT_TRUE(ConfigurationWasWrittenOnce());
}

TEST_F(MainWindowTest, ACaptureNeitherReadsNorWritesTheSettings) {
  Load("shiftx = 7\n");
  const std::string edited = "shiftx = 8\n";
  Configure(edited);
  CaptureForAMoment();
  EXPECT_EQ(state_.RunState, L"");
  EXPECT_NE(state_.CaptureStartTick, 0U);
  EXPECT_EQ(settings_.shiftx, 7);
  EXPECT_EQ(Configuration(), edited);
}

TEST_F(MainWindowTest, ClosingDuringACaptureEndsWithoutSaving) {
  Load("hint = 1\n");
  state_.CaptureRunning = true;
  state_.RunState = capture::kGo;
  SendMessageW(window_->Handle(), WM_CLOSE, 0, 0);
  EXPECT_EQ(ended_, 1);
  EXPECT_FALSE(state_.CaptureRunning);
  EXPECT_EQ(state_.RunState, L"Unload");
  EXPECT_TRUE(IsWindow(window_->Handle()));  // the close itself is cancelled
  EXPECT_FALSE(saved_ || ConfigurationWasWritten());
}

TEST_F(MainWindowTest, TheEndOfTheSessionSavesToo) {
  Load("hint = 1\n");
  EXPECT_TRUE(SendMessageW(window_->Handle(), WM_QUERYENDSESSION, 0, 0));
  SendMessageW(window_->Handle(), WM_ENDSESSION, FALSE, 0);
  EXPECT_EQ(ended_, 0);
  SendMessageW(window_->Handle(), WM_ENDSESSION, TRUE, 0);
  EXPECT_EQ(ended_, 1);
  EXPECT_TRUE(ConfigurationWasWrittenOnce());
}

TEST_F(MainWindowTest, MinimisingKeepsTheTopHeight) {
  Load("top height = 1500\nform left=10\nform top=10\nform right=410\nform bottom=510\n");
  ShowWindow(window_->Handle(), SW_MINIMIZE);
  EXPECT_EQ(settings_.topHeight, 1500);
  ShowWindow(window_->Handle(), SW_RESTORE);
  EXPECT_EQ(settings_.topHeight, 1500);
}

TEST_F(MainWindowTest, NoPlaceIsTakenWhileTheLayoutIsHeld) {
  Load("");
  const RECT before = Place(chkAutoStop);
  // A size change during start-up comes before the controls have their final places.
  MainWindowFace face(settings_, state_);
  face.HoldLayout(true);
  face.Form_Resize();
  EXPECT_EQ(face.Geometry(), DesignGeometry());
  EXPECT_EQ(Place(chkAutoStop).right, before.right);
}

TEST_F(MainWindowTest, AnythingButZeroTicksABox) {
  Load("turn back = 5\ndetail = -1\nauto stop = 2\n");
  for (const int id : {chkTurnBack, chkDetail, chkAutoStop}) {
    EXPECT_EQ(BoxValue(Control(id)), 1) << id;
  }
  EXPECT_EQ(settings_.turnBack, 1);
  EXPECT_TRUE(IsShown(txtWinTextT1));
  EXPECT_FALSE(IsShown(txtWinTextT0));
}

TEST_F(MainWindowTest, OnlyAClickMakesASettingZeroOrOne) {
  Load("detail = -1\nauto stop = 2\n");
  EXPECT_EQ(settings_.detail, -1);
  EXPECT_EQ(settings_.autoStop, 2);
  for (const std::int32_t expected : {0, 1}) {
    SendMessageW(Control(chkDetail), BM_CLICK, 0, 0);
    EXPECT_EQ(settings_.detail, expected);
    EXPECT_EQ(settings_.autoStop, expected == 0 ? 2 : 0);
    SendMessageW(Control(chkAutoStop), BM_CLICK, 0, 0);
    EXPECT_EQ(settings_.autoStop, expected);
  }
}

TEST_F(MainWindowTest, LeavingDebugModeTakesEveryMarkAwayAndNamesTheHotKeyAlone) {
  Load("action test = 1\nhotkey = F7\n");
  state_.DebugMode = true;
  SetWindowTextW(window_->Handle(), L"a - debug b - debug - debug");
  DoubleClick(lblMsg, STN_DBLCLK);
  EXPECT_EQ(WindowText(window_->Handle()), L"a b");
  EXPECT_EQ(WindowText(Control(lblStatus)), L"F7で停止");
  EXPECT_EQ(WindowText(Control(lblMsg)), L"F7で停止");
  EXPECT_FALSE(state_.DebugMode);
}

TEST_F(MainWindowTest, TheStartTimerRunsOnce) {
  Load("auto start = 1\n");
  const UINT_PTR timer = static_cast<UINT_PTR>(capture::CaptureTimer::Timer_Go) + 1;
  // The capture is stopped with the button in its first pump.
  PostMessageW(window_->Handle(), WM_COMMAND, MAKEWPARAM(cmdGo, BN_CLICKED),
               reinterpret_cast<LPARAM>(Control(cmdGo)));
  Tick(capture::CaptureTimer::Timer_Go);
  EXPECT_NE(state_.CaptureStartTick, 0U);
  EXPECT_FALSE(KillTimer(window_->Handle(), timer));  // it does not exist any more
}

TEST_F(MainWindowTest, APaneHoldsAsMuchAsItIsGiven) {
  Load("");
  const std::wstring text(70'000, L'長');
  SetWindowTextW(Control(txtWinTextT0), text.c_str());
  EXPECT_EQ(WindowText(Control(txtWinTextT0)), text);
}

TEST_F(MainWindowTest, TheTabKeyVisitsTheControlsFromTopToBottom) {
  Load("");
  std::vector<int> visited;
  HWND at = Control(cmdGo);
  do {
    visited.push_back(GetDlgCtrlID(at));
    at = GetNextDlgTabItem(window_->Handle(), at, FALSE);
  } while (at != Control(cmdGo) && visited.size() < 50);
  EXPECT_EQ(visited, (std::vector<int>{cmdGo, cmdSetting, txtWin0, chkAutoStop, chkTurnBack,
                                       txthWnd, txtWinTextT0, txtWin3, txtWin1, txtWin2, txtCount,
                                       chkDetail, txtWinTextB0, txtStatus, Help_Url, MyUrl}));
}

}  // namespace
}  // namespace ui
