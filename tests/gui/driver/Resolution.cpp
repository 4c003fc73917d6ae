#include "driver/Resolution.h"

#include <stdexcept>

#include "bed/Needs.h"

namespace gui {
namespace {

constexpr wchar_t kKey[] = L"Control Panel\\Desktop";
constexpr wchar_t kValue[] = L"LogPixels";
constexpr DWORD kNormal = 96;

void Write(DWORD dpi) {
  if (RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kValue, REG_DWORD, &dpi, sizeof dpi) !=
      ERROR_SUCCESS) {
    throw std::runtime_error("the resolution cannot be set");
  }
}

}  // namespace

Resolution::Resolution(DWORD dpi) { Write(dpi); }

Resolution::~Resolution() { RestoreResolution(); }

void RestoreResolution() {
  // Elsewhere no test changed it, and it is as the user wants it.
  if (!bed::OnWine()) return;
  DWORD dpi = kNormal;
  DWORD size = sizeof dpi;
  RegGetValueW(HKEY_CURRENT_USER, kKey, kValue, RRF_RT_REG_DWORD, nullptr, &dpi, &size);
  if (dpi != kNormal) Write(kNormal);
}

}  // namespace gui
