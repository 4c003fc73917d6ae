#include "ListFixture.h"

#include "bed/Place.h"

namespace cross {

bed::Need SystemFor(Bits bits) { return bits == Bits::k64 ? bed::System64() : bed::Need{true, ""}; }

ListFixture::ListFixture(Bits bits, std::string_view words)
    : process_(bed::Place(bits == Bits::k64 ? "tests/cross/list_fixture64.exe"
                                            : "tests/cross/list_fixture.exe"),
               words) {}

}  // namespace cross
