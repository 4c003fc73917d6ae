// Rows of cells as comma-separated values.
#pragma once

#include <string>
#include <string_view>

namespace extract {

// text's rows, separated by CR LF, their cells by TAB, turned into rows separated by commas. A
// cell that holds a comma, a double quote, CR or LF is enclosed in double quotes, those inside it
// doubled. Every row ends with CR LF, also the empty one after a last CR LF (odd, and stays:
// docs/ODDITIES.md); an empty text gives an empty text. When memory runs out, the result is what
// was made until then.
std::wstring ToCsv(std::wstring_view text);

// Adds one such cell.
void AppendCell(std::wstring_view cell, std::wstring& csv);

}  // namespace extract
