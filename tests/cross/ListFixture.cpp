#include "ListFixture.h"

#include "bed/Place.h"

namespace cross {

bool SystemHas64Bits() {
  BOOL emulated = FALSE;
  return IsWow64Process(GetCurrentProcess(), &emulated) && emulated;
}

ListFixture::ListFixture(Bits bits, std::string_view words)
    : process_(bed::Place(bits == Bits::k64 ? "tests/cross/list_fixture64.exe"
                                            : "tests/cross/list_fixture.exe"),
               words) {}

}  // namespace cross
