// The driver itself, tested on the fixture: with a driver that sees too little every test passes.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "driver/Clipboard.h"
#include "driver/GuiTest.h"
#include "driver/Keys.h"
#include "driver/Paths.h"
#include "driver/Pointer.h"
#include "driver/Screen.h"
#include "driver/Target.h"
#include "driver/Windows.h"

namespace gui {
namespace {

class DriverTest : public GuiTest {};

TEST_F(DriverTest, ReadsTextsAndClassesOfTheFixture) {
  const Fixture fixture("title=見出し edit=あいう\\n button=押す leaf=葉 blank tip=ヒント");
  EXPECT_EQ(fixture["main"].Text(), "見出し");
  EXPECT_EQ(fixture["button"].Text(), "押す");
  EXPECT_EQ(fixture["leaf"].ClassName(), "FixtureLeaf");
  EXPECT_EQ(fixture["leaf"].Text(), "葉");
  EXPECT_EQ(fixture["blank"].Text(), "");
  EXPECT_TRUE(fixture["tip"].IsVisible());
}

TEST_F(DriverTest, PointerStandsOverTheWindowThatIsShown) {
  const Fixture fixture("title=t leaf=葉 static=札");
  for (const char* kind : {"leaf", "static"}) {
    pointer::MoveTo(fixture[kind].Center());
    EXPECT_EQ(WindowFromPoint(fixture[kind].Center()), fixture[kind].Handle());
  }
}

TEST_F(DriverTest, TypesIntoTheControlThatWasClicked) {
  const Fixture fixture("title=t edit");
  fixture["edit"].Click();
  ASSERT_TRUE(
      WaitFor("the edit has the focus", [&](std::string&) { return fixture["edit"].HasFocus(); }));
  keys::Stroke({'K'}, Milliseconds(30));
  keys::Stroke({VK_SHIFT, 'J'}, Milliseconds(30));
  EXPECT_TRUE(fixture["edit"].TextBecomes("kJ"));
}

TEST_F(DriverTest, DoubleClickSelectsAWord) {
  const Fixture fixture("title=t edit=abcdefghijklmnopqrstuvwxyz");
  fixture["edit"].DoubleClick();
  EXPECT_TRUE(WaitFor("a word is selected", [&](std::string& seen) {
    const LRESULT range = SendMessageW(fixture["edit"].Handle(), EM_GETSEL, 0, 0);
    seen = std::to_string(LOWORD(range)) + ".." + std::to_string(HIWORD(range));
    return HIWORD(range) - LOWORD(range) == 26;
  }));
}

TEST_F(DriverTest, PictureShowsTheScreensColors) {
  const Fixture fixture("title=t blank");
  const RECT at = fixture["blank"].Rectangle();
  EXPECT_TRUE(WaitFor("the blank window has its colour", [&](std::string&) {
    const Picture picture = Picture::Of(at);
    return picture.Count(GetSysColor(COLOR_BTNFACE)) ==
           static_cast<std::size_t>(picture.Width()) * static_cast<std::size_t>(picture.Height());
  }));
  EXPECT_TRUE(std::filesystem::exists(SaveScreenshot("driver")));
}

TEST_F(DriverTest, PictureWaitsUntilThePaintingIsOver) {
  const RECT at = {300, 200, 400, 260};
  constexpr COLORREF kLast = RGB(0, 128, 0);
  // In another thread, because this one waits.
  std::atomic<bool> begun = false;
  std::thread painter([&] {
    const HWND window =
        CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"", WS_POPUP | WS_VISIBLE, at.left, at.top, 100,
                        60, nullptr, nullptr, nullptr, nullptr);
    const RECT whole = {0, 0, 100, 60};
    const HDC dc = GetDC(window);
    for (int i = 0; i <= 30; ++i) {
      SetDCBrushColor(dc, i == 30 ? kLast : RGB(i * 8, 0, 0));
      FillRect(dc, &whole, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
      // What was drawn reaches the screen when the thread looks for messages.
      MSG message;
      while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
      begun = true;
      Last(Milliseconds(20));
    }
    Last(Milliseconds(1000));
    ReleaseDC(window, dc);
    DestroyWindow(window);
  });
  EXPECT_TRUE(WaitFor("the painting has begun", [&](std::string&) { return begun.load(); }));
  EXPECT_EQ(PictureWhenPainted(at).Count(kLast), 6000U);
  painter.join();
}

TEST_F(DriverTest, ClipboardKeepsAJapaneseText) {
  clipboard::SetText("写し\r\n二行目");
  EXPECT_EQ(clipboard::Text(), "写し\r\n二行目");
}

TEST_F(DriverTest, FixtureStopsAnsweringOnOrder) {
  const Fixture fixture("title=t edit=x");
  fixture.Hang(Milliseconds(6000));
  EXPECT_TRUE(WaitFor("the fixture does not answer", [&](std::string&) {
    DWORD_PTR answer = 0;
    return SendMessageTimeoutW(fixture["main"].Handle(), WM_NULL, 0, 0, SMTO_NORMAL, 100,
                               &answer) == 0;
  }));
}

TEST_F(DriverTest, FixtureEndsWhenItIsClosed) {
  Fixture fixture("title=t");
  PostMessageW(fixture["main"].Handle(), WM_CLOSE, 0, 0);
  EXPECT_EQ(fixture.Process().WaitForExit(), 0U);
}

TEST_F(DriverTest, FixtureRefusesAnUnknownKind) {
  ChildProcess process(FixtureFile(), "nonsense=1", FixtureFile().parent_path());
  EXPECT_EQ(process.WaitForExit(), 2U);
}

}  // namespace
}  // namespace gui
