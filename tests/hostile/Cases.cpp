#include "Cases.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace hostile {
namespace {

std::optional<std::uint32_t> FromEnvironment(const char* name) {
  const char* const value = std::getenv(name);
  if (value == nullptr || *value == 0) return std::nullopt;
  return static_cast<std::uint32_t>(std::strtoul(value, nullptr, 10));
}

std::uint32_t Seed() {
  static const std::uint32_t seed = [] {
    const std::uint32_t chosen = FromEnvironment("VELMORA_SEED").value_or(20231);
    std::printf("VELMORA_SEED=%u\n", chosen);
    return chosen;
  }();
  return seed;
}

int currentCase = -1;

LONG CALLBACK TellCase(EXCEPTION_POINTERS* exception) {
  std::fprintf(stderr, "exception %lx in VELMORA_SEED=%u VELMORA_CASE=%d\n",
               exception->ExceptionRecord->ExceptionCode, Seed(), currentCase);
  std::fflush(stderr);
  return EXCEPTION_CONTINUE_SEARCH;
}

// What text functions search for, and what may confuse them.
constexpr std::wstring_view kPieces[] = {
    L"\r\n",       L"\n",     L"\r",     L"\t",     L" ",    L"\"", L"\"\"",   L",",
    L"=",          L"\u3000", L"\\",     L"表",     L"ｶﾞ",   L"é",  L"\xD83D", L"\xDE00",
    L"\U0001F408", L"\uFFFF", L"\uFEFF", L"\u202E", L"a",    L"aa", L"A",      L"9",
    L"-",          L"名前",   L"\x7F",   L"\x01",   L"%s%n", L"&",
};

}  // namespace

Random::Random(std::uint32_t seed, int number) {
  std::seed_seq both{seed, static_cast<std::uint32_t>(number)};
  engine_.seed(both);
}

int Random::Below(int limit) {
  return static_cast<int>(Bits() % static_cast<std::uint32_t>(limit));
}

std::int32_t Random::Number() {
  constexpr std::int32_t kEnds[] = {0,
                                    1,
                                    -1,
                                    2,
                                    50,
                                    65535,
                                    65536,
                                    65537,
                                    INT32_MAX,
                                    INT32_MIN,
                                    1000000,
                                    INT32_MAX - 1,
                                    INT32_MIN + 1,
                                    0x10000,
                                    -65536};
  if (Chance(50)) return OneOf(kEnds);
  if (Chance(60)) return Below(200) - 20;
  return static_cast<std::int32_t>(Bits());
}

int Random::Length(int longest) {
  if (Chance(10)) return 0;
  if (Chance(85)) return Below(longest < 40 ? longest + 1 : 40);
  return Below(longest + 1);
}

std::wstring Random::Text(int longest) {
  std::wstring text;
  const auto wanted = static_cast<std::size_t>(Length(longest));
  const bool fromPieces = Chance(70);
  while (text.size() < wanted) {
    if (fromPieces || Chance(30)) {
      text += OneOf(kPieces);
    } else if (Chance(5)) {
      text += L'\0';
    } else {
      text += static_cast<wchar_t>(Chance(50) ? Below(0x100) : Below(0x10000));
    }
  }
  text.resize(wanted);
  return text;
}

std::wstring Random::TextWithoutNul(int longest) {
  std::wstring text = Text(longest);
  std::erase(text, L'\0');
  return text;
}

std::string Random::Bytes(int longest) {
  std::string bytes(static_cast<std::size_t>(Length(longest)), '\0');
  for (char& byte : bytes) byte = static_cast<char>(Below(256));
  return bytes;
}

void ForEachCase(int count, const std::function<void(Random&)>& check) {
  const std::uint32_t seed = Seed();
  const std::optional<std::uint32_t> only = FromEnvironment("VELMORA_CASE");
  for (int i = 0; i < count; ++i) {
    if (only.has_value() && *only != static_cast<std::uint32_t>(i)) continue;
    currentCase = i;
    Random random(seed, i);
    SCOPED_TRACE("VELMORA_SEED=" + std::to_string(seed) + " VELMORA_CASE=" + std::to_string(i));
    check(random);
    if (testing::Test::HasFailure()) return;
  }
  currentCase = -1;
}

void TellCaseOnCrash() { SetUnhandledExceptionFilter(TellCase); }

}  // namespace hostile
