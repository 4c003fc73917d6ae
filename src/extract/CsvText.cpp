#include "extract/CsvText.h"

#include "extract/ItemReading.h"

namespace extract {
namespace {

constexpr std::wstring_view kRowEnd = L"\r\n";

// Takes the part before the first separator, and the separator, off rest. Without a separator,
// all of rest, which then has no data at all.
std::wstring_view Take(std::wstring_view& rest, std::wstring_view separator) {
  const std::size_t end = rest.find(separator);
  const std::wstring_view part = rest.substr(0, end);
  rest = end == rest.npos ? std::wstring_view() : rest.substr(end + separator.size());
  return part;
}

void AppendCell(std::wstring_view cell, std::wstring& csv) {
  if (cell.find_first_of(L",\"\r\n") == cell.npos) {
    csv += cell;
    return;
  }
  csv += L'"';
  for (const wchar_t character : cell) {
    if (character == L'"') csv += L'"';
    csv += character;
  }
  csv += L'"';
}

void AppendRow(std::wstring_view row, std::wstring& csv) {
  AppendCell(Take(row, L"\t"), csv);
  while (row.data() != nullptr) {
    csv += L',';
    AppendCell(Take(row, L"\t"), csv);
  }
  csv += kRowEnd;
}

}  // namespace

std::wstring ToCsv(std::wstring_view text) {
  return Collected([&](std::wstring& csv) {
    if (text.empty()) return;
    while (text.data() != nullptr) AppendRow(Take(text, kRowEnd), csv);
  });
}

}  // namespace extract
