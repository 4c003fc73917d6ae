// Items as the text of a pane: each row a line, cells separated by TAB.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/ItemSink.h"

namespace platform {

// The marks that end a text whose reading ended early. The second one without its line end; the
// last one is shown in place of a listing (odd, and stays: docs/ODDITIES.md).
constexpr std::wstring_view kInterruptedMark = L"・・・中断・・・";
constexpr std::wstring_view kRestOmittedLine =
    L"-- 以下省略 -- 個数変更：[設定]→[MSAA] …Child最大取得個数";
constexpr std::wstring_view kNoObjectMark = L"% 取得エラー！ %";

class TextSink : public ItemSink {
 public:
  void Cell(std::wstring_view text) override;
  void EndRow() override;
  void Text(std::wstring_view text) override;
  void IsStartOf(std::size_t characters) override { whole_ = characters; }
  void EndWith(Ending ending) override;
  void Discard() override;
  std::size_t Size() const override { return text_.size(); }
  bool HasText() const override { return hasText_; }

  // How the reading ended, when it ended early.
  std::optional<Ending> Ended() const { return ending_; }

  // The characters of the text of which only the start was put in; 0 when it is whole.
  std::size_t Whole() const { return whole_; }

  // Returns the text and empties the sink.
  std::wstring Take();

 private:
  std::wstring text_;
  bool inRow_ = false;
  bool hasText_ = false;
  std::size_t whole_ = 0;
  std::optional<Ending> ending_;
};

}  // namespace platform
