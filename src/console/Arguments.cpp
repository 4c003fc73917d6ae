#include "console/Arguments.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <vector>

namespace console {
namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMostSeconds = 86'400;

int DigitOf(wchar_t character) {
  if (character >= L'0' && character <= L'9') return character - L'0';
  if (character >= L'a' && character <= L'f') return character - L'a' + 10;
  if (character >= L'A' && character <= L'F') return character - L'A' + 10;
  return 16;
}

// digits and nothing else, at most most.
std::optional<std::int64_t> Digits(std::wstring_view text, int base, std::int64_t most) {
  if (text.empty()) return std::nullopt;
  std::int64_t number = 0;
  for (const wchar_t character : text) {
    const int digit = DigitOf(character);
    if (digit >= base) return std::nullopt;
    number = number * base + digit;
    if (number > most) return std::nullopt;
  }
  return number;
}

std::optional<std::int32_t> Number(std::wstring_view text, std::int32_t least, std::int32_t most) {
  const bool negative = text.starts_with(L'-');
  const auto digits = Digits(text.substr(negative ? 1 : 0), 10, kLargest);
  if (!digits) return std::nullopt;
  const std::int64_t number = negative ? -*digits : *digits;
  if (number < least || number > most) return std::nullopt;
  return static_cast<std::int32_t>(number);
}

template <typename Value>
bool Keep(const std::optional<Value>& value, Value& place) {
  if (value) place = *value;
  return value.has_value();
}

bool TakePoint(std::wstring_view value, Arguments& to) {
  const std::size_t comma = value.find(L',');
  if (comma == value.npos) return false;
  const auto x = Number(value.substr(0, comma), -kLargest, kLargest);
  const auto y = Number(value.substr(comma + 1), -kLargest, kLargest);
  if (!x || !y) return false;
  to.point = {*x, *y};
  return true;
}

// Decimal numbers may be negative: the program shows handles as signed numbers.
bool TakeHandle(std::wstring_view value, Arguments& to) {
  constexpr std::int64_t kMost = 0xFFFF'FFFF;
  std::optional<std::int64_t> number;
  if (value.starts_with(L'x') || value.starts_with(L'X')) {
    number = Digits(value.substr(1), 16, kMost);
  } else if (value.starts_with(L'-')) {
    number = Digits(value.substr(1), 10, kLargest);
    if (number) number = -*number;
  } else {
    number = Digits(value, 10, kMost);
  }
  if (!number) return false;
  to.window = reinterpret_cast<HWND>(static_cast<INT_PTR>(*number));
  return true;
}

bool TakeTitle(std::wstring_view value, Arguments& to) {
  to.title = value;
  return !value.empty();
}

bool TakeControl(std::wstring_view value, Arguments& to) {
  // Class names may hold colons; only a number behind the last one counts.
  const std::size_t colon = value.rfind(L':');
  to.control = {std::wstring(value), 1};
  if (colon != value.npos) {
    const auto number = Number(value.substr(colon + 1), 1, kLargest);
    if (!number) return false;
    to.control = {std::wstring(value.substr(0, colon)), *number};
  }
  return !to.control.className.empty();
}

struct Option {
  std::wstring_view name;
  bool (*take)(std::wstring_view value, Arguments& to);  // false: the value cannot be used
  bool hasValue;
  std::wstring_view notWith;  // the options that it does not go with, each between blanks
};

constexpr std::wstring_view kOtherPlaces = L" --at --pointer --window --title ";

constexpr Option kOptions[] = {
    {L"--at",
     [](std::wstring_view value, Arguments& to) {
       to.place = Place::kPoint;
       return TakePoint(value, to);
     },
     true, kOtherPlaces},
    {L"--pointer",
     [](std::wstring_view, Arguments& to) {
       to.place = Place::kPointer;
       return true;
     },
     false, kOtherPlaces},
    {L"--window",
     [](std::wstring_view value, Arguments& to) {
       to.place = Place::kWindow;
       return TakeHandle(value, to);
     },
     true, kOtherPlaces},
    {L"--title",
     [](std::wstring_view value, Arguments& to) {
       to.place = Place::kTitle;
       return TakeTitle(value, to);
     },
     true, kOtherPlaces},
    {L"--control", TakeControl, true, L" --at --pointer --window --watch "},
    {L"--after",
     [](std::wstring_view value, Arguments& to) {
       return Keep(Number(value, 0, kMostSeconds), to.afterSeconds);
     },
     true, L""},
    {L"--timeout",
     [](std::wstring_view value, Arguments& to) {
       return Keep(Number(value, 1, kMostSeconds), to.timeoutSeconds);
     },
     true, L""},
    {L"--most",
     [](std::wstring_view value, Arguments& to) {
       to.most = Number(value, 1, kLargest);
       return to.most.has_value();
     },
     true, L""},
    {L"--csv",
     [](std::wstring_view, Arguments& to) {
       to.form = Form::kCsv;
       return true;
     },
     false, L" --json --tree --watch "},
    {L"--json",
     [](std::wstring_view, Arguments& to) {
       to.form = Form::kJson;
       return true;
     },
     false, L" --csv "},
    {L"--tree",
     [](std::wstring_view, Arguments& to) {
       to.tree = true;
       return true;
     },
     false, L" --csv "},
    {L"--watch",
     [](std::wstring_view, Arguments& to) {
       to.wish = Wish::kWatch;
       return true;
     },
     false, L" --at --window --title --control --csv "},
};

const Option* Find(std::wstring_view name) {
  const Option* const found = std::ranges::find(kOptions, name, &Option::name);
  return found == std::end(kOptions) ? nullptr : found;
}

bool Holds(std::wstring_view list, std::wstring_view name) {
  return list.find(L" " + std::wstring(name) + L" ") != list.npos;
}

class Parser {
 public:
  explicit Parser(std::span<const std::wstring> words) : words_(words) {}

  ParsedArguments Parse() {
    while (next_ < words_.size() && !parsed_.fault) TakeOption(words_[next_++]);
    if (!parsed_.fault && Given(L"--control") && !Given(L"--title")) {
      Blame(Fault::kNeeds, L"--control", L"--title");
    }
    return parsed_;
  }

 private:
  bool Given(std::wstring_view name) const {
    return std::ranges::find(given_, name) != given_.end();
  }

  void Blame(Fault fault, std::wstring_view option, std::wstring_view other = {}) {
    parsed_.fault = {fault, std::wstring(option), std::wstring(other)};
  }

  void TakeOption(std::wstring_view word) {
    const Option* const option = Find(word);
    if (option == nullptr) return Blame(Fault::kUnknown, word);
    if (Given(word)) return Blame(Fault::kTwice, word);
    for (const std::wstring_view other : given_) {
      if (Holds(option->notWith, other) || Holds(Find(other)->notWith, word)) {
        return Blame(Fault::kNotTogether, word, other);
      }
    }
    given_.push_back(option->name);
    if (option->hasValue && next_ == words_.size()) return Blame(Fault::kNoValue, word);
    const std::wstring_view value = option->hasValue ? words_[next_++] : std::wstring_view();
    if (!option->take(value, parsed_.arguments)) Blame(Fault::kBadValue, word, value);
  }

  std::span<const std::wstring> words_;
  std::size_t next_ = 0;
  std::vector<std::wstring_view> given_;
  ParsedArguments parsed_;
};

}  // namespace

ParsedArguments ParseArguments(std::span<const std::wstring> words) {
  // Whoever asks for help gets it, whatever else is wrong.
  ParsedArguments parsed;
  for (const auto& [name, wish] :
       {std::pair{L"--help", Wish::kHelp}, std::pair{L"--version", Wish::kVersion}}) {
    if (std::ranges::find(words, name) == words.end()) continue;
    parsed.arguments.wish = wish;
    return parsed;
  }
  return Parser(words).Parse();
}

}  // namespace console
