// Owners of the two COM value types that are not reference counted; their destructors release.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <string>
#include <string_view>

namespace platform {

// Owns a BSTR, received through Receive() or made from a text.
class UniqueBstr {
 public:
  UniqueBstr() = default;
  explicit UniqueBstr(const wchar_t* text) : text_(SysAllocString(text)) {}
  UniqueBstr(const UniqueBstr&) = delete;
  UniqueBstr& operator=(const UniqueBstr&) = delete;
  ~UniqueBstr() { SysFreeString(text_); }

  // Where a call stores its answer. What was held before is freed.
  BSTR* Receive() noexcept {
    SysFreeString(text_);
    text_ = nullptr;
    return &text_;
  }

  BSTR Get() const noexcept { return text_; }

  // The whole text, embedded zero characters included; empty when nothing is held. A view lasts
  // as long as the text is held.
  std::wstring_view View() const {
    return text_ == nullptr ? std::wstring_view() : std::wstring_view(text_, SysStringLen(text_));
  }
  std::wstring Text() const { return std::wstring(View()); }

 private:
  BSTR text_ = nullptr;
};

// Owns a VARIANT; starts out VT_EMPTY.
class UniqueVariant {
 public:
  UniqueVariant() noexcept { VariantInit(&value_); }
  explicit UniqueVariant(LONG number) noexcept : UniqueVariant() {
    value_.vt = VT_I4;
    value_.lVal = number;
  }
  UniqueVariant(const UniqueVariant&) = delete;
  UniqueVariant& operator=(const UniqueVariant&) = delete;
  ~UniqueVariant() { VariantClear(&value_); }

  // Where a call stores its answer. What was held before is cleared.
  VARIANT* Receive() noexcept {
    VariantClear(&value_);
    return &value_;
  }
  const VARIANT& Get() const noexcept { return value_; }

 private:
  VARIANT value_;
};

}  // namespace platform
