#include "extract/StringUtilities.h"

#include <windows.h>

#include "platform/API_Shell.h"
#include "platform/DiskFile.h"
#include "platform/ErrorReport.h"
#include "platform/Trim.h"

namespace extract {

std::wstring Replaced(std::wstring_view text, std::wstring_view pattern,
                      std::wstring_view replacement) {
  std::wstring result;
  for (;;) {
    const std::size_t found = text.find(pattern);
    result += text.substr(0, found);
    if (found == text.npos) return result;
    result += replacement;
    text.remove_prefix(found + pattern.size());
  }
}

std::wstring WithCrLf(std::wstring_view text, std::wstring_view placeholder) {
  const std::wstring marked = Replaced(text, L"\r\n", placeholder);
  return Replaced(Replaced(marked, L"\n", L"\r\n"), placeholder, L"\r\n");
}

std::wstring UpToNul(std::wstring_view buffer) {
  const std::size_t end = buffer.find(L'\0');
  return end == buffer.npos ? std::wstring() : std::wstring(buffer.substr(0, end));
}

std::wstring CutDblQuot(std::wstring_view text) {
  for (;;) {
    text = platform::Trimmed(text);
    if (!text.starts_with(L'"') || !text.ends_with(L'"')) return std::wstring(text);
    // A single double quote. Odd, and stays: docs/ODDITIES.md.
    if (text.size() < 2) throw platform::InvalidArgument();
    text = text.substr(1, text.size() - 2);
  }
}

bool FileExists(const std::wstring& path) {
  return platform::IsNormalFile(CutDblQuot(API_Shell::AbsolutePath(path, {})));
}

bool ContainsIgnoringCase(std::wstring_view text, std::wstring_view part) {
  if (part.empty()) return true;
  return FindStringOrdinal(FIND_FROMSTART, text.data(), static_cast<int>(text.size()), part.data(),
                           static_cast<int>(part.size()), TRUE) >= 0;
}

}  // namespace extract
