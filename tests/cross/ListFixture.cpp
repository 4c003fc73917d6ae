#include "ListFixture.h"

#include "driver/Paths.h"

namespace cross {

bool SystemHas64Bits() {
  BOOL emulated = FALSE;
  return IsWow64Process(GetCurrentProcess(), &emulated) && emulated;
}

ListFixture::ListFixture(Bits bits, std::string_view words)
    : process_(gui::FromBuildPath(bits == Bits::k64 ? CROSS_FIXTURE64_FILE : CROSS_FIXTURE_FILE),
               words) {}

}  // namespace cross
