// Texts of every kind through the text functions, each compared with a second computation.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <string>
#include <vector>

#include "Cases.h"
#include "accessibility/AccessibleListing.h"
#include "accessibility/RoleStateWords.h"
#include "capture/CaptureWords.h"
#include "capture/OutputDelivery.h"
#include "extract/CsvText.h"
#include "extract/StringUtilities.h"
#include "extract/TextCount.h"
#include "platform/ErrorReport.h"
#include "platform/HandleText.h"
#include "platform/Rounding.h"
#include "platform/TextCodec.h"
#include "platform/Trim.h"
#include "report/ControlCategory.h"
#include "report/WindowInformation.h"
#include "settings/MyKeyboard.h"
#include "settings/MySub_HotKey.h"

namespace hostile {
namespace {

constexpr int kCases = 20000;
constexpr int kLongest = 1000;

std::wstring Joined(const std::vector<std::wstring>& parts, std::wstring_view between) {
  std::wstring text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0) text += between;
    text += parts[i];
  }
  return text;
}

std::vector<std::wstring> SplitAt(std::wstring_view text, std::wstring_view separator) {
  std::vector<std::wstring> parts(1);
  for (std::size_t at = 0; at < text.size();) {
    if (text.compare(at, separator.size(), separator) == 0) {
      parts.emplace_back();
      at += separator.size();
    } else {
      parts.back() += text[at++];
    }
  }
  return parts;
}

std::int32_t Occurrences(std::wstring_view text, std::wstring_view pattern) {
  return static_cast<std::int32_t>(SplitAt(text, pattern).size()) - 1;
}

std::wstring Pattern(Random& random) {
  const std::wstring text = random.Text(4);
  return text.empty() ? L"aa" : text;
}

TEST(HostileTextsTest, ReplacingIsSplittingAndJoining) {
  ForEachCase(kCases, [](Random& random) {
    const std::wstring text = random.Text(kLongest);
    const std::wstring pattern = Pattern(random);
    const std::wstring replacement = random.Text(5);
    EXPECT_EQ(extract::Replaced(text, pattern, replacement),
              Joined(SplitAt(text, pattern), replacement));
  });
}

TEST(HostileTextsTest, CountsAreOccurrences) {
  ForEachCase(kCases, [](Random& random) {
    const std::wstring text = random.Text(kLongest);
    const std::wstring pattern = Pattern(random);
    EXPECT_EQ(extract::FindStrCnt(text, pattern), Occurrences(text, pattern));
  });
}

TEST(HostileTextsTest, EveryLineEndIsWhole) {
  constexpr std::wstring_view kPlaceholder = L"\uE000\uE001";
  ForEachCase(kCases, [&](Random& random) {
    std::wstring text = random.Text(kLongest);
    std::erase(text, L'\uE000');
    std::wstring expected;
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] == L'\n' && (i == 0 || text[i - 1] != L'\r')) expected += L'\r';
      expected += text[i];
    }
    EXPECT_EQ(extract::WithCrLf(text, kPlaceholder), expected);
  });
}

TEST(HostileTextsTest, UpToNulIsAPrefixWithoutNul) {
  ForEachCase(kCases, [](Random& random) {
    const std::wstring buffer = random.Text(kLongest);
    const std::size_t nul = buffer.find(L'\0');
    EXPECT_EQ(extract::UpToNul(buffer),
              nul == std::wstring::npos ? std::wstring() : buffer.substr(0, nul));
  });
}

// Without the checks for what CutDblQuot rejects.
std::wstring WithoutQuotes(std::wstring text) {
  text = platform::Trimmed(text);
  const bool quoted = text.size() > 1 && text.front() == L'"' && text.back() == L'"';
  return quoted ? WithoutQuotes(text.substr(1, text.size() - 2)) : text;
}

TEST(HostileTextsTest, QuotesAreCutUntilNoneEncloses) {
  static constexpr std::wstring_view kBefore[] = {L"\"", L" \"", L" ", L"\" "};
  ForEachCase(kCases, [](Random& random) {
    std::wstring text = random.Text(30);
    for (int i = random.Below(6); i > 0; --i) {
      const std::wstring before(random.OneOf(kBefore));
      text = before + text + (random.Chance(90) ? L"\"" : L" ");
    }
    const std::wstring expected = WithoutQuotes(text);
    if (expected == L"\"") {
      EXPECT_THROW(extract::CutDblQuot(text), platform::NumberedError);
    } else {
      EXPECT_EQ(extract::CutDblQuot(text), expected);
    }
  });
}

TEST(HostileTextsTest, TextIsFoundWhateverItsCase) {
  ForEachCase(kCases, [](Random& random) {
    const std::wstring part = random.Text(8);
    std::wstring other = part;
    for (wchar_t& unit : other) {
      if (unit >= L'a' && unit <= L'z') unit = static_cast<wchar_t>(unit - 32);
    }
    EXPECT_TRUE(extract::ContainsIgnoringCase(random.Text(50) + other + random.Text(50), part));
    EXPECT_EQ(extract::ContainsIgnoringCase(L"", part), part.empty());
  });
}

TEST(HostileTextsTest, CharacterCountsAreTrue) {
  ForEachCase(kCases, [](Random& random) {
    const std::wstring text = random.Text(kLongest);
    extract::TextCount count = extract::GetTextCount(text);
    const auto units = static_cast<std::int32_t>(text.size());
    EXPECT_EQ(count.chars, units - Occurrences(text, L"\r\n"));
    EXPECT_EQ(count.lineBreaks, Occurrences(text, L"\r\n"));
    EXPECT_EQ(count.spaces, std::count(text.begin(), text.end(), L' '));
    EXPECT_EQ(count.wideSpaces, std::count(text.begin(), text.end(), L'\u3000'));
    EXPECT_EQ(count.tabs, std::count(text.begin(), text.end(), L'\t'));
    EXPECT_EQ(count.bytes, text.empty() ? 0
                                        : WideCharToMultiByte(932, 0, text.data(), units, nullptr,
                                                              0, nullptr, nullptr));
    EXPECT_EQ(count.wide, count.bytes - units);
    EXPECT_EQ(extract::GetTextCountInfo(text), extract::CountLine(count));
  });
}

// Reads comma-separated values as a spreadsheet does.
std::vector<std::vector<std::wstring>> Spreadsheet(const std::wstring& csv) {
  std::vector<std::vector<std::wstring>> rows;
  std::vector<std::wstring> row(1);
  bool quoted = false;
  for (std::size_t i = 0; i < csv.size(); ++i) {
    const wchar_t unit = csv[i];
    if (quoted) {
      if (unit != L'"') {
        row.back() += unit;
      } else if (csv.compare(i, 2, L"\"\"") == 0) {
        row.back() += csv[++i];
      } else {
        quoted = false;
      }
    } else if (unit == L'"') {
      quoted = true;
    } else if (unit == L',') {
      row.emplace_back();
    } else if (csv.compare(i, 2, L"\r\n") == 0) {
      rows.push_back(row);
      row.assign(1, L"");
      ++i;
    } else {
      row.back() += unit;
    }
  }
  return rows;
}

TEST(HostileTextsTest, ASpreadsheetGetsTheCellsBack) {
  ForEachCase(kCases, [](Random& random) {
    const std::wstring text = random.Text(kLongest);
    std::vector<std::vector<std::wstring>> rows;
    if (!text.empty()) {
      for (const std::wstring& row : SplitAt(text, L"\r\n")) rows.push_back(SplitAt(row, L"\t"));
    }
    EXPECT_EQ(Spreadsheet(extract::ToCsv(text)), rows);
  });
}

TEST(HostileTextsTest, CutTextsStartLikeTheWholeOnes) {
  ForEachCase(kCases, [](Random& random) {
    std::wstring text = random.Text(kLongest);
    if (random.Chance(5)) text.resize(static_cast<std::size_t>(random.Below(200000)), L'長');
    const std::wstring shown = capture::CutText(text, random.Chance(50) ? L"" : L"保存.txt");
    const std::wstring kept = text.substr(0, capture::kShownOfOverlong);
    EXPECT_TRUE(shown.starts_with(kept));
    EXPECT_LT(shown.size(), kept.size() + 200);
    EXPECT_NE(shown.find(L"文字数オーバー　65000文字迄", kept.size()), std::wstring::npos);
  });
}

TEST(HostileTextsTest, NamesAreCutToTheirLength) {
  ForEachCase(kCases, [](Random& random) {
    const std::wstring name = random.Text(200);
    const std::int32_t most = random.Number();
    const auto kept = static_cast<std::size_t>(std::max(most, 0));
    EXPECT_EQ(MyAccessible::ShortName(name, most),
              name.size() > kept ? name.substr(0, kept) + L"......." : name);
  });
}

TEST(HostileTextsTest, ConvertingToTheCodePageAndBackIsStable) {
  ForEachCase(kCases, [](Random& random) {
    const std::wstring text = random.Text(kLongest);
    const std::string bytes = platform::ToAnsi(text);
    EXPECT_GE(bytes.size() * 2, text.size());
    EXPECT_LE(bytes.size(), text.size() * 2);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\0'),
              std::count(text.begin(), text.end(), L'\0'));
    EXPECT_EQ(platform::ToAnsi(platform::FromAnsi(bytes)), bytes);

    const std::string any = random.Bytes(kLongest);
    const std::wstring wide = platform::FromAnsi(any);
    EXPECT_LE(wide.size(), any.size());
    EXPECT_GE(wide.size() * 2, any.size());
  });
}

TEST(HostileTextsTest, BlanksAreTrimmedAndNothingElse) {
  ForEachCase(kCases, [](Random& random) {
    const std::wstring core = L"x" + random.Text(kLongest) + L"x";
    const std::wstring before(static_cast<std::size_t>(random.Below(5)), L' ');
    const std::wstring after(static_cast<std::size_t>(random.Below(5)), L' ');
    EXPECT_EQ(platform::Trimmed(before + core + after), core);
    EXPECT_EQ(platform::Trimmed(before + after), L"");
  });
}

TEST(HostileTextsTest, RatiosAreTheNearestIntegers) {
  ForEachCase(kCases, [](Random& random) {
    const std::int64_t numerator =
        random.Chance(50)
            ? random.Number()
            : static_cast<std::int64_t>(std::uint64_t{random.Bits()} << 31U | random.Bits()) *
                  (random.Chance(50) ? 1 : -1);
    const std::int64_t denominator =
        1 + (random.Chance(50) ? random.Below(40) : std::int64_t{random.Bits()} * 77);
    const std::int32_t rounded = platform::RoundedRatio(numerator, denominator);
    // The distance from the result in units of 1 / denominator, exact in 64-bit mantissas.
    const long double exact =
        static_cast<long double>(numerator) / static_cast<long double>(denominator);
    if (exact >= 2147483647.0L) {
      EXPECT_EQ(rounded, INT32_MAX);
    } else if (exact <= -2147483648.0L) {
      EXPECT_EQ(rounded, INT32_MIN);
    } else {
      const std::int64_t rest = numerator - std::int64_t{rounded} * denominator;
      EXPECT_LE(rest * 2, denominator);
      EXPECT_GE(rest * 2, -denominator);
      const bool isHalf = rest * 2 == denominator || rest * 2 == -denominator;
      EXPECT_TRUE(!isHalf || rounded % 2 == 0);
    }
  });
}

TEST(HostileTextsTest, OnlyKeysHaveNames) {
  ForEachCase(kCases, [](Random& random) {
    const std::int32_t key = random.Chance(50) ? random.Below(300) : random.Number();
    const std::wstring_view name = MyKeyboard::KeyName(key);
    EXPECT_LT(name.size(), 40U);
    EXPECT_TRUE((key >= 0 && key <= 256) || name.empty());

    const std::wstring text =
        random.Chance(50) ? random.Text(20) : std::wstring(random.OneOf(MySub_HotKey::HotKeyNames));
    const auto found = std::ranges::find(MySub_HotKey::HotKeyNames, text);
    const std::int32_t code = MySub_HotKey::HotKeyCode(text);
    if (found == MySub_HotKey::HotKeyNames.end()) {
      EXPECT_EQ(code, 0);
    } else {
      EXPECT_EQ(code, MySub_HotKey::HotKeyCodes[static_cast<std::size_t>(
                          found - MySub_HotKey::HotKeyNames.begin())]);
    }
  });
}

TEST(HostileTextsTest, StatesAreTheSumOfTheirBits) {
  ForEachCase(kCases, [](Random& random) {
    const std::uint32_t state = random.Bits() & random.Bits();
    std::wstring words;
    for (std::uint32_t bit = 1; bit != 0; bit <<= 1U) {
      if ((state & bit) != 0) words += MyAccessible::StateWords(bit);
    }
    // Their order may differ.
    const std::wstring together = MyAccessible::StateWords(state);
    EXPECT_TRUE(std::is_permutation(words.begin(), words.end(), together.begin(), together.end()));
    EXPECT_LT(MyAccessible::RoleWord(random.Text(30)).size(), 40U);
    EXPECT_LT(MyAccessible::RoleWord(std::to_wstring(random.Number())).size(), 40U);
  });
}

TEST(HostileTextsTest, WindowFactsOfAnyKindMakeLines) {
  ForEachCase(kCases, [](Random& random) {
    const auto facts = [&random] {
      report::WindowFacts made;
      made.hwnd = reinterpret_cast<HWND>(UINT_PTR{random.Bits()});
      made.className = random.Text(100);
      made.title = random.Text(300);
      made.place = {random.Number(), random.Number(), random.Number(), random.Number()};
      return made;
    };
    report::WindowInformation information{facts(), facts(), {}, {}};
    for (int i = random.Below(4); i > 0; --i) information.ancestors.push_back(facts());
    for (int i = random.Below(4); i > 0; --i) information.children.push_back(facts());
    const std::wstring text =
        report::WindowInformationText(information, random.Chance(50) ? L"hex" : random.Text(5));
    EXPECT_TRUE(text.ends_with(L"\r\n"));
    EXPECT_NE(text.find(information.window.title), std::wstring::npos);
    (void)report::CategoryOf(random.Text(300));
    EXPECT_NE(platform::ShownHandle(information.window.hwnd, random.Text(4)), L"");
  });
}

}  // namespace
}  // namespace hostile
