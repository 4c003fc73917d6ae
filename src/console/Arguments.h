// The words of the command line as a record. Pure.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace console {

enum class Place { kPointer, kPoint, kWindow, kTitle };
enum class Form { kText, kCsv, kJson };
enum class Wish { kRead, kWatch, kHelp, kVersion };

// A control in a window: the Nth of those of a class, counted from 1.
struct ControlWanted {
  std::wstring className;  // empty: the window itself
  std::int32_t number = 1;

  bool operator==(const ControlWanted&) const = default;
};

struct Arguments {
  Wish wish = Wish::kRead;
  Place place = Place::kPointer;
  POINT point{};          // screen pixels, of kPoint
  HWND window = nullptr;  // of kWindow
  std::wstring title;     // of kTitle
  ControlWanted control;  // of kTitle
  Form form = Form::kText;
  bool tree = false;              // every visible descendant, too
  std::int32_t afterSeconds = 0;  // before the reading
  std::int32_t timeoutSeconds = 10;
  std::optional<std::int32_t> most;  // rows of a list; all when nothing
};

enum class Fault {
  kUnknown,     // no such option
  kNoValue,     // its value is missing
  kBadValue,    // its value cannot be used
  kTwice,       // it was given before
  kNeeds,       // it goes only with another option
  kNotTogether  // it does not go with an option before it
};

struct ArgumentFault {
  Fault fault;
  std::wstring option;  // as it was written
  std::wstring other;   // the value, or that other option

  bool operator==(const ArgumentFault&) const = default;
};

struct ParsedArguments {
  Arguments arguments;
  std::optional<ArgumentFault> fault;  // the first one; the arguments are then not to be used
};

// words: without the program's name.
ParsedArguments ParseArguments(std::span<const std::wstring> words);

}  // namespace console
