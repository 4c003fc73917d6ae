#include "Scenes.h"

#include <cwchar>

#include "fixture/HugeText.h"

namespace accessible {
namespace {

constexpr long kTwoThousandMillion = 2'000'000'000;

RECT Inside(const RECT& place, LONG left, LONG top, LONG width, LONG height) {
  return {place.left + left, place.top + top, width, height};
}

Node& Root(Scene& scene, const RECT& place) {
  return scene.nodes.emplace_back(
      Members{.name = L"果物の窓", .role = ROLE_SYSTEM_CLIENT, .place = place});
}

// The group, the list and the button, after the root.
void BuildFruit(const std::wstring&, const RECT& place, Scene& scene) {
  Node& root = Root(scene, place);
  Node& group = scene.nodes.emplace_back(Members{
      .name = L"組", .role = ROLE_SYSTEM_GROUPING, .place = Inside(place, 10, 10, 300, 180)});
  Node& list = scene.nodes.emplace_back(Members{.name = L"果物の一覧",
                                                .value = L"二つ",
                                                .role = ROLE_SYSTEM_LIST,
                                                .state = 0x100000,
                                                .place = Inside(place, 20, 20, 200, 120),
                                                .description = L"好きな果物",
                                                .defaultAction = L"開く",
                                                .keyboardShortcut = L"Alt+F"});
  Node& button = scene.nodes.emplace_back(Members{.name = L"追加",
                                                  .value = L"加",
                                                  .role = ROLE_SYSTEM_PUSHBUTTON,
                                                  .place = Inside(place, 20, 60, 200, 20),
                                                  .defaultAction = L"押す"});
  root.AddObject(group);
  group.AddObject(list);
  list.AddElement({.name = L"林檎",
                   .value = L"赤",
                   .role = ROLE_SYSTEM_LISTITEM,
                   .state = 0x300006,
                   .place = Inside(place, 20, 20, 200, 20)});
  list.AddElement({.name = L"蜜柑",
                   .value = L"橙",
                   .roleText = L"独自の役",
                   .state = -1,
                   .place = Inside(place, 20, 40, 200, 20)});
  list.AddObject(button);
}

void BuildTree(const std::wstring& value, const RECT& place, Scene& scene) {
  scene.windowClass = L"FixtureTreeView";
  Node& root = Root(scene, place);
  const long count = std::wcstol(value.c_str(), nullptr, 10);
  for (long i = 0; i < count; ++i) {
    root.AddElement({.name = L"項目" + std::to_wstring(i + 1),
                     .value = std::to_wstring(i % 3),
                     .role = ROLE_SYSTEM_OUTLINEITEM,
                     .place = Inside(place, 0, i * 16, place.right, 16)});
  }
}

void BuildObjects(const std::wstring& value, const RECT& place, Scene& scene) {
  Node& root = Root(scene, place);
  const long count = std::wcstol(value.c_str(), nullptr, 10);
  for (long i = 0; i < count; ++i) {
    root.AddObject(scene.nodes.emplace_back(Members{.name = L"物" + std::to_wstring(i + 1),
                                                    .role = ROLE_SYSTEM_LISTITEM,
                                                    .place = Inside(place, 0, i * 16, 100, 16)}));
  }
}

void BuildRows(const std::wstring& value, const RECT& place, Scene& scene) {
  scene.windowClass = L"FixtureListView";
  Node& root = Root(scene, place);
  const long count = std::wcstol(value.c_str(), nullptr, 10);
  for (long i = 0; i < count; ++i) {
    root.AddElement({.name = L"行" + std::to_wstring(i + 1),
                     .role = ROLE_SYSTEM_LISTITEM,
                     .place = Inside(place, 0, i * 16, place.right, 16)});
  }
}

void BuildCommas(const std::wstring&, const RECT& place, Scene& scene) {
  scene.windowClass = L"FixtureListView";
  Node& root = Root(scene, place);
  for (const wchar_t* const name : {L"林檎\t蜜柑", L"赤,橙", L"\"果物\""}) {
    root.AddElement({.name = name, .role = ROLE_SYSTEM_LISTITEM, .place = place});
  }
}

void BuildCycle(const std::wstring& value, const RECT& place, Scene& scene) {
  BuildFruit(value, place, scene);
  scene.nodes.front().parent = &scene.nodes.back();
}

void BuildEndless(const std::wstring&, const RECT& place, Scene& scene) {
  scene.windowClass = L"FixtureTreeView";
  Node& root = Root(scene, place);
  root.answersEveryChild = true;
  root.claimedChildren = kTwoThousandMillion;
}

void BuildClaims(const std::wstring&, const RECT& place, Scene& scene) {
  Root(scene, place).claimedChildren = kTwoThousandMillion;
}

void BuildHuge(const std::wstring&, const RECT& place, Scene& scene) {
  const std::wstring name = fixture::HugeText(5'000'000);
  Node& root = Root(scene, place);
  root.Own().name = name;
  root.AddElement({.name = name, .role = ROLE_SYSTEM_LISTITEM});
}

void BuildCodes(const std::wstring&, const RECT& place, Scene& scene) {
  Node& root = Root(scene, place);
  root.failures = {{"accName", E_FAIL},
                   {"accValue", DISP_E_MEMBERNOTFOUND},
                   {"accState", E_NOTIMPL},
                   {"accKeyboardShortcut", E_INVALIDARG},
                   {"accFocus", E_OUTOFMEMORY},
                   {"accDefaultAction", E_ACCESSDENIED},
                   {"accDescription", RPC_E_DISCONNECTED},
                   {"accParent", E_UNEXPECTED},
                   {"accChildCount", S_FALSE},
                   {"accLocation", E_ABORT}};
}

void BuildRoleless(const std::wstring&, const RECT& place, Scene& scene) {
  Root(scene, place).failures = {{"accRole", E_FAIL}};
}

void BuildOverflow(const std::wstring&, const RECT& place, Scene& scene) {
  Root(scene, place).Own().place = {2'147'483'647, place.top, 1, place.bottom};
}

void BuildDies(const std::wstring&, const RECT& place, Scene& scene) {
  scene.windowClass = L"FixtureTreeView";
  Node& root = Root(scene, place);
  for (int i = 0; i < 50; ++i) {
    root.AddElement({.name = L"項目",
                     .value = L"0",
                     .role = ROLE_SYSTEM_OUTLINEITEM,
                     .place = Inside(place, 0, i * 16, place.right, 16)});
  }
  root.onCall = [names = 0](const std::string& member) mutable {
    if (member == "accName" && ++names == 3) TerminateProcess(GetCurrentProcess(), 9);
  };
}

struct SceneWord {
  const wchar_t* word;
  void (*build)(const std::wstring& value, const RECT& place, Scene& scene);
};

constexpr SceneWord kScenes[] = {
    {L"fruit", BuildFruit},     {L"tree", BuildTree},         {L"objects", BuildObjects},
    {L"rows", BuildRows},       {L"commas", BuildCommas},     {L"cycle", BuildCycle},
    {L"endless", BuildEndless}, {L"claims", BuildClaims},     {L"huge", BuildHuge},
    {L"codes", BuildCodes},     {L"roleless", BuildRoleless}, {L"overflow", BuildOverflow},
    {L"dies", BuildDies},
};

}  // namespace

bool BuildScene(const std::wstring& word, const std::wstring& value, const RECT& place,
                Scene& scene) {
  for (const SceneWord& row : kScenes) {
    if (word != row.word) continue;
    row.build(value, place, scene);
    return true;
  }
  return false;
}

}  // namespace accessible
