#include "console/ItemTable.h"

#include <utility>

namespace console {

void ItemTable::Cell(std::wstring_view text) {
  row_.emplace_back(text);
  size_ += text.size() + 1;
  hasText_ = hasText_ || !text.empty();
}

void ItemTable::EndRow() {
  Row row = std::exchange(row_, {});
  if (rows_.size() == most_) {
    full_ = true;
    return;
  }
  rows_.push_back(std::move(row));
}

void ItemTable::Text(std::wstring_view text) {
  text_ += text;
  size_ += text.size();
  hasText_ = hasText_ || !text.empty();
}

void ItemTable::Discard() {
  rows_.clear();
  row_.clear();
  text_.clear();
  size_ = 0;
  whole_ = 0;
  hasText_ = false;
  full_ = false;
  ending_.reset();
}

}  // namespace console
