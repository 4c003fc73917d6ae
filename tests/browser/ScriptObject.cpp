#include "ScriptObject.h"

namespace html {

std::string Narrow(const std::wstring& text) {
  const int length = static_cast<int>(text.size());
  std::string bytes(text.size() * 3, '\0');
  const int count = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                                        static_cast<int>(bytes.size()), nullptr, nullptr);
  bytes.resize(static_cast<std::size_t>(count));
  return bytes;
}

HRESULT Counted::Enter(const std::string& member, const std::string& detail) {
  const std::string plain = "." + member;
  const std::string full = detail.empty() ? plain : plain + " " + detail;
  ++watch_.callCount;
  if (watch_.keepsCalls) watch_.calls.push_back(label_ + full);
  if (watch_.onCall) watch_.onCall(label_ + full);
  if (watch_.failures.empty()) return S_OK;
  for (const std::string& call : {label_ + full, label_ + plain, full, plain, std::string()}) {
    const auto failure = watch_.failures.find(call);
    if (failure != watch_.failures.end()) return failure->second;
  }
  return S_OK;
}

BSTR NewText(const std::wstring& text) {
  return text.empty() ? nullptr : SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

void Give(BSTR text, VARIANT* answer) {
  answer->vt = VT_BSTR;
  answer->bstrVal = text;
}

void Give(LONG number, VARIANT* answer) {
  answer->vt = VT_I4;
  answer->lVal = number;
}

void Give(IDispatch* object, VARIANT* answer) {
  answer->vt = VT_DISPATCH;
  answer->pdispVal = object;
}

}  // namespace html
