#include "platform/NumberText.h"

#include <algorithm>
#include <array>
#include <cwchar>

#include "platform/Rounding.h"

namespace platform {
namespace {

// Larger than every 32-bit number, small enough that one more digit cannot overflow 64 bits.
constexpr std::int64_t kTooLarge = std::int64_t{1} << 40;
bool IsDigit(wchar_t unit) { return unit >= L'0' && unit <= L'9'; }

}  // namespace

std::int32_t LeadingNumber(std::wstring_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(L' '), text.size()));
  const bool negative = text.starts_with(L'-');
  if (negative || text.starts_with(L'+')) text.remove_prefix(1);

  std::int64_t whole = 0;
  for (; !text.empty() && IsDigit(text.front()); text.remove_prefix(1)) {
    whole = std::min(whole * 10 + (text.front() - L'0'), kTooLarge);
  }

  // For rounding it only matters whether the fraction is below, at or above one half.
  std::int64_t quarters = 0;
  if (text.starts_with(L'.')) {
    text.remove_prefix(1);
    const auto end = std::ranges::find_if_not(text, IsDigit);
    const std::wstring_view digits(text.begin(), end);
    if (!digits.empty()) {
      const bool restIsZero = digits.find_first_not_of(L'0', 1) == digits.npos;
      if (digits.front() > L'5' || (digits.front() == L'5' && !restIsZero)) {
        quarters = 3;
      } else if (digits.front() == L'5') {
        quarters = 2;
      }
    }
  }
  const std::int64_t total = whole * 4 + quarters;
  return platform::RoundedRatio(negative ? -total : total, 4);
}

std::wstring Hexadecimal(std::int32_t number) {
  std::array<wchar_t, 9> digits{};
  std::swprintf(digits.data(), digits.size(), L"%X", static_cast<unsigned>(number));
  return digits.data();
}

std::wstring RightAligned(std::wstring_view text, std::size_t width) {
  std::wstring aligned(width - std::min(width, text.size()), L' ');
  return aligned.append(text);
}

}  // namespace platform
