#include "Plan.h"

#include <iterator>
#include <sstream>

#include "Choices.h"
#include "TargetKinds.h"
#include "ui/ControlIds.h"

namespace soak {
namespace {

constexpr int kScreenWidth = 1280;
constexpr int kScreenHeight = 1024;

// Over the edges and corners of the main window and along its foot, so that each cursor that the
// system shows there is loaded.
std::vector<Action> OverTheFrame() {
  constexpr Place kAt = kMainWindow;
  constexpr int kRight = kAt.left + kAt.width - 2;
  constexpr int kBottom = kAt.top + kAt.height - 2;
  std::vector<Action> moves;
  for (const int x : {kAt.left + 1, kAt.left + kAt.width / 2, kRight}) {
    for (const int y : {kAt.top + 1, kAt.top + kAt.height / 2, kBottom}) {
      moves.push_back({Do::kMove, x, y});
    }
  }
  constexpr int kStep = 20;
  constexpr int kFoot = kBottom - 16;
  for (int x = kAt.left + kStep; x < kRight; x += kStep) moves.push_back({Do::kMove, x, kFoot});
  return moves;
}

}  // namespace

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
  if (Chance(5)) return Action{Do::kMoveSettings, Below(kScreenWidth), Below(kScreenHeight)};
  if (Chance(20)) {
    const ListControl list = OneOf(kListControls);
    return Action{Do::kChooseInSettings, list.id, Below(list.entries)};
  }
  if (Chance(15)) return Action{Do::kTypeInSettings, OneOf(kBoxes), OneOf(kNumbers)};
  return Action{Do::kPressInSettings, OneOf(kPressedSettings)};
}

// A call into a program that hangs returns only when that program continues, and the dialog reacts
// then.
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
      add({Do::kPress, ui::chkDetail});
    }
    // Long lines are shown in the panes both wrapped and with a scroll bar.
    add({Do::kPress, ui::chkTurnBack});
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
  for (const Action& move : OverTheFrame()) add(move);

  // The settings file may have it at an edge of the screen.
  add({Do::kOpenSettings});
  add({Do::kMoveSettings, 100, 100});
  for (const int id : kPressedSettings) {
    for (int times = 0; times < 2; ++times) add({Do::kPressInSettings, id});
    add(*Move());
    add({Do::kRest, 60});
  }
  for (const ListControl& list : kListControls) {
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
  // Once more, now that nothing else happens: a busy program may miss a position of the pointer.
  for (const Action& move : OverTheFrame()) add(move);
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
