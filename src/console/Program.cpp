#include "console/Program.h"

#include <windows.h>

#include "console/Arguments.h"
#include "console/BoundedWork.h"
#include "console/JsonReport.h"
#include "console/Output.h"
#include "console/Reading.h"
#include "console/Target.h"
#include "console/TextReport.h"
#include "console/Watch.h"
#include "console/Words.h"
#include "platform/ErrorReport.h"

namespace console {
namespace {

constexpr std::uint32_t kSecond = 1'000;

int Code(Outcome outcome) { return static_cast<int>(outcome); }

void Tell(const std::wstring& words) {
  if (!words.empty()) Write(Stream::kError, words + L"\r\n");
}

void WaitBefore(std::int32_t seconds, Language language) {
  const bool shown = IsConsole(Stream::kError);
  for (std::int32_t left = seconds; left > 0; --left) {
    if (shown) Write(Stream::kError, L"\r" + CountdownText(left, language) + L"  ");
    Sleep(kSecond);
  }
  if (shown && seconds > 0) Write(Stream::kError, std::wstring_view(L"\r\n"));
}

std::uint32_t Time(const Arguments& arguments) {
  return static_cast<std::uint32_t>(arguments.timeoutSeconds) * kSecond;
}

// The reading may still hold locks of the process, so nothing is cleaned up.
[[noreturn]] void EndWithoutAnswer(Language language) {
  Tell(OutcomeText(Outcome::kNoAnswer, language));
  TerminateProcess(GetCurrentProcess(), static_cast<UINT>(Outcome::kNoAnswer));
  for (;;) Sleep(INFINITE);
}

Facts ReadInTime(const Target& target, const Arguments& arguments, Language language) {
  const ReadOptions options{arguments.most, arguments.tree, arguments.form == Form::kJson};
  Facts facts;
  if (!FinishesWithin(Time(arguments), [&] { facts = Read(target, options); })) {
    EndWithoutAnswer(language);
  }
  return facts;
}

bool WriteReport(const Facts& facts, Form form) {
  switch (form) {
    case Form::kJson:
      return Write(Stream::kOutput, JsonReport(facts) + "\r\n");
    case Form::kCsv:
      return Write(Stream::kOutput, CsvReport(facts));
    default:
      return Write(Stream::kOutput, TextReport(facts));
  }
}

int ReadOnce(const Arguments& arguments, Language language) {
  WaitBefore(arguments.afterSeconds, language);
  const std::optional<Target> target = FindTarget(arguments);
  if (!target) {
    Tell(OutcomeText(Outcome::kNoSuchWindow, language));
    return Code(Outcome::kNoSuchWindow);
  }
  if (target->hwnd == nullptr) {
    Tell(OutcomeText(Outcome::kNothingThere, language));
    return Code(Outcome::kNothingThere);
  }
  const Facts facts = ReadInTime(*target, arguments, language);
  const Outcome outcome = OutcomeOf(facts);
  // What is left of a window that has gone meanwhile could be taken for the whole.
  if (outcome != Outcome::kNoSuchWindow) WriteReport(facts, arguments.form);
  Tell(OutcomeText(outcome, language));
  const auto& items = facts.reading.items;
  if (outcome == Outcome::kRead && items && !items->complete) Tell(IncompleteText(language));
  return Code(outcome);
}

int WatchPointer(const Arguments& arguments, Language language) {
  WaitBefore(arguments.afterSeconds, language);
  Arguments everything = arguments;
  everything.form = Form::kJson;
  Watch([&](POINT point) {
    const Target target = TargetAt(point);
    if (target.hwnd == nullptr) return true;
    const Facts facts = ReadInTime(target, everything, language);
    return facts.gone || WriteReport(facts, Form::kJson);
  });
  return Code(Outcome::kRead);
}

}  // namespace

int Run(std::span<const std::wstring> words) {
  const Language language = SystemLanguage();
  // A program for scripts opens no boxes.
  platform::SetMessageBox(
      [](const std::wstring& text, const std::wstring& title) { Tell(title + L": " + text); });
  const ParsedArguments parsed = ParseArguments(words);
  if (parsed.fault) {
    Tell(FaultText(*parsed.fault, language));
    return Code(Outcome::kWrongArguments);
  }
  switch (parsed.arguments.wish) {
    case Wish::kHelp:
      Write(Stream::kOutput, HelpText(language));
      return 0;
    case Wish::kVersion:
      Write(Stream::kOutput, VersionText());
      return 0;
    case Wish::kWatch:
      return WatchPointer(parsed.arguments, language);
    default:
      return ReadOnce(parsed.arguments, language);
  }
}

}  // namespace console
