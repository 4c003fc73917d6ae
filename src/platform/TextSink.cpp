#include "platform/TextSink.h"

#include <utility>

#include "platform/LineEnd.h"

namespace platform {

void TextSink::Cell(std::wstring_view text) {
  if (inRow_) text_ += L'\t';
  text_ += text;
  inRow_ = true;
}

void TextSink::EndRow() {
  text_ += kCrLf;
  inRow_ = false;
}

void TextSink::Text(std::wstring_view text) { text_ += text; }

void TextSink::EndWith(Ending ending) {
  switch (ending) {
    case Ending::kInterrupted:
      text_ += kInterruptedMark;
      break;
    case Ending::kRestOmitted:
      text_.append(kRestOmittedLine).append(kCrLf);
      break;
  }
}

void TextSink::Discard() {
  text_.clear();
  inRow_ = false;
}

std::wstring TextSink::Take() {
  inRow_ = false;
  return std::exchange(text_, {});
}

}  // namespace platform
