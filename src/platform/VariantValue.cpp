#include "platform/VariantValue.h"

#include <algorithm>
#include <iterator>

#include "platform/ComOwners.h"

namespace platform {
namespace {

constexpr VARTYPE kNoValues[] = {VT_EMPTY, VT_NULL, VT_ERROR, VT_DISPATCH, VT_UNKNOWN};

bool Convert(const VARIANT& value, VARTYPE type, UniqueVariant& converted) {
  if (std::ranges::find(kNoValues, value.vt) != std::end(kNoValues)) return false;
  // The header lacks the const; the value is only read.
  auto* const source = const_cast<VARIANT*>(&value);
  return SUCCEEDED(VariantChangeType(converted.Receive(), source, 0, type));
}

}  // namespace

std::optional<std::int32_t> NumberIn(const VARIANT& value) {
  UniqueVariant number;
  if (!Convert(value, VT_I4, number)) return std::nullopt;
  return number.Get().lVal;
}

std::wstring TextIn(const VARIANT& value) {
  if (value.vt == VT_BSTR) return {value.bstrVal, SysStringLen(value.bstrVal)};
  UniqueVariant text;
  if (!Convert(value, VT_BSTR, text)) return {};
  return {text.Get().bstrVal, SysStringLen(text.Get().bstrVal)};
}

}  // namespace platform
