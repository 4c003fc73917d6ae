// How the program for scripts ends.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "TextProgram.h"
#include "cross/ListFixture.h"
#include "driver/Target.h"

namespace console {
namespace {

using Clock = std::chrono::steady_clock;
using gui::ChildProcess;
using gui::Fixture;
using testing::HasSubstr;
using testing::StartsWith;

TEST(ExitCodesTest, AReadTextIs0) {
  const Fixture fixture("title=名簿 static=名札 edit=文");
  const Ran named = RunText(OfWindow(fixture["static"].Handle()));
  EXPECT_EQ(named.code, 0U);
  EXPECT_EQ(named.output, "名札\r\n");
  const Ran found = RunText("--title 名簿 --control edit");
  EXPECT_EQ(found.code, 0U);
  EXPECT_EQ(found.output, "文\r\n");
}

TEST(ExitCodesTest, NothingThereIs1) {
  const Fixture fixture("title=t blank");
  const Ran ran = RunText(OfWindow(fixture["blank"].Handle()));
  EXPECT_EQ(ran.code, 1U);
  EXPECT_EQ(ran.output, "");
}

TEST(ExitCodesTest, AWrongArgumentIs2AndNamesItself) {
  const Ran unknown = RunText("--jsn", ChildProcess::Output::kReadErrors);
  EXPECT_EQ(unknown.code, 2U);
  EXPECT_THAT(unknown.output, HasSubstr("--jsn"));
  const Ran value = RunText("--json --at 10;20", ChildProcess::Output::kReadErrors);
  EXPECT_EQ(value.code, 2U);
  EXPECT_THAT(value.output, StartsWith("--at"));
  EXPECT_THAT(value.output, HasSubstr("10;20"));
  EXPECT_EQ(RunText("--jsn").output, "");
}

TEST(ExitCodesTest, NoSuchWindowIs3) {
  EXPECT_EQ(RunText("--window x7FFFFFFE").code, 3U);
  EXPECT_EQ(RunText("--title そのような題のウィンドウはない").code, 3U);
  const Fixture fixture("title=部品なし edit=文");
  EXPECT_EQ(RunText("--title 部品なし --control Edit:2").code, 3U);
}

TEST(ExitCodesTest, AProgramThatDiesMeanwhileIs3) {
  cross::ListFixture fixture(cross::Bits::k32, "behave=die listbox=many:50");
  const Ran ran = RunText(OfWindow(fixture["listbox"]));
  EXPECT_EQ(ran.code, 3U);
  EXPECT_EQ(ran.output, "");
}

TEST(ExitCodesTest, AProgramThatDoesNotAnswerIs5) {
  const Fixture fixture("title=t edit=文");
  fixture.Hang(gui::Milliseconds(20'000));
  const auto start = Clock::now();
  const Ran ran = RunText(OfWindow(fixture["edit"].Handle()) + " --timeout 1");
  EXPECT_EQ(ran.code, 5U);
  EXPECT_EQ(ran.output, "");
  EXPECT_GE(Clock::now() - start, std::chrono::seconds(1));
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(4));
}

TEST(ExitCodesTest, AWindowThatIsKnownToHangIs5AtOnce) {
  const Fixture fixture("title=題 edit=文");
  const HWND main = fixture["main"].Handle();
  fixture.Hang(gui::Milliseconds(30'000));
  ASSERT_TRUE(gui::WaitFor("the system knows", [&](std::string&) {
    // A message must wait for an answer before the system counts.
    SendMessageTimeoutW(main, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 100, nullptr);
    return IsHungAppWindow(main) != FALSE;
  }));
  const auto start = Clock::now();
  const Ran ran = RunText(OfWindow(main) + " --json --tree --timeout 20");
  EXPECT_EQ(ran.code, 5U);
  EXPECT_THAT(ran.output, HasSubstr(R"("title":"題")"));
  EXPECT_THAT(ran.output, HasSubstr(R"("remarks":["hung"])"));
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(4));
}

TEST(ExitCodesTest, HelpAndVersionAre0) {
  const Ran version = RunText("--version");
  EXPECT_EQ(version.code, 0U);
  EXPECT_THAT(version.output, StartsWith("VelmoraText "));
  const Ran help = RunText("--help");
  EXPECT_EQ(help.code, 0U);
  EXPECT_THAT(help.output, HasSubstr("--timeout SECONDS"));
}

}  // namespace
}  // namespace console
