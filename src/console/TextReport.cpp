#include "console/TextReport.h"

#include "extract/CsvText.h"
#include "platform/HandleText.h"
#include "platform/LineEnd.h"

namespace console {
namespace {

using platform::kCrLf;

bool HasRows(const ReadingFacts& reading) { return reading.items && !reading.items->rows.empty(); }

void AppendRow(std::wstring& text, const Row& row) {
  for (const std::wstring& cell : row) {
    if (&cell != row.data()) text += L'\t';
    text += cell;
  }
  text += kCrLf;
}

void AppendCsvRow(std::wstring& csv, const Row& row) {
  for (const std::wstring& cell : row) {
    if (&cell != row.data()) csv += L',';
    extract::AppendCell(cell, csv);
  }
  csv += kCrLf;
}

std::wstring WordsOf(const ReadingFacts& reading) {
  std::wstring text;
  if (!HasRows(reading)) {
    text = reading.text.text;
    if (!text.empty() && !text.ends_with(L'\n')) text += kCrLf;
    return text;
  }
  for (const Row& row : reading.items->rows) AppendRow(text, row);
  return text;
}

}  // namespace

std::wstring TextReport(const Facts& facts) {
  std::wstring text = WordsOf(facts.reading);
  if (!facts.descendants) return text;
  for (const ReadingFacts& reading : *facts.descendants) {
    const report::WindowFacts& window = reading.window.window;
    text.append(L"[" + window.className + L" " + platform::DecimalHandle(window.hwnd) + L"]");
    text.append(kCrLf).append(WordsOf(reading));
  }
  return text;
}

std::wstring CsvReport(const Facts& facts) {
  const ReadingFacts& reading = facts.reading;
  std::wstring csv;
  if (HasRows(reading)) {
    for (const Row& row : reading.items->rows) AppendCsvRow(csv, row);
  } else if (!reading.text.text.empty()) {
    AppendCsvRow(csv, {reading.text.text});
  }
  return csv;
}

}  // namespace console
