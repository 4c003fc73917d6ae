#include "extract/CsvText.h"

#include "platform/LineEnd.h"

namespace extract {
namespace {

using platform::kCrLf;

// Removes the part before the first separator, and the separator, from rest, and returns the part.
// Without a separator that is all of rest, whose data() is null afterwards.
std::wstring_view Take(std::wstring_view& rest, std::wstring_view separator) {
  const std::size_t end = rest.find(separator);
  const std::wstring_view part = rest.substr(0, end);
  rest = end == rest.npos ? std::wstring_view() : rest.substr(end + separator.size());
  return part;
}

void AppendRow(std::wstring_view row, std::wstring& csv) {
  AppendCell(Take(row, L"\t"), csv);
  while (row.data() != nullptr) {
    csv += L',';
    AppendCell(Take(row, L"\t"), csv);
  }
  csv += kCrLf;
}

}  // namespace

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

std::wstring ToCsv(std::wstring_view text) {
  std::wstring csv;
  if (text.empty()) return csv;
  try {
    while (text.data() != nullptr) AppendRow(Take(text, kCrLf), csv);
  } catch (...) {
    // What fits into memory is better than nothing.
  }
  return csv;
}

}  // namespace extract
