// What the program says to a person, in Japanese or English. The result of a reading is no such
// words.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "console/Arguments.h"
#include "console/Facts.h"

namespace console {

enum class Language { kJapanese, kEnglish };

// Of the user's system: English everywhere but in Japanese ones.
Language SystemLanguage();

// One sentence that names the wrong argument, and where help is.
std::wstring FaultText(const ArgumentFault& fault, Language language);

// Why there is no result; empty for kRead.
std::wstring OutcomeText(Outcome outcome, Language language);

// Rows are missing: the list ended early, or --most was reached.
std::wstring IncompleteText(Language language);

std::wstring CountdownText(std::int32_t seconds, Language language);

// Every line ends with CR LF.
std::wstring HelpText(Language language);
std::wstring VersionText();

}  // namespace console
