// What the dialogs look like, at every resolution.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "DialogWindow.h"
#include "driver/GuiTest.h"
#include "driver/Resolution.h"
#include "driver/Screen.h"
#include "ui/ControlIds.h"

namespace gui {
namespace {

class DialogLookTest : public GuiTest, public testing::WithParamInterface<UINT> {};

TEST_P(DialogLookTest, EveryPageShowsEverything) {
  const Resolution resolution(GetParam());
  const Program program({.conf = "auto stop time = 5\nshift = 1\n"
                                 "hotkey = Shift+PAUSE/BREAK\n"});
  const DialogWindow settings = OpenSettings(program);
  for (int page = 0; page < 4; ++page) {
    settings[ui::lblButton0 + page].PressButton();
    ASSERT_TRUE(WaitFor("the page is shown",
                        [&](std::string&) { return settings[ui::FrList0 + page].IsVisible(); }));
    SaveScreenshot("setting-" + std::to_string(GetParam()) + "-" + std::to_string(page));
  }
  const DialogWindow option = OpenHotKeys(program, settings);
  SaveScreenshot("option-" + std::to_string(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Dpi, DialogLookTest, testing::Values(96U, 120U, 144U, 192U),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace gui
