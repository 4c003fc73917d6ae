#include "platform/VariantValue.h"

#include "platform/ComOwners.h"

namespace platform {
namespace {

bool IsValue(const VARIANT& value) {
  switch (value.vt) {
    case VT_EMPTY:
    case VT_NULL:
    case VT_ERROR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return false;
    default:
      return true;
  }
}

bool Convert(const VARIANT& value, VARTYPE type, UniqueVariant& converted) {
  if (!IsValue(value)) return false;
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
