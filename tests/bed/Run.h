// Runs the tests of a program: the last statement of every main.
#pragma once

namespace bed {

// Says what system it is and, at the end, why tests were skipped. When VELMORA_COUNTS names a file,
// it holds "P passed, F failed, S skipped" afterwards.
int Run();

}  // namespace bed
