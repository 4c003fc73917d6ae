#include "platform/HandleText.h"

#include <gtest/gtest.h>

#include "FakeCapture.h"

namespace platform {
namespace {

TEST(HandleTest, IsSignedDecimalOrUpperCaseHexadecimal) {
  EXPECT_EQ(DecimalHandle(WindowNumber(1312948)), L"1312948");
  EXPECT_EQ(HexHandle(WindowNumber(1312948)), L"1408B4");
  EXPECT_EQ(DecimalHandle(nullptr), L"0");
  EXPECT_EQ(HexHandle(nullptr), L"0");
  EXPECT_EQ(DecimalHandle(WindowNumber(-2)), L"-2");
  EXPECT_EQ(HexHandle(WindowNumber(-2)), L"FFFFFFFE");
}

TEST(HandleTest, IsShownAsTheSettingSays) {
  EXPECT_EQ(ShownHandle(WindowNumber(255), L"dec"), L"255");
  EXPECT_EQ(ShownHandle(WindowNumber(255), L"hex"), L"FF");
  EXPECT_EQ(ShownHandle(WindowNumber(255), L"Hex"), L"255");
  EXPECT_EQ(ShownHandle(WindowNumber(255), L""), L"255");
}

}  // namespace
}  // namespace platform
