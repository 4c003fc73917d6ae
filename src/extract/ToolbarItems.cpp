#include "extract/ToolbarItems.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "extract/TargetBlock.h"

namespace extract {
namespace {

// What the toolbar of a 32-bit and of a 64-bit process writes. Only the command is used, which has
// the same offset in both, and the block is large enough for both.
struct ButtonRecord32 {
  std::int32_t image;
  std::int32_t command;
  std::uint8_t state;
  std::uint8_t style;
  std::uint8_t reserved[2];
  std::uint32_t data;
  std::int32_t text;
};
static_assert(sizeof(ButtonRecord32) == 20);

struct ButtonRecord64 {
  std::int32_t image;
  std::int32_t command;
  std::uint8_t state;
  std::uint8_t style;
  std::uint8_t reserved[6];
  std::uint64_t data;
  std::int64_t text;
};
static_assert(sizeof(ButtonRecord64) == 32);

constexpr std::size_t kCommandAt = offsetof(ButtonRecord32, command);
static_assert(kCommandAt == 4 && kCommandAt == offsetof(ButtonRecord64, command));

// Three sizes for one block. Odd, and stays: docs/ODDITIES.md.
constexpr SIZE_T kReadSize = 121;
constexpr BlockSize kBlock{124, "121", 124};
static_assert(kReadSize >= sizeof(ButtonRecord64));

class ButtonSource {
 public:
  ButtonSource(HWND hwnd, const ControlAccess& access)
      : hwnd_(hwnd),
        messages_(access.messages),
        block_(access.memory, access.messages.ProcessOf(hwnd), kBlock) {}

  bool IsReady() const { return block_.Address() != 0; }

  // Puts the button's text into the sink, if it has one.
  void PutButton(std::int32_t index, platform::ItemSink& sink) {
    if (Ask(TB_GETBUTTON, index) <= 0) return;
    std::array<char, kReadSize> bytes{};
    block_.Read(bytes.data(), bytes.size());
    std::int32_t command = 0;
    std::memcpy(&command, bytes.data() + kCommandAt, sizeof command);
    if (Ask(TB_GETBUTTONTEXTA, command) <= 0) return;
    PutItem(sink, block_.ReadText(kReadSize));
  }

 private:
  std::int32_t Ask(UINT message, std::int32_t which) {
    return messages_.Send(hwnd_, message, static_cast<WPARAM>(which),
                          static_cast<LPARAM>(block_.Address()));
  }

  HWND hwnd_;
  ControlMessages& messages_;
  TargetBlock block_;
};

}  // namespace

Method GetToolbarItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                      const ControlAccess& access) {
  return MethodOf([&]() -> Method {
    const std::int32_t count =
        std::min(access.messages.Send(hwnd, TB_BUTTONCOUNT, 0, 0), kMostParts);
    ButtonSource source(hwnd, access);
    if (!source.IsReady()) return {};
    for (std::int32_t i = 0; i < count; ++i) {
      if (Interrupted(session, platform::ReadUntil::kPointerLeaves, sink)) break;
      source.PutButton(i, sink);
      Progress(session, i + 1, L"/", count);
    }
    return L"TB_GETBUTTON";
  });
}

}  // namespace extract
