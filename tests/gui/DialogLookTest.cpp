// What the dialogs look like, at every resolution.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "DialogWindow.h"
#include "LayoutCheck.h"
#include "bed/Needs.h"
#include "driver/GuiTest.h"
#include "driver/Resolution.h"
#include "driver/Screen.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

using testing::IsEmpty;

class DialogLookTest : public GuiTest, public testing::WithParamInterface<UINT> {
 protected:
  static void ExpectTidy(const DialogWindow& dialog) {
    EXPECT_THAT(Overlaps(dialog.Window()), IsEmpty());
    EXPECT_THAT(Protruding(dialog.Window()), IsEmpty());
    EXPECT_THAT(ClippedTexts(dialog.Window(), GetParam()), IsEmpty());
  }

  static bool IsOnScreen(const DialogWindow& dialog) {
    const RECT at = dialog.Window().Rectangle();
    return at.left >= 0 && at.top >= 0 && at.right <= GetSystemMetrics(SM_CXSCREEN) &&
           at.bottom <= GetSystemMetrics(SM_CYSCREEN);
  }
};

TEST_P(DialogLookTest, EveryPageShowsEverything) {
  NEEDS(bed::ResolutionAtOnce());
  const Resolution resolution(GetParam());
  const Program program({.conf = "auto stop time = 5\nshift = 1\n"
                                 "hotkey = Shift+PAUSE/BREAK\n"});
  const DialogWindow settings = OpenSettings(program);
  for (int page = 0; page < 4; ++page) {
    settings[ui::lblButton0 + page].PressButton();
    ASSERT_TRUE(WaitFor("the page is shown",
                        [&](std::string&) { return settings[ui::FrList0 + page].IsVisible(); }));
    ExpectTidy(settings);
    SaveScreenshotWhenPainted("setting-" + std::to_string(page) + "-" + std::to_string(GetParam()));
  }
  EXPECT_TRUE(IsOnScreen(settings));
}

TEST_P(DialogLookTest, HotKeyDialogShowsEverything) {
  NEEDS(bed::ResolutionAtOnce());
  const Resolution resolution(GetParam());
  const Program program;
  const DialogWindow settings = OpenSettings(program);
  const DialogWindow option = OpenHotKeys(program, settings);
  ExpectTidy(option);
  EXPECT_TRUE(IsOnScreen(option));
  SaveScreenshotWhenPainted("option-" + std::to_string(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Dpi, DialogLookTest, testing::Values(96U, 120U, 144U, 192U),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace gui
