// The report on an element of a page, in words: the page's address and a table of the elements.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "browser/PageFacts.h"

namespace report {

// How many characters of a displayed text the table needs; textLength is the setting "html tag text
// length", and less than 0 counts as 0.
std::size_t CharactersNeeded(std::int32_t textLength);

// One row. A text of more than textLength + 2 characters is cut to textLength and "...".
std::wstring ElementRow(const MyInternetexplore::ElementFacts& element, std::int32_t textLength);

std::wstring ElementReport(const MyInternetexplore::PageFacts& page, std::int32_t textLength);

}  // namespace report
