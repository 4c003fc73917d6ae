#include "Plan.h"

#include <iterator>
#include <sstream>

#include "ui/ControlIds.h"

namespace soak {
namespace {

constexpr int kScreenWidth = 1280;
constexpr int kScreenHeight = 1024;
constexpr int kHotKeys = 29;

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
    {Do::kPressInSettings, "settings: press"},
    {Do::kChooseInSettings, "settings: choose in list, entry"},
    {Do::kTypeInSettings, "settings: type into box, number"},
    {Do::kCloseSettings, "close the settings"},
    {Do::kOpenHotKeys, "open the hot keys"},
    {Do::kChooseHotKey, "hot keys: choose"},
    {Do::kCloseHotKeys, "close the hot keys by"},
};

constexpr int kToggles[] = {ui::chkDetail, ui::chkTurnBack, ui::chkAutoStop};
constexpr int kClicked[] = {ui::txthWnd,      ui::txtWin0,      ui::txtWin1,     ui::txtWin2,
                            ui::txtWin3,      ui::txtCount,     ui::txtStatus,   ui::txtWinTextT0,
                            ui::txtWinTextT1, ui::txtWinTextB0, ui::txtWinTextB1};
constexpr int kDoubleClicked[] = {ui::lblMousePos,  ui::lblMsg,       ui::txthWnd,
                                  ui::txtWinTextT0, ui::txtWinTextB1, ui::txtWin0};

// Not among them: closing by itself, which would end the run.
constexpr int kPressedSettings[] = {
    ui::Opt_Clipboard0, ui::Opt_Clipboard1, ui::Opt_Clipboard2,    ui::Opt_Clipboard3,
    ui::OptHint0,       ui::OptHint1,       ui::chkTreeViewIndent, ui::OptListview0,
    ui::OptListview1,   ui::OptListview2,   ui::chkDispText,       ui::ChkAccFromhWnd,
    ui::OptAct0,        ui::OptAct1,        ui::OptAct2,           ui::OptAct3,
    ui::chkContinue,    ui::chkChime,       ui::chkShift,          ui::chkDispTop,
    ui::chkToFile,      ui::chkAutoStart,   ui::lblButton0,        ui::lblButton1,
    ui::lblButton2,     ui::lblButton3};

struct List {
  int id;
  int entries;
};
constexpr List kLists[] = {
    {ui::cmbStLevel, 5}, {ui::cmbAccNameMax, 6}, {ui::cmbChildMaxCount, 8}, {ui::cmbAutoStop, 14}};

constexpr int kBoxes[] = {ui::txtShift0, ui::txtShift1};
constexpr int kNumbers[] = {0, 1, -1, 20, 30, -300, 300, 99999, -99999};

// A key of the settings file and values that users and their editors put there.
struct SettingsLine {
  const char* key;
  std::initializer_list<const char*> values;
};
const SettingsLine kLines[] = {
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
    {"setting no", {"0", "1", "2", "3", "8", "-1"}},
    {"setting left", {"1500", "12900", "-99999", "99999"}},
    {"setting top", {"1500", "300", "-99999", "99999"}},
};

constexpr const char* kHotKeyWords[] = {"",   "PAUSE/BREAK", "ESC", "F1", "F2",  "F3",  "F4", "F5",
                                        "F6", "F7",          "F8",  "F9", "F10", "F11", "F12"};

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

Place PlaceOnDesktop(int index) {
  constexpr int kColumns = 2;
  constexpr int kWidth = 425;
  constexpr int kHeight = 340;
  return {index % kColumns * kWidth, index / kColumns * kHeight, kWidth - 5, kHeight - 10};
}

int Plan::Below(int limit) {
  return static_cast<int>(random_() % static_cast<std::uint32_t>(limit));
}

std::string Plan::Settings(bool mayEndItself) {
  std::ostringstream text;
  text << "form left = " << kMainWindow.left << "\nform top = " << kMainWindow.top
       << "\nform right = " << kMainWindow.left + kMainWindow.width
       << "\nform bottom = " << kMainWindow.top + kMainWindow.height << "\n";
  for (const SettingsLine& line : kLines) {
    if (Chance(25)) continue;  // left to its default
    text << line.key << " = "
         << *(line.values.begin() + Below(static_cast<int>(line.values.size()))) << "\n";
  }
  if (mayEndItself && Chance(50)) text << "auto close = 1\n";
  hotKey_ = Below(static_cast<int>(std::size(kHotKeyWords)));
  text << "hotkey = " << kHotKeyWords[hotKey_] << "\n";
  return text.str();
}

int Plan::AnyPlace(bool open) {
  int places[kPlaces];
  int count = 0;
  for (int i = 0; i < kPlaces; ++i) {
    if (slots_[i].kind.has_value() == open) places[count++] = i;
  }
  return count == 0 ? -1 : places[Below(count)];
}

std::optional<Action> Plan::Move() {
  const int index = Below(kPlaces);
  const Place place = PlaceOnDesktop(index);
  return Action{Do::kMove, place.left + Below(place.width), place.top + Below(place.height)};
}

std::optional<Action> Plan::MoveAnywhere() {
  return Action{Chance(70) ? Do::kSweep : Do::kMove, Below(kScreenWidth), Below(kScreenHeight)};
}

std::optional<Action> Plan::RestAWhile() { return Action{Do::kRest, 60 + Below(240)}; }

std::optional<Action> Plan::Open() {
  const int place = AnyPlace(false);
  if (place < 0) return std::nullopt;
  return Action{Do::kOpen, place, Below(static_cast<int>(TargetKinds().size()))};
}

std::optional<Action> Plan::Close() {
  const int place = AnyPlace(true);
  if (place < 0 || slots_[place].hung) return std::nullopt;
  return Action{Do::kClose, place};
}

std::optional<Action> Plan::Kill() {
  const int place = AnyPlace(true);
  if (place < 0) return std::nullopt;
  return Action{Do::kKill, place};
}

std::optional<Action> Plan::Hang() {
  const int place = AnyPlace(true);
  if (place < 0 || slots_[place].hung) return std::nullopt;
  return Action{Do::kHang, place};
}

std::optional<Action> Plan::Wake() {
  for (int i = 0; i < kPlaces; ++i) {
    if (slots_[i].hung) return Action{Do::kWake, i};
  }
  return std::nullopt;
}

std::optional<Action> Plan::UseMainWindow() {
  switch (Below(3)) {
    case 0:
      return Action{Do::kPress, OneOf(kToggles)};
    case 1:
      return Action{Do::kClick, OneOf(kClicked)};
    default:
      return Action{Do::kDoubleClick, OneOf(kDoubleClicked)};
  }
}

std::optional<Action> Plan::ChangeMainWindow() {
  if (Chance(50)) return Action{Do::kDragSplitter, Below(300) - 150};
  return Action{Do::kResize, 300 + Below(110), 100 + Below(500)};
}

std::optional<Action> Plan::Key() {
  switch (Below(6)) {
    case 0:
      return Action{Do::kFront};
    case 1:
      return Action{Do::kSelectAll};
    case 2:
      return Action{Do::kActionKey};
    case 3:
      return Action{Do::kHotKey, Below(kHotKeys)};
    default:
      return Action{Do::kHotKey, hotKey_};
  }
}

std::optional<Action> Plan::UseSettings() {
  if (Chance(15)) return Action{Do::kCloseSettings};
  if (Chance(15)) return Action{Do::kOpenHotKeys};
  if (Chance(20)) {
    const List list = OneOf(kLists);
    return Action{Do::kChooseInSettings, list.id, Below(list.entries)};
  }
  if (Chance(15)) return Action{Do::kTypeInSettings, OneOf(kBoxes), OneOf(kNumbers)};
  return Action{Do::kPressInSettings, OneOf(kPressedSettings)};
}

// A call into a program that hangs comes back only after that wakes, and the dialog reacts then.
std::optional<Action> Plan::Dialogs() {
  if (const std::optional<Action> wake = Wake(); wake.has_value()) return wake;
  switch (dialog_) {
    case Dialog::kNone:
      return Action{Do::kOpenSettings};
    case Dialog::kSettings:
      return UseSettings();
    default:
      if (Chance(60)) return Action{Do::kChooseHotKey, Below(kHotKeys)};
      return Action{Do::kCloseHotKeys, Chance(70) ? ui::cmdClose0 : ui::cmdClose1};
  }
}

std::vector<Action> Plan::Glance() {
  constexpr int kMoves = 6;
  std::vector<Action> actions{{Do::kGo}, Noted(*Open())};
  const Place place = PlaceOnDesktop(actions.back().a);
  for (int i = 0; i < kMoves; ++i) {
    actions.push_back(
        {Do::kMove, place.left + Below(place.width), place.top + Below(place.height)});
    actions.push_back(*RestAWhile());
  }
  actions.push_back(Noted({Do::kClose, actions[1].a}));
  return actions;
}

Action Plan::Next() {
  static constexpr Weighted kMakers[] = {
      {40, &Plan::Move},         {8, &Plan::MoveAnywhere},
      {12, &Plan::RestAWhile},   {8, &Plan::Open},
      {3, &Plan::Close},         {3, &Plan::Kill},
      {3, &Plan::Hang},          {9, &Plan::Wake},
      {6, &Plan::UseMainWindow}, {3, &Plan::ChangeMainWindow},
      {3, &Plan::Key},           {9, &Plan::Dialogs},
  };
  if (Chance(8)) return {Do::kGo};
  int sum = 0;
  for (const Weighted& row : kMakers) sum += row.weight;
  for (;;) {
    int drawn = Below(sum);
    const Weighted* row = kMakers;
    while (drawn >= row->weight) drawn -= (row++)->weight;
    if (const std::optional<Action> made = (this->*row->maker)(); made.has_value()) {
      return Noted(*made);
    }
  }
}

Action Plan::Noted(const Action& action) {
  switch (action.what) {
    case Do::kOpen:
      slots_[action.a] = {static_cast<std::size_t>(action.b), false};
      break;
    case Do::kClose:
    case Do::kKill:
      slots_[action.a] = {};
      break;
    case Do::kHang:
      slots_[action.a].hung = true;
      break;
    case Do::kWake:
      slots_[action.a].hung = false;
      break;
    case Do::kOpenSettings:
    case Do::kCloseHotKeys:
      dialog_ = Dialog::kSettings;
      if (action.a == ui::cmdClose0) hotKey_ = chosenHotKey_;
      break;
    case Do::kCloseSettings:
      dialog_ = Dialog::kNone;
      break;
    case Do::kOpenHotKeys:
      dialog_ = Dialog::kHotKeys;
      chosenHotKey_ = hotKey_;
      break;
    case Do::kChooseHotKey:
      chosenHotKey_ = action.a;
      break;
    default:
      break;
  }
  return action;
}

std::vector<Action> Plan::Tour() {
  std::vector<Action> tour{{Do::kGo}};
  const auto add = [&](const Action& action) { tour.push_back(Noted(action)); };

  for (int kind = 0; kind < static_cast<int>(TargetKinds().size()); ++kind) {
    const int index = kind % kPlaces;
    const Place place = PlaceOnDesktop(index);
    if (slots_[index].kind.has_value()) add({Do::kClose, index});
    add({Do::kOpen, index, kind});
    for (const int part : {3, 2}) {
      add({Do::kMove, place.left + place.width / part, place.top + place.height / part});
      add({Do::kRest, 150});
    }
  }

  add({Do::kHang, 0});
  const Place hung = PlaceOnDesktop(0);
  add({Do::kMove, hung.left + hung.width / 2, hung.top + hung.height / 2});
  add({Do::kRest, 300});
  add({Do::kWake, 0});
  add({Do::kKill, 1});

  for (const int id : kToggles) {
    for (int times = 0; times < 2; ++times) add({Do::kPress, id});
  }
  for (const int id : kClicked) add({Do::kClick, id});
  for (const int id : kDoubleClicked) {
    for (int times = 0; times < 2; ++times) add({Do::kDoubleClick, id});
  }
  add({Do::kDragSplitter, 60});
  add({Do::kDragSplitter, -60});
  add({Do::kResize, 320, 300});
  add({Do::kResize, kMainWindow.width, kMainWindow.height});

  add({Do::kOpenSettings});
  for (const int id : kPressedSettings) {
    for (int times = 0; times < 2; ++times) add({Do::kPressInSettings, id});
    add(*Move());
    add({Do::kRest, 60});
  }
  for (const List& list : kLists) {
    for (const int entry : {list.entries - 1, 0}) add({Do::kChooseInSettings, list.id, entry});
  }
  for (const int id : kBoxes) add({Do::kTypeInSettings, id, 20});
  add({Do::kOpenHotKeys});
  add({Do::kChooseHotKey, 9});
  add({Do::kCloseHotKeys, ui::cmdClose0});
  add({Do::kCloseSettings});
  for (int times = 0; times < 2; ++times) add({Do::kHotKey, hotKey_});
  for (const Do key : {Do::kFront, Do::kSelectAll, Do::kActionKey}) add({key});

  for (int i = 0; i < kPlaces; ++i) {
    if (slots_[i].kind.has_value()) add({Do::kClose, i});
  }
  return tour;
}

std::vector<Action> Plan::Rest() {
  std::vector<Action> actions;
  while (const std::optional<Action> wake = Wake()) actions.push_back(Noted(*wake));
  if (dialog_ == Dialog::kHotKeys) actions.push_back(Noted({Do::kCloseHotKeys, ui::cmdClose1}));
  if (dialog_ == Dialog::kSettings) actions.push_back(Noted({Do::kCloseSettings}));
  return actions;
}

}  // namespace soak
