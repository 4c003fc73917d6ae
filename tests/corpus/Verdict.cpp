#include "Verdict.h"

#include <memory>
#include <utility>

#include "driver/Text.h"
#include "extract/Win32API_Window.h"
#include "report/ControlCategory.h"
#include "report/ControlReading.h"
#include "report/Remark.h"
#include "report/ReportReaders.h"
#include "report/SystemReaders.h"
#include "settings/ConfigText.h"

namespace corpus {
namespace {

constexpr int kAttempts = 10;
constexpr std::int32_t kNamesOfAnyLength = 1'000'000;

settings::Settings Defaults() {
  settings::ConfigValues values;
  settings::SetDefaults({19'200, 15'360, 15, 15}, values);
  return values.record;
}

settings::Settings ReadingWhole() {
  settings::Settings set = Defaults();
  set.readWhole = 1;
  return set;
}

settings::Settings ReadingWholeNames() {
  settings::Settings set = ReadingWhole();
  set.accnameMax = kNamesOfAnyLength;
  return set;
}

struct Shown {
  extract::TextReading atPoint;
  extract::TextReading control;
};

Shown ReadAt(HWND window, const platform::ReadPoint& point, const settings::Settings& set) {
  const std::unique_ptr<report::ReportReaders> readers = report::MakeSystemReaders(set);
  const std::wstring className = Win32API_Window::MyGetClassName(window);
  const platform::ReadSession session{window, [](const std::wstring&) {}, [] {},
                                      [] { return true; }};
  return {readers->TextFromPoint(point, [](const std::wstring&) {}),
          readers->Control(report::CategoryOf(className), {window, className, point, session})};
}

// Accessible names have no mark of the access key.
std::wstring WithoutAccessKey(std::wstring text) {
  const std::size_t mark = text.find(L'&');
  if (mark != text.npos) text.erase(mark, 1);
  return text;
}

bool ShowsCaption(const Shown& shown, const std::wstring& caption) {
  return caption.empty() || shown.atPoint.text == caption ||
         shown.atPoint.text == WithoutAccessKey(caption) || shown.control.text == caption;
}

// Of a list without texts there is at most the caption.
bool ShowsItems(const Shown& shown, const WindowTexts& texts) {
  if (!texts.lists || shown.control.text == texts.items) return true;
  return texts.items.empty() &&
         (!report::HoldsText(shown.control.text) || shown.control.text == texts.caption);
}

bool ShowsAll(const Shown& shown, const WindowTexts& texts) {
  return ShowsCaption(shown, texts.caption) && ShowsItems(shown, texts);
}

bool MayNeedRequest(HWND window, const WindowTexts& texts) {
  return texts.caption.size() > Win32API_Window::kMostText ||
         report::CategoryOf(Win32API_Window::MyGetClassName(window)) == report::Category::ListView;
}

std::wstring WayOf(const Shown& shown, const WindowTexts& texts) {
  std::wstring way = texts.caption.empty() ? L"" : shown.atPoint.method;
  if (!texts.items.empty()) way += (way.empty() ? L"" : L", ") + shown.control.method;
  return way;
}

std::string Difference(const Shown& shown, const WindowTexts& texts) {
  std::string text = "caption: " + gui::ToUtf8(texts.caption) +
                     "\nshown at the point: " + gui::ToUtf8(shown.atPoint.text);
  if (!texts.items.empty()) text += "\nitems:\n" + gui::ToUtf8(texts.items);
  return text + "\nshown of the control:\n" + gui::ToUtf8(shown.control.text);
}

Verdict Read(HWND window, const platform::ReadPoint& point) {
  Verdict verdict;
  verdict.texts = TextsOf(window);
  const WindowTexts& texts = verdict.texts;
  const Shown byDefault = ReadAt(window, point, Defaults());
  const Shown whole = ReadAt(window, point, ReadingWhole());
  const bool all = ShowsAll(whole, texts);
  verdict.way = WayOf(whole, texts);
  if (!texts.Any() && all) {
    verdict.outcome = texts.painted ? Outcome::kPainted : Outcome::kNoText;
  } else if (all && ShowsAll(byDefault, texts)) {
    verdict.outcome = Outcome::kWhole;
    verdict.way = WayOf(byDefault, texts);
  } else if (all && MayNeedRequest(window, texts)) {
    verdict.outcome = Outcome::kWholeByRequest;
  } else if (!all && texts.longestItem > static_cast<std::size_t>(Defaults().accnameMax) &&
             ShowsAll(ReadAt(window, point, ReadingWholeNames()), texts)) {
    verdict.outcome = Outcome::kNamesCut;
  } else {
    verdict.missing = Difference(all ? byDefault : whole, texts);
  }
  return verdict;
}

Verdict Unpointed(const Pointed& pointed) {
  Verdict verdict;
  switch (pointed.hindrance) {
    case Hindrance::kNoPlace:
      verdict.outcome = Outcome::kNoPlace;
      break;
    case Hindrance::kItsParts:
      verdict.outcome = Outcome::kItsParts;
      break;
    case Hindrance::kCovered:
      verdict.outcome = Outcome::kCovered;
      break;
    case Hindrance::kUnderLabel:
      verdict.outcome = Outcome::kUnderLabel;
      break;
    case Hindrance::kNone:
    case Hindrance::kUnknown:
      verdict.missing = "nothing covers it, but another window is meant: " +
                        gui::ToUtf8(Win32API_Window::MyGetClassName(pointed.met));
      break;
  }
  return verdict;
}

}  // namespace

const char* NameOf(Outcome outcome) {
  constexpr const char* kNames[kOutcomes] = {
      "read whole",        "whole on request", "long names cut", "no text", "painted", "no place",
      "its parts fill it", "covered",          "under a label",  "hung",    "UNREAD"};
  return kNames[static_cast<int>(outcome)];
}

Verdict Judge(HWND window) {
  if (IsHungAppWindow(window))
    return {.outcome = Outcome::kHung, .way = {}, .missing = {}, .texts = {}};
  const Pointed pointed = PointAt(window);
  if (!pointed.point) {
    Verdict verdict = Unpointed(pointed);
    verdict.texts = TextsOf(window);
    return verdict;
  }
  Verdict verdict;
  for (int attempt = 0; attempt < kAttempts && verdict.outcome == Outcome::kUnread; ++attempt) {
    verdict = Read(window, *pointed.point);
  }
  return verdict;
}

}  // namespace corpus
