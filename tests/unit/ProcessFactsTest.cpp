#include "report/ProcessFacts.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "platform/UniqueHandle.h"
#include "report/Elevation.h"

namespace report {
namespace {

TEST(ProcessFactsTest, TheProgramOfAWindow) {
  const platform::UniqueWindow window(
      CreateWindowW(L"STATIC", L"", 0, 0, 0, 10, 10, HWND_MESSAGE, nullptr, nullptr, nullptr));
  const ProcessFacts facts = ReadProcessFacts(window.Get());
  std::wstring ownFile(MAX_PATH, L'\0');
  ownFile.resize(GetModuleFileNameW(nullptr, ownFile.data(), MAX_PATH));
  EXPECT_EQ(facts.id, GetCurrentProcessId());
  EXPECT_EQ(facts.file, ownFile);
  EXPECT_EQ(facts.is64, false);
  EXPECT_TRUE(facts.elevated);
  EXPECT_EQ(facts.elevated, IsElevated(GetCurrentProcess()));
  EXPECT_FALSE(RunsAboveThisProgram(window.Get()));
}

TEST(ProcessFactsTest, WithoutAWindowNothingIsKnown) {
  const ProcessFacts facts = ReadProcessFacts(nullptr);
  EXPECT_EQ(facts.id, 0U);
  EXPECT_EQ(facts.file, L"");
  EXPECT_FALSE(facts.is64);
  EXPECT_FALSE(facts.elevated);
  EXPECT_FALSE(RunsAboveThisProgram(nullptr));
}

}  // namespace
}  // namespace report
