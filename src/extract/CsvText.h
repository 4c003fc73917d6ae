// Rows of cells as comma-separated values.
#pragma once

#include <string>
#include <string_view>

namespace extract {

// text's rows, separated by CR LF, their cells by TAB, turned into rows separated by commas. A
// cell that holds a comma, a double quote, CR or LF is enclosed in double quotes, those inside it
// doubled. Every row is ended by CR LF, also the empty one behind a last CR LF; an empty text
// gives an empty text. When memory runs out, what was made until then.
std::wstring ToCsv(std::wstring_view text);

}  // namespace extract
