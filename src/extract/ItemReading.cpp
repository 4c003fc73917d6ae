#include "extract/ItemReading.h"

namespace extract {
namespace {

constexpr std::size_t kLongestText = 1U << 26;

}  // namespace

bool Interrupted(HWND hwnd, const platform::ReadSession& session, std::wstring& text) {
  if (session.target == hwnd && text.size() <= kLongestText) return false;
  text += platform::kInterrupted;
  return true;
}

void Progress(const platform::ReadSession& session, std::int32_t done, std::wstring_view separator,
              std::int32_t total) {
  std::wstring text = std::to_wstring(done);
  text += separator;
  text += std::to_wstring(total);
  session.showProgress(text);
  session.yield();
}

}  // namespace extract
