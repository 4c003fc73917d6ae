#include "platform/SecondSink.h"

namespace platform {

void SecondSink::Replace() {
  if (hasText_) return;
  hasText_ = true;
  sink_.Discard();
  for (const Held held : held_) {
    if (held == Held::kEndOfRow) {
      sink_.EndRow();
    } else {
      sink_.Cell({});
    }
  }
  held_ = {};
}

void SecondSink::Cell(std::wstring_view text) {
  if (!text.empty()) Replace();
  if (hasText_) {
    sink_.Cell(text);
  } else {
    held_.push_back(Held::kEmptyCell);
  }
}

void SecondSink::EndRow() {
  if (hasText_) {
    sink_.EndRow();
  } else {
    held_.push_back(Held::kEndOfRow);
  }
}

void SecondSink::Text(std::wstring_view text) {
  if (text.empty()) return;
  Replace();
  sink_.Text(text);
}

void SecondSink::IsStartOf(std::size_t characters) {
  if (hasText_) sink_.IsStartOf(characters);
}

void SecondSink::EndWith(Ending ending) {
  if (hasText_) sink_.EndWith(ending);
}

void SecondSink::Discard() {
  if (hasText_) sink_.Discard();
  hasText_ = false;
  held_ = {};
}

}  // namespace platform
