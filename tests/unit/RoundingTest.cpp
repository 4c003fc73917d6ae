#include "platform/Rounding.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <limits>

namespace {

constexpr std::int64_t kMin32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kMax32 = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t kMin64 = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMax64 = std::numeric_limits<std::int64_t>::max();

struct RatioCase {
  std::int64_t numerator;
  std::int64_t denominator;
  std::int64_t rounded;
};

void ExpectRows(std::initializer_list<RatioCase> rows) {
  for (const RatioCase& row : rows) {
    EXPECT_EQ(platform::RoundedRatio(row.numerator, row.denominator), row.rounded)
        << row.numerator << "/" << row.denominator;
  }
}

TEST(RoundedRatio, GivesTheEvenNeighbourOfAHalf) {
  ExpectRows({{1, 2, 0}, {3, 2, 2}, {5, 2, 2}, {7, 2, 4}});
  ExpectRows({{-1, 2, 0}, {-3, 2, -2}, {-5, 2, -2}, {-7, 2, -4}});
}

TEST(RoundedRatio, GivesTheNearestNumberAroundAHalf) {
  ExpectRows({{2499, 1000, 2}, {2500, 1000, 2}, {2501, 1000, 3}});
  ExpectRows({{3499, 1000, 3}, {3500, 1000, 4}, {3501, 1000, 4}});
  ExpectRows({{-2499, 1000, -2}, {-2500, 1000, -2}, {-2501, 1000, -3}});
}

TEST(RoundedRatio, KeepsWholeNumbers) {
  ExpectRows({{0, 1, 0}, {0, 7, 0}, {42, 1, 42}, {-42, 1, -42}, {84, 2, 42}, {-84, 2, -42}});
}

TEST(RoundedRatio, CutsWhatDoesNotFitInto32Bits) {
  ExpectRows({{kMax32, 1, kMax32}, {kMax32 + 1, 1, kMax32}, {kMax64, 1, kMax32}});
  ExpectRows({{kMin32, 1, kMin32}, {kMin32 - 1, 1, kMin32}, {kMin64, 1, kMin32}});
}

// The rule without division: the result is at most half a denominator away, and exactly half
// only from an even result.
TEST(RoundedRatio, IsNeverFurtherThanHalfADenominatorAway) {
  for (std::int64_t denominator = 1; denominator <= 64; ++denominator) {
    for (std::int64_t numerator = -1000; numerator <= 1000; ++numerator) {
      const std::int64_t rounded = platform::RoundedRatio(numerator, denominator);
      const std::int64_t doubledGap = 2 * (numerator - rounded * denominator);
      const std::int64_t distance = doubledGap < 0 ? -doubledGap : doubledGap;
      ASSERT_LE(distance, denominator) << numerator << "/" << denominator;
      if (distance == denominator) {
        ASSERT_EQ(rounded % 2, 0) << numerator << "/" << denominator;
      }
    }
  }
}

TEST(RoundedRatio, IsSymmetricAroundZero) {
  for (std::int64_t denominator = 1; denominator <= 16; ++denominator) {
    for (std::int64_t numerator = 0; numerator <= 500; ++numerator) {
      ASSERT_EQ(platform::RoundedRatio(-numerator, denominator),
                -platform::RoundedRatio(numerator, denominator))
          << numerator << "/" << denominator;
    }
  }
}

TEST(ClampToInt32, KeepsWhatFitsAndCutsTheRest) {
  EXPECT_EQ(platform::ClampToInt32(0), 0);
  EXPECT_EQ(platform::ClampToInt32(kMax32), kMax32);
  EXPECT_EQ(platform::ClampToInt32(kMin32), kMin32);
  EXPECT_EQ(platform::ClampToInt32(kMax32 + 1), kMax32);
  EXPECT_EQ(platform::ClampToInt32(kMin32 - 1), kMin32);
  EXPECT_EQ(platform::ClampToInt32(kMax64), kMax32);
  EXPECT_EQ(platform::ClampToInt32(kMin64), kMin32);
}

}  // namespace
