#include "Action.h"

#include <cstddef>

#include "TargetKinds.h"

namespace soak {
namespace {

struct Row {
  Do what;
  const char* words;
};

constexpr Row kWords[] = {
    {Do::kMove, "move to"},
    {Do::kSweep, "sweep to"},
    {Do::kRest, "rest for ms"},
    {Do::kOpen, "open at place, kind"},
    {Do::kClose, "close at place"},
    {Do::kKill, "kill at place"},
    {Do::kHang, "hang at place"},
    {Do::kWake, "wake at place"},
    {Do::kGo, "start a capture"},
    {Do::kPress, "press control"},
    {Do::kClick, "click control"},
    {Do::kDoubleClick, "double-click control"},
    {Do::kDragSplitter, "drag the splitter by"},
    {Do::kResize, "resize to"},
    {Do::kHotKey, "hot key"},
    {Do::kFront, "Alt+T"},
    {Do::kSelectAll, "Ctrl+A"},
    {Do::kActionKey, "Ctrl"},
    {Do::kOpenSettings, "open the settings"},
    {Do::kMoveSettings, "settings: move to"},
    {Do::kPressInSettings, "settings: press"},
    {Do::kChooseInSettings, "settings: choose in list, entry"},
    {Do::kTypeInSettings, "settings: type into box, number"},
    {Do::kCloseSettings, "close the settings"},
    {Do::kOpenHotKeys, "open the hot keys"},
    {Do::kChooseHotKey, "hot keys: choose"},
    {Do::kCloseHotKeys, "close the hot keys by"},
};

}  // namespace

std::string ToText(const Action& action) {
  for (const Row& row : kWords) {
    if (row.what != action.what) continue;
    std::string text = std::string(row.words) + " " + std::to_string(action.a);
    if (action.what == Do::kOpen) {
      return text + " " + TargetKinds()[static_cast<std::size_t>(action.b)].name;
    }
    return text + " " + std::to_string(action.b);
  }
  return "?";
}

}  // namespace soak
