#include "extract/TextCount.h"

#include "platform/ErrorReport.h"
#include "platform/LineEnd.h"
#include "platform/Rounding.h"
#include "platform/TextCodec.h"

namespace extract {
namespace {

std::int32_t Counted(std::size_t count) {
  return platform::ClampToInt32(static_cast<std::int64_t>(count));
}

// "label:all(without)", where the second number leaves out spaces and the like.
std::wstring Pair(std::wstring_view label, std::int32_t all, std::int32_t without) {
  return std::wstring(label) + std::to_wstring(all) + L"(" + std::to_wstring(without) + L")";
}

}  // namespace

std::int32_t FindStrCnt(std::wstring_view text, std::wstring_view pattern) {
  std::int32_t count = 0;
  for (std::size_t at = text.find(pattern); at != text.npos;
       at = text.find(pattern, at + pattern.size())) {
    ++count;
  }
  return count;
}

TextCount GetTextCount(std::wstring_view text) {
  const std::int32_t units = Counted(text.size());
  TextCount count;
  count.lineBreaks = FindStrCnt(text, platform::kCrLf);
  count.bytes = Counted(platform::DoubleByteLength(text));
  count.chars = units - count.lineBreaks;
  count.wide = count.bytes - units;
  count.spaces = FindStrCnt(text, L" ");
  count.wideSpaces = FindStrCnt(text, L"　");
  count.tabs = FindStrCnt(text, L"\t");
  return count;
}

std::wstring CountLine(const TextCount& count) {
  const std::int32_t visible =
      count.chars - count.wideSpaces - count.spaces - count.lineBreaks - count.tabs;
  const std::int32_t narrow = count.chars - count.wide - count.lineBreaks - count.tabs;
  // Two blanks after "byte". Odd, and stays: docs/ODDITIES.md.
  return Pair(L"字数:", count.chars, visible) + L" 改行:" + std::to_wstring(count.lineBreaks) +
         L" " + std::to_wstring(count.bytes) + L"byte  " +
         Pair(L"全角:", count.wide, count.wide - count.wideSpaces) + L" " +
         Pair(L"半角:", narrow, narrow - count.spaces) + L" 全SP:" +
         std::to_wstring(count.wideSpaces) + L" 半SP:" + std::to_wstring(count.spaces) + L" タブ:" +
         std::to_wstring(count.tabs);
}

std::wstring GetTextCountInfo(std::wstring_view text, const CountFunction& count) {
  try {
    return CountLine(count(text));
  } catch (...) {
    platform::ReportCurrentError(L"GetTextCountInfo");
    return {};
  }
}

}  // namespace extract
