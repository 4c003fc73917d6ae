#include "settings/ConfigKeys.h"

#include <array>

#include "platform/Rounding.h"

namespace settings {
namespace {

using platform::RoundedRatio;
using S = Settings;
using W = WindowValues;

// The main window opens right of the middle: half the screen from the left, a third from the top.
std::int32_t HalfWidth(const ScreenTwips& screen) {
  return RoundedRatio(std::int64_t{screen.ScreenW} * 25, std::int64_t{screen.TwipsPerPixelX} * 50);
}
std::int32_t ThirdOfHeight(const ScreenTwips& screen) {
  return RoundedRatio(screen.ScreenH, std::int64_t{screen.TwipsPerPixelY} * 3);
}
std::int32_t FourFifthsOfWidth(const ScreenTwips& screen) {
  return RoundedRatio(std::int64_t{screen.ScreenW} * 4, std::int64_t{screen.TwipsPerPixelX} * 5);
}
std::int32_t ThreeQuartersOfHeight(const ScreenTwips& screen) {
  return RoundedRatio(std::int64_t{screen.ScreenH} * 3, std::int64_t{screen.TwipsPerPixelY} * 4);
}

// Puts the settings dialog, 4725 by 7725 twips, in the middle of the screen.
std::int32_t CentredLeft(const ScreenTwips& screen) {
  return RoundedRatio(std::int64_t{screen.ScreenW} - 4725, 2);
}
std::int32_t CentredTop(const ScreenTwips& screen) {
  return RoundedRatio(std::int64_t{screen.ScreenH} - 7725, 2);
}

// No default. Odd, and stays: docs/ODDITIES.md.
constexpr std::monostate kAsItWas{};

// Some keys are written with blanks or capitals that differ from the text they are read by.
// Odd, and stays: docs/ODDITIES.md.
constexpr std::array<ConfigKey, 40> kKeys{{
    {L"form left", L"form left = ", &W::formLeft, HalfWidth},
    {L"form top", L"form top = ", &W::formTop, ThirdOfHeight},
    {L"form right", L"form right = ", &W::formRight, FourFifthsOfWidth},
    {L"form bottom", L"form bottom = ", &W::formBottom, ThreeQuartersOfHeight},
    {L"top height", L"top height = ", &S::topHeight, 1200},
    {L"disp top", L"disp Top = ", &S::dispTop, 1},
    {L"treeview indent", L"treeview indent = ", &S::treeviewIndent, 1},
    {L"listview col", L"listview col = ", &S::listviewCol, 0},
    {L"to file", L"to file = ", &S::toFile, 0},
    {L"turn back", L"turn back = ", &W::turnBack, 0},
    {L"mous pos", L"mous pos = ", &S::mousPos, std::wstring_view(L"screen")},
    {L"win handle", L"win handle = ", &S::winHandle, std::wstring_view(L"dec")},
    {L"hotkey", L"hotkey = ", &S::hotkey, std::wstring_view(L"ESC")},
    {L"enable hot t", L"enable hot t = ", &S::enableHotT, 1},
    {L"disp text", L"disp text = ", &S::dispText, 0},
    {L"start node", L"start node = ", &S::startNode, kAsItWas},
    {L"auto start", L"auto start= ", &S::autoStart, kAsItWas},
    {L"clipboard", L"clipboard= ", &S::clipboard, 0},
    {L"hint", L"hint = ", &S::hint, 0},
    {L"auto stop", L"auto stop = ", &S::autoStop, 0},
    {L"auto stop time", L"auto stop time = ", &S::autoStopTime, 0},
    {L"auto close", L"auto close = ", &S::autoClose, 0},
    {L"chime", L"chime = ", &S::chime, 1},
    {L"chime file", L"chime file = ", &S::chimeFile, std::wstring_view(L"chimes.wav")},
    {L"detail", L"detail = ", &S::detail, 0},
    {L"shift", L"shift = ", &S::shift, 0},
    {L"shiftx", L"shiftx = ", &S::shiftx, 20},
    {L"shifty", L"shifty = ", &S::shifty, 30},
    {L"continue", L"continue = ", &S::continueCapture, kAsItWas},
    {L"parent & children", L"parent & children = ", &S::parentChildren, 1},
    {L"parent & children max", L"parent & children max= ", &S::parentChildrenMax, 10},
    {L"accname max", L"accname max = ", &S::accnameMax, 50},
    {L"from hwnd", L"from hwnd = ", &S::fromHwnd, kAsItWas},
    {L"action test", L"action test = ", &S::actionTest, kAsItWas},
    {L"html tag text length", L"html tag text length = ", &S::htmlTagTextLength, 50},
    {L"accValue text", L"accValue text = ", &S::accValueText,
     std::wstring_view(L"edit,DirectUIHWND")},
    {L"setting no", L"setting no = ", &S::settingNo, 0},
    {L"setting left", L"setting left = ", &S::settingLeft, CentredLeft},
    {L"setting top", L"setting top = ", &S::settingTop, CentredTop},
    // Younger than the file: files of users who do not use it stay as they were.
    {L"read whole", L"read whole = ", &S::readWhole, 0, true},
}};

}  // namespace

std::span<const ConfigKey> ConfigKeys() { return kKeys; }

}  // namespace settings
