// Items as the text of a pane: each row a line, cells separated by TAB.
#pragma once

#include <string>

#include "platform/ItemSink.h"

namespace platform {

// The marks that end a text whose reading ended early; the second one without its line end.
constexpr std::wstring_view kInterruptedMark = L"・・・中断・・・";
constexpr std::wstring_view kRestOmittedLine =
    L"-- 以下省略 -- 個数変更：[設定]→[MSAA] …Child最大取得個数";

class TextSink : public ItemSink {
 public:
  void Cell(std::wstring_view text) override;
  void EndRow() override;
  void Text(std::wstring_view text) override;
  void EndWith(Ending ending) override;
  void Discard() override;
  std::size_t Size() const override { return text_.size(); }

  // Returns the text and empties the sink.
  std::wstring Take();

 private:
  std::wstring text_;
  bool inRow_ = false;
};

}  // namespace platform
