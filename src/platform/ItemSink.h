// Where a reader puts what it reads, as it reads it: into a pane's text, for example.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/Interface.h"

namespace platform {

// Why a reading ends before its last item, or without any.
enum class Ending {
  kInterrupted,  // the pointer has left, or the capture ends
  kRestOmitted,  // as many items were read as the settings allow
  kNoObject,     // there is no accessible object whose items could be listed
};

class ItemSink : public platform::Interface {
 public:
  // The next cell of the row; the row's end. Items without columns are rows of one cell.
  virtual void Cell(std::wstring_view text) = 0;
  virtual void EndRow() = 0;

  // A text that is not an item, added unchanged.
  virtual void Text(std::wstring_view text) = 0;

  // The texts are only the start of one of so many characters. The reader says so at its end.
  virtual void IsStartOf(std::size_t characters) = 0;

  virtual void EndWith(Ending ending) = 0;

  // Drops everything, because another reader follows.
  virtual void Discard() = 0;

  // How many characters were put in, marks included; whether a text was among them.
  virtual std::size_t Size() const = 0;
  virtual bool HasText() const = 0;
};

// A row of one cell.
inline void PutItem(ItemSink& sink, std::wstring_view text) {
  sink.Cell(text);
  sink.EndRow();
}

}  // namespace platform
