#include "report/ElementTable.h"

#include <algorithm>

#include "platform/LineEnd.h"
#include "platform/TextSink.h"

namespace report {
namespace {

using MyInternetexplore::ElementFacts;
using MyInternetexplore::PageFacts;

using platform::kCrLf;
constexpr std::wstring_view kHeader = L"Tag     Type        Id          value       表示文字";
constexpr std::size_t kRuleLength = 42;

// A text that is longer by this much is shown whole. Odd, and stays: docs/ODDITIES.md.
constexpr std::size_t kTolerance = 2;

struct Column {
  std::wstring ElementFacts::*text;
  std::size_t width;
};

constexpr Column kColumns[] = {
    {&ElementFacts::tag, 8},
    {&ElementFacts::type, 12},
    {&ElementFacts::idOrName, 12},
    {&ElementFacts::value, 12},
};

std::size_t Allowed(std::int32_t textLength) {
  return static_cast<std::size_t>(std::max(textLength, 0));
}

void AppendCell(std::wstring& row, const std::wstring& text, std::size_t width) {
  row += text;
  row.append(text.size() < width ? width - text.size() : 1, L' ');
}

}  // namespace

std::size_t CharactersNeeded(std::int32_t textLength) {
  return Allowed(textLength) + kTolerance + 1;
}

std::wstring ElementRow(const ElementFacts& element, std::int32_t textLength) {
  std::wstring row;
  for (const Column& column : kColumns) AppendCell(row, element.*column.text, column.width);
  const std::size_t allowed = Allowed(textLength);
  if (element.text.size() > allowed + kTolerance) {
    row.append(element.text, 0, allowed).append(L"...");
  } else {
    row += element.text;
  }
  return row.append(kCrLf);
}

std::wstring ElementReport(const PageFacts& page, std::int32_t textLength) {
  std::wstring text = L"URL     " + page.url;
  text.append(kCrLf).append(kCrLf).append(kHeader).append(kCrLf);
  text.append(kRuleLength, L'-').append(kCrLf);
  // Then the outer elements, which come first, are missing.
  if (page.interrupted) text.append(platform::kInterruptedMark).append(kCrLf);
  for (const ElementFacts& element : page.chain) text += ElementRow(element, textLength);
  return text;
}

}  // namespace report
