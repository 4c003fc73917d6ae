// The sink of a second way of reading: it replaces what the first way put in, but not before there
// is a text. A second way that gives none leaves everything as the first left it.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/ItemSink.h"

namespace platform {

class SecondSink : public ItemSink {
 public:
  explicit SecondSink(ItemSink& sink) : sink_(sink) {}

  void Cell(std::wstring_view text) override;
  void EndRow() override;
  void Text(std::wstring_view text) override;
  void IsStartOf(std::size_t characters) override;
  void EndWith(Ending ending) override;
  void Discard() override;
  std::size_t Size() const override { return hasText_ ? sink_.Size() : 0; }
  bool HasText() const override { return hasText_; }

 private:
  enum class Held : bool { kEmptyCell, kEndOfRow };

  void Replace();

  ItemSink& sink_;
  bool hasText_ = false;
  std::vector<Held> held_;  // what came before the first text
};

}  // namespace platform
