// How many windows of all programs had which outcome.
#pragma once

#include "Verdict.h"

namespace corpus {

void Count(Outcome outcome);

// Prints one line with the numbers.
void PrintSummary();

}  // namespace corpus
