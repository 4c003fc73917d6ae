#include "HostileFacts.h"

namespace console {

std::vector<std::wstring> HostileTexts() {
  std::vector<std::wstring> texts{
      L"high \xD83D",
      L"\xDC08 low",
      L"\xDC08\xD83D",
      std::wstring(L"nul\0nul", 7),
      L"\"},{\"version\":2,\\",
      L"line\r\nline\nline\r",
      L"\u2028\u2029\uFEFF\uFFFE\uFFFF",
      std::wstring(65'535, L'x'),
      std::wstring(65'535, L'\xD83D'),
      std::wstring(65'535, L'\0'),
  };
  std::wstring controls;
  for (wchar_t character = 0; character < 0xA0; ++character) controls += character;
  texts.push_back(controls);
  return texts;
}

Facts FactsWith(const std::wstring& text) {
  const report::WindowFacts window{nullptr, text, text, {}};
  const MyAccessible::RowFacts row{text, text, text, {}, text, text, text};
  Facts facts;
  facts.reading.window = {window, window, {window}, {window}};
  facts.reading.text = {text, text};
  facts.reading.items = ItemFacts{text, true, {{text, text}, {}}, {text, text}};
  facts.process.file = text;
  facts.object.emplace();
  facts.object->members.name = text;
  facts.object->members.value = text;
  facts.object->members.role = text;
  facts.object->members.state = text;
  facts.object->members.description = text;
  facts.object->members.childCount = text;
  facts.object->ancestors.rows = {row};
  facts.object->children.rows = {row};
  facts.page = PageFound{{text, text, {{text, text, text, text, text}}}, {text, text}};
  facts.status = text;
  facts.descendants = std::vector<ReadingFacts>{facts.reading};
  return facts;
}

}  // namespace console
