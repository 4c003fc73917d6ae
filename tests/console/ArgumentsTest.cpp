#include "console/Arguments.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "console/Words.h"

namespace console {
namespace {

using Words = std::vector<std::wstring>;

Arguments Good(const Words& words) {
  const ParsedArguments parsed = ParseArguments(words);
  EXPECT_FALSE(parsed.fault.has_value());
  return parsed.arguments;
}

HWND Handle(std::uintptr_t number) { return reinterpret_cast<HWND>(number); }

TEST(ArgumentsTest, WithoutWordsThePointerIsReadAsText) {
  const Arguments arguments = Good({});
  EXPECT_EQ(arguments.wish, Wish::kRead);
  EXPECT_EQ(arguments.place, Place::kPointer);
  EXPECT_EQ(arguments.form, Form::kText);
  EXPECT_EQ(arguments.timeoutSeconds, 10);
  EXPECT_EQ(arguments.afterSeconds, 0);
  EXPECT_FALSE(arguments.tree);
  EXPECT_FALSE(arguments.most.has_value());
}

TEST(ArgumentsTest, APointMayLieLeftOfTheFirstScreen) {
  const Arguments arguments = Good({L"--at", L"-1280,20"});
  EXPECT_EQ(arguments.place, Place::kPoint);
  EXPECT_EQ(arguments.point.x, -1280);
  EXPECT_EQ(arguments.point.y, 20);
}

TEST(ArgumentsTest, HandlesAreDecimalOrHexadecimal) {
  EXPECT_EQ(Good({L"--window", L"65630"}).window, Handle(65630));
  EXPECT_EQ(Good({L"--window", L"x1005e"}).window, Handle(0x1005E));
  EXPECT_EQ(Good({L"--window", L"XFFFFFFFE"}).window, Handle(0xFFFF'FFFE));
  EXPECT_EQ(Good({L"--window", L"4294967294"}).window, Handle(0xFFFF'FFFE));
  EXPECT_EQ(Good({L"--window", L"-2"}).window, Handle(0xFFFF'FFFE));
}

TEST(ArgumentsTest, AControlHasAClassAndPerhapsANumber) {
  const Arguments first = Good({L"--title", L"名簿", L"--control", L"SysListView32"});
  EXPECT_EQ(first.title, L"名簿");
  EXPECT_EQ(first.control, (ControlWanted{L"SysListView32", 1}));
  EXPECT_EQ(Good({L"--control", L"Edit:3", L"--title", L"t"}).control, (ControlWanted{L"Edit", 3}));
  EXPECT_EQ(Good({L"--control", L"Afx:400:2", L"--title", L"t"}).control,
            (ControlWanted{L"Afx:400", 2}));
}

TEST(ArgumentsTest, FormsAndLimits) {
  EXPECT_EQ(Good({L"--csv"}).form, Form::kCsv);
  EXPECT_EQ(Good({L"--json"}).form, Form::kJson);
  EXPECT_TRUE(Good({L"--json", L"--tree"}).tree);
  EXPECT_EQ(Good({L"--most", L"25"}).most, 25);
  EXPECT_EQ(Good({L"--after", L"3"}).afterSeconds, 3);
  EXPECT_EQ(Good({L"--timeout", L"60"}).timeoutSeconds, 60);
  EXPECT_EQ(Good({L"--watch", L"--json"}).wish, Wish::kWatch);
}

TEST(ArgumentsTest, HelpComesWhateverElseIsWrong) {
  EXPECT_EQ(Good({L"--nonsense", L"--help"}).wish, Wish::kHelp);
  EXPECT_EQ(Good({L"--at", L"--version"}).wish, Wish::kVersion);
}

struct Case {
  Words words;
  ArgumentFault fault;
};

TEST(ArgumentsTest, AWrongArgumentIsNamed) {
  const Case cases[] = {
      {{L"--nonsense"}, {Fault::kUnknown, L"--nonsense", L""}},
      {{L"65630"}, {Fault::kUnknown, L"65630", L""}},
      {{L"--JSON"}, {Fault::kUnknown, L"--JSON", L""}},
      {{L"--at"}, {Fault::kNoValue, L"--at", L""}},
      {{L"--at", L"10"}, {Fault::kBadValue, L"--at", L"10"}},
      {{L"--at", L"10,"}, {Fault::kBadValue, L"--at", L"10,"}},
      {{L"--at", L"10,20,30"}, {Fault::kBadValue, L"--at", L"10,20,30"}},
      {{L"--at", L"1e3,2"}, {Fault::kBadValue, L"--at", L"1e3,2"}},
      {{L"--at", L"99999999999,2"}, {Fault::kBadValue, L"--at", L"99999999999,2"}},
      {{L"--window", L""}, {Fault::kBadValue, L"--window", L""}},
      {{L"--window", L"x"}, {Fault::kBadValue, L"--window", L"x"}},
      {{L"--window", L"x100000000"}, {Fault::kBadValue, L"--window", L"x100000000"}},
      {{L"--window", L"12ab"}, {Fault::kBadValue, L"--window", L"12ab"}},
      {{L"--title", L""}, {Fault::kBadValue, L"--title", L""}},
      {{L"--title", L"t", L"--control", L"Edit:0"}, {Fault::kBadValue, L"--control", L"Edit:0"}},
      {{L"--title", L"t", L"--control", L":2"}, {Fault::kBadValue, L"--control", L":2"}},
      {{L"--after", L"-1"}, {Fault::kBadValue, L"--after", L"-1"}},
      {{L"--timeout", L"0"}, {Fault::kBadValue, L"--timeout", L"0"}},
      {{L"--most", L"0"}, {Fault::kBadValue, L"--most", L"0"}},
      {{L"--json", L"--json"}, {Fault::kTwice, L"--json", L""}},
      {{L"--at", L"1,2", L"--pointer"}, {Fault::kNotTogether, L"--pointer", L"--at"}},
      {{L"--window", L"1", L"--title", L"t"}, {Fault::kNotTogether, L"--title", L"--window"}},
      {{L"--csv", L"--json"}, {Fault::kNotTogether, L"--json", L"--csv"}},
      {{L"--tree", L"--csv"}, {Fault::kNotTogether, L"--csv", L"--tree"}},
      {{L"--at", L"1,2", L"--watch"}, {Fault::kNotTogether, L"--watch", L"--at"}},
      {{L"--control", L"Edit", L"--at", L"1,2"}, {Fault::kNotTogether, L"--at", L"--control"}},
      {{L"--control", L"Edit"}, {Fault::kNeeds, L"--control", L"--title"}},
  };
  for (const Case& one : cases) {
    const ParsedArguments parsed = ParseArguments(one.words);
    ASSERT_TRUE(parsed.fault.has_value()) << testing::PrintToString(one.words);
    EXPECT_EQ(*parsed.fault, one.fault) << testing::PrintToString(one.words);
    for (const Language language : {Language::kJapanese, Language::kEnglish}) {
      EXPECT_NE(FaultText(*parsed.fault, language).find(one.fault.option), std::wstring::npos);
    }
  }
}

TEST(ArgumentsTest, FaultsAreSaidInBothLanguages) {
  const ArgumentFault fault{Fault::kBadValue, L"--at", L"%1"};
  EXPECT_EQ(FaultText(fault, Language::kJapanese), L"--at：値「%1」は使えません（使い方：--help）");
  EXPECT_EQ(FaultText(fault, Language::kEnglish),
            L"--at: the value \"%1\" cannot be used (see --help)");
}

TEST(ArgumentsTest, TheHelpNamesEveryOption) {
  for (const Language language : {Language::kJapanese, Language::kEnglish}) {
    const std::wstring help = HelpText(language);
    for (const wchar_t* option :
         {L"--pointer", L"--at", L"--window", L"--title", L"--control", L"--csv", L"--json",
          L"--tree", L"--watch", L"--after", L"--timeout", L"--most", L"--help", L"--version"}) {
      EXPECT_NE(help.find(option), std::wstring::npos) << option;
    }
  }
}

}  // namespace
}  // namespace console
