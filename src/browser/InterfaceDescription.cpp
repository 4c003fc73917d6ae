#include "browser/InterfaceDescription.h"

#include <oleauto.h>

namespace MyInternetexplore {
namespace {

// The HTML object library. The toolchain's headers declare this identifier, but no library defines
// it.
constexpr GUID kLibrary = {
    0x3050F1C5, 0x98B5, 0x11CF, {0xBB, 0x82, 0x00, 0xAA, 0x00, 0xBD, 0xCE, 0x0B}};
constexpr WORD kMajor = 4;

}  // namespace

void InterfaceDescription::Hold() {
  if (asked_) return;
  asked_ = true;
  LoadRegTypeLib(kLibrary, kMajor, 0, LOCALE_NEUTRAL, library_.GetAddressOf());
}

}  // namespace MyInternetexplore
