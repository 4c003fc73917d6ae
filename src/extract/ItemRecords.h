// The records in which a control passes one of its items, as the common controls of a 32-bit and
// of a 64-bit process expect them: Pointer is std::uint32_t or std::uint64_t. With a record of the
// wrong kind the control would write to a wrong address.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstdint>

namespace extract {

template <typename Pointer>
struct ListItemRecord {  // LVITEMW
  std::uint32_t mask = LVIF_TEXT;
  std::int32_t item = 0;
  std::int32_t subItem = 0;
  std::uint32_t state = 0;
  std::uint32_t stateMask = 0;
  alignas(Pointer) Pointer text = 0;
  std::int32_t capacity = 0;  // characters
  std::int32_t image = 0;
  alignas(Pointer) Pointer data = 0;
  std::int32_t indent = 0;
  std::int32_t groupId = 0;
  std::uint32_t columnCount = 0;
  alignas(Pointer) Pointer columns = 0;
  Pointer columnFormats = 0;
  std::int32_t group = 0;
};
static_assert(sizeof(ListItemRecord<std::uint32_t>) == 60);
static_assert(sizeof(ListItemRecord<std::uint64_t>) == 88);

template <typename Pointer>
struct TreeItemRecord {  // TVITEMW
  std::uint32_t mask = TVIF_TEXT | TVIF_HANDLE;
  alignas(Pointer) Pointer item = 0;
  std::uint32_t state = 0;
  std::uint32_t stateMask = 0;
  Pointer text = 0;
  std::int32_t capacity = 0;
  std::int32_t image = 0;
  std::int32_t selectedImage = 0;
  std::int32_t children = 0;
  Pointer data = 0;
};
static_assert(sizeof(TreeItemRecord<std::uint32_t>) == 40);
static_assert(sizeof(TreeItemRecord<std::uint64_t>) == 56);

template <typename Pointer>
struct ComboBoxExItemRecord {  // COMBOBOXEXITEMW
  std::uint32_t mask = CBEIF_TEXT;
  alignas(Pointer) Pointer item = 0;
  Pointer text = 0;
  std::int32_t capacity = 0;
  std::int32_t image = 0;
  std::int32_t selectedImage = 0;
  std::int32_t overlay = 0;
  std::int32_t indent = 0;
  alignas(Pointer) Pointer data = 0;
};
static_assert(sizeof(ComboBoxExItemRecord<std::uint32_t>) == 36);
static_assert(sizeof(ComboBoxExItemRecord<std::uint64_t>) == 56);

template <typename Pointer>
struct HeaderItemRecord {  // HDITEMW
  std::uint32_t mask = HDI_TEXT;
  std::int32_t width = 0;
  Pointer text = 0;
  Pointer bitmap = 0;
  std::int32_t capacity = 0;
  std::int32_t format = 0;
  Pointer data = 0;
  std::int32_t image = 0;
  std::int32_t order = 0;
  std::uint32_t filterType = 0;
  alignas(Pointer) Pointer filter = 0;
  std::uint32_t state = 0;
};
static_assert(sizeof(HeaderItemRecord<std::uint32_t>) == 48);
static_assert(sizeof(HeaderItemRecord<std::uint64_t>) == 72);

template <typename Pointer>
struct TabItemRecord {  // TCITEMA
  std::uint32_t mask = TCIF_TEXT;
  std::uint32_t state = 0;
  std::uint32_t stateMask = 0;
  alignas(Pointer) Pointer text = 0;
  std::int32_t capacity = 0;
  std::int32_t image = 0;
  Pointer data = 0;
};
static_assert(sizeof(TabItemRecord<std::uint32_t>) == 28);
static_assert(sizeof(TabItemRecord<std::uint64_t>) == 40);

}  // namespace extract
