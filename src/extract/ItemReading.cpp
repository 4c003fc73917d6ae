#include "extract/ItemReading.h"

namespace extract {
namespace {

constexpr std::size_t kLongestText = 1U << 26;

}  // namespace

bool Interrupted(const platform::ReadSession& session, platform::ReadUntil end,
                 platform::ItemSink& sink) {
  if (session.GoesOn(end) && sink.Size() <= kLongestText) return false;
  sink.EndWith(platform::Ending::kInterrupted);
  return true;
}

void Progress(const platform::ReadSession& session, std::int32_t done, std::wstring_view separator,
              std::int32_t total) {
  std::wstring text = std::to_wstring(done);
  text += separator;
  text += std::to_wstring(total);
  session.Step(text);
}

}  // namespace extract
