#include "Yardstick.h"

#include "bed/Place.h"

namespace bench {

std::filesystem::path Yardstick(const wchar_t* name) { return bed::Place("tests/bench") / name; }

}  // namespace bench
