#include "platform/TextSink.h"

#include <utility>

#include "platform/LineEnd.h"

namespace platform {

void TextSink::Cell(std::wstring_view text) {
  if (inRow_) text_ += L'\t';
  Text(text);
  inRow_ = true;
}

void TextSink::EndRow() {
  text_ += kCrLf;
  inRow_ = false;
}

void TextSink::Text(std::wstring_view text) {
  text_ += text;
  hasText_ = hasText_ || !text.empty();
}

void TextSink::EndWith(Ending ending) {
  ending_ = ending;
  switch (ending) {
    case Ending::kInterrupted:
      text_ += kInterruptedMark;
      break;
    case Ending::kRestOmitted:
      text_.append(kRestOmittedLine).append(kCrLf);
      break;
    case Ending::kNoObject:
      text_ += kNoObjectMark;
      break;
  }
}

void TextSink::Discard() {
  text_.clear();
  inRow_ = false;
  hasText_ = false;
  whole_ = 0;
  ending_.reset();
}

std::wstring TextSink::Take() {
  std::wstring text = std::move(text_);
  Discard();
  return text;
}

}  // namespace platform
