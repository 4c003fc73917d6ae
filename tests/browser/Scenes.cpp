#include "Scenes.h"

#include <cwchar>

#include "Pages.h"

namespace html {
namespace {

int Number(const std::wstring& value) {
  return static_cast<int>(std::wcstol(value.c_str(), nullptr, 10));
}

struct SceneWord {
  const wchar_t* word;
  DocumentData (*page)(const std::wstring& value);
  void (*arrange)(const std::wstring& value, Scene& scene);  // null: nothing to do
};

DocumentData Fruit(const std::wstring&) { return FruitPage(); }
DocumentData Kinds(const std::wstring&) { return KindsPage(); }
DocumentData Lengths(const std::wstring&) { return LengthsPage(); }
DocumentData FrameSet(const std::wstring&) { return FrameSetPage(); }
DocumentData Unnamed(const std::wstring&) { return UnnamedFramesPage(); }
DocumentData Scrolled(const std::wstring&) { return ScrolledFramesPage(); }
DocumentData Foreign(const std::wstring&) { return ForeignFramePage(); }
DocumentData Chain(const std::wstring& value) { return ChainPage(Number(value)); }
DocumentData Deep(const std::wstring& value) { return NestedFramesPage(Number(value)); }
DocumentData Huge(const std::wstring&) { return HugePage(5'000'000); }
DocumentData Orphan(const std::wstring&) { return OrphanPage(); }

template <Answering answering>
void Answer(const std::wstring&, Scene& scene) {
  scene.answering = answering;
}

void AddLists(const std::wstring&, Scene& scene) { scene.hasLists = true; }

void CallSilverlight(const std::wstring&, Scene& scene) {
  scene.documentClass = L"MicrosoftSilverlight";
}

void RefuseForeign(const std::wstring&, Scene& scene) {
  scene.page->watch.failures = {{"window foreign.document", E_ACCESSDENIED}};
}

void RefuseDocuments(const std::wstring&, Scene& scene) {
  scene.page->watch.failures = {{".document", E_ACCESSDENIED}};
}

void FailAlways(const std::wstring&, Scene& scene) { scene.page->watch.failures = {{"", E_FAIL}}; }

void CloseCircle(const std::wstring&, Scene& scene) {
  scene.page->At("HTML").parent = &scene.page->At("DIV#box");
}

void HoldItself(const std::wstring&, Scene& scene) {
  scene.page->WindowNamed("f").content = &scene.page->Top();
}

void DieInCall(const std::wstring& value, Scene& scene) {
  scene.page->watch.onCall = [end = "." + Narrow(value)](const std::string& call) {
    if (call.ends_with(end)) TerminateProcess(GetCurrentProcess(), 9);
  };
}

constexpr SceneWord kScenes[] = {
    {L"fruit", Fruit, nullptr},
    {L"kinds", Kinds, nullptr},
    {L"lengths", Lengths, nullptr},
    {L"frameset", FrameSet, nullptr},
    {L"unnamed", Unnamed, nullptr},
    {L"scrolled", Scrolled, nullptr},
    {L"chain", Chain, nullptr},
    {L"orphan", Orphan, nullptr},
    {L"lists", Fruit, AddLists},
    {L"silverlight", Fruit, CallSilverlight},
    {L"hung", Fruit, Answer<Answering::kHung>},
    {L"silent", Fruit, Answer<Answering::kSilent>},
    {L"zero", Fruit, Answer<Answering::kZero>},
    {L"junk", Fruit, Answer<Answering::kJunk>},
    {L"second", Fruit, Answer<Answering::kSecond>},
    {L"bare", Fruit, Answer<Answering::kBare>},
    {L"foreign", Foreign, RefuseForeign},
    {L"refused", FrameSet, RefuseDocuments},
    {L"circle", Fruit, CloseCircle},
    {L"selfframe", [](const std::wstring&) { return NestedFramesPage(1); }, HoldItself},
    {L"deep", Deep, nullptr},
    {L"huge", Huge, nullptr},
    {L"failing", Fruit, FailAlways},
    {L"dies", Fruit, DieInCall},
};

}  // namespace

bool BuildScene(const std::wstring& word, const std::wstring& value, Scene& scene) {
  for (const SceneWord& row : kScenes) {
    if (word != row.word) continue;
    scene.page = std::make_unique<Page>(row.page(value));
    scene.page->watch.keepsCalls = false;
    if (row.arrange != nullptr) row.arrange(value, scene);
    return true;
  }
  return false;
}

}  // namespace html
