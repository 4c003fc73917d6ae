#include "platform/GuardedBuffer.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <new>

namespace platform {
namespace {

TEST(GuardedBufferTest, MemoryIsWritableAndEmptyAndNothingAfterItIsAccessible) {
  for (const std::size_t characters : {1U, 2048U, 2049U, 100'000U}) {
    GuardedBuffer buffer;
    buffer.Reserve(characters);
    ASSERT_GE(buffer.Size(), characters);
    for (std::size_t i = 0; i < buffer.Size(); ++i) ASSERT_EQ(buffer.Data()[i], L'\0');
    buffer.Data()[buffer.Size() - 1] = L'x';
    MEMORY_BASIC_INFORMATION behind = {};
    VirtualQuery(buffer.Data() + buffer.Size(), &behind, sizeof behind);
    EXPECT_EQ(behind.State, static_cast<DWORD>(MEM_RESERVE));
  }
}

TEST(GuardedBufferTest, ABufferThatIsLargeEnoughStaysWithItsContent) {
  GuardedBuffer buffer;
  buffer.Reserve(5000);
  buffer.Data()[4999] = L'x';
  const wchar_t* const before = buffer.Data();
  buffer.Reserve(10);
  EXPECT_EQ(buffer.Data(), before);
  EXPECT_EQ(buffer.Data()[4999], L'x');
}

TEST(GuardedBufferTest, AnImpossibleSizeThrowsAndLeavesNothing) {
  GuardedBuffer buffer;
  EXPECT_THROW(buffer.Reserve(0x7F000000 / sizeof(wchar_t)), std::bad_alloc);
  EXPECT_EQ(buffer.Size(), 0U);
  EXPECT_EQ(buffer.Data(), nullptr);
}

TEST(GuardedBufferTest, MemoryIsReleased) {
  const wchar_t* data = nullptr;
  {
    GuardedBuffer buffer;
    buffer.Reserve(5000);
    data = buffer.Data();
  }
  MEMORY_BASIC_INFORMATION block = {};
  VirtualQuery(data, &block, sizeof block);
  EXPECT_EQ(block.State, static_cast<DWORD>(MEM_FREE));
}

}  // namespace
}  // namespace platform
