// The lines of Conf.txt as data: how a key is read, how it is written, where its value is kept, and
// its default.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "settings/Settings.h"

namespace settings {

struct ConfigValues {
  Settings record;
  WindowValues window;

  bool operator==(const ConfigValues&) const = default;
};

// The screen that the default positions are computed from.
struct ScreenTwips {
  std::int32_t ScreenW = 0;  // twips
  std::int32_t ScreenH = 0;  // twips
  std::int32_t TwipsPerPixelX = 0;
  std::int32_t TwipsPerPixelY = 0;
};

using ConfigField =
    std::variant<std::int32_t Settings::*, std::wstring Settings::*, std::int32_t WindowValues::*>;

// No default (monostate): the value stays as the record was.
using ConfigDefault = std::variant<std::monostate, std::int32_t, std::wstring_view,
                                   std::int32_t (*)(const ScreenTwips&)>;

struct ConfigKey {
  std::wstring_view readAs;     // the trimmed, lower-cased key equals this, compared in lower case
  std::wstring_view writtenAs;  // written before the value, with its last blank
  ConfigField field;
  ConfigDefault byDefault;
  bool unlessZero = false;  // the line is written only while the value is not 0
};

// All keys in the order of the file.
std::span<const ConfigKey> ConfigKeys();

}  // namespace settings
