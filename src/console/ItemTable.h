// The items of a control as rows of cells.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/ItemSink.h"

namespace console {

using Row = std::vector<std::wstring>;

class ItemTable : public platform::ItemSink {
 public:
  // Rows beyond most are dropped.
  explicit ItemTable(std::size_t most) : most_(most) {}

  void Cell(std::wstring_view text) override;
  void EndRow() override;
  void Text(std::wstring_view text) override;
  void IsStartOf(std::size_t characters) override { whole_ = characters; }
  void EndWith(platform::Ending ending) override { ending_ = ending; }
  void Discard() override;
  std::size_t Size() const override { return size_; }
  bool HasText() const override { return hasText_; }

  const std::vector<Row>& Rows() const { return rows_; }
  const std::wstring& Words() const { return text_; }  // what is no item

  // Whether a row was dropped: no more need be read.
  bool IsFull() const { return full_; }
  // Whether nothing is missing.
  bool IsComplete() const { return !full_ && !ending_ && whole_ == 0; }

 private:
  std::size_t most_;
  std::vector<Row> rows_;
  Row row_;
  std::wstring text_;
  std::size_t size_ = 0;
  std::size_t whole_ = 0;
  bool hasText_ = false;
  bool full_ = false;
  std::optional<platform::Ending> ending_;
};

}  // namespace console
