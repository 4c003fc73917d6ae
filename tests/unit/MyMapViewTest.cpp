#include "extract/MyMapView.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

#include "FakeTarget.h"
#include "bed/Needs.h"
#include "extract/TargetBlock.h"
#include "platform/ErrorReport.h"
#include "platform/TextCodec.h"

namespace MyMapView {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Whatever fails, no message is shown.
class MyMapViewTest : public testing::Test {
 protected:
  ~MyMapViewTest() override {
    platform::SetMessageBox(before_);
    EXPECT_EQ(boxes_, 0);
  }

 private:
  int boxes_ = 0;
  platform::MessageBoxFunction before_ =
      platform::SetMessageBox([this](const auto&, const auto&) { ++boxes_; });
};

class TargetBlockTest : public MyMapViewTest {};

TEST_F(MyMapViewTest, ARemoteBlockIsAllocatedWithTheRightsToUseIt) {
  FakeMemory memory;
  HANDLE process = nullptr;
  void* const address = AllocRemote(memory, 77, 40, process);
  EXPECT_NE(address, nullptr);
  EXPECT_EQ(process, reinterpret_cast<HANDLE>(0x51));
  EXPECT_THAT(memory.calls, ElementsAre("OpenProcess 38 0 4d", "VirtualAllocEx 51 0 28 3000 4"));
}

TEST_F(MyMapViewTest, WithoutMemoryTheHandleIsStillTheCallers) {
  FakeMemory memory;
  memory.mostBlocks = 0;
  HANDLE process = nullptr;
  EXPECT_EQ(AllocRemote(memory, 77, 40, process), nullptr);
  EXPECT_EQ(process, reinterpret_cast<HANDLE>(0x51));
}

TEST_F(MyMapViewTest, AProcessThatMayNotBeOpenedGivesNothing) {
  FakeMemory memory;
  memory.opens = false;
  HANDLE process = reinterpret_cast<HANDLE>(1);
  EXPECT_EQ(AllocRemote(memory, 77, 40, process), nullptr);
  EXPECT_EQ(process, nullptr);
  EXPECT_THAT(memory.calls, ElementsAre("OpenProcess 38 0 4d"));
}

TEST_F(MyMapViewTest, ARemoteBlockIsGivenUpAndItsHandleClosed) {
  FakeMemory memory;
  HANDLE process = nullptr;
  void* const address = AllocRemote(memory, 77, 256, process);
  memory.calls.clear();
  FreeRemote(memory, process, address, 512);
  EXPECT_THAT(memory.calls, ElementsAre("VirtualFreeEx 51 0 200 ffff8000", "CloseHandle 51"));
}

TEST_F(MyMapViewTest, ThatReleaseLeavesTheBlockInTheTarget) {
  MemoryCalls& calls = SystemMemoryCalls();
  HANDLE process = nullptr;
  void* const address = AllocRemote(calls, GetCurrentProcessId(), 256, process);
  ASSERT_NE(address, nullptr);
  FreeRemote(calls, process, address, 256);
  MEMORY_BASIC_INFORMATION block = {};
  VirtualQuery(address, &block, sizeof block);
  EXPECT_EQ(block.State, static_cast<DWORD>(MEM_COMMIT));
  EXPECT_TRUE(VirtualFree(address, 0, MEM_RELEASE));
}

TEST_F(MyMapViewTest, TheFamilyOfTheSystem) {
  FakeMemory memory;
  EXPECT_TRUE(IsNT(memory));
  EXPECT_EQ(memory.versionSize, 148U);
  for (const DWORD platform : {0U, 1U, 3U}) {
    memory.platform = platform;
    EXPECT_FALSE(IsNT(memory)) << platform;
  }
  memory.platform = VER_PLATFORM_WIN32_NT;
  memory.versionKnown = FALSE;
  EXPECT_FALSE(IsNT(memory));
  EXPECT_TRUE(IsNT(SystemMemoryCalls()));
}

TEST_F(MyMapViewTest, EmulationMeansA64BitSystem) {
  FakeMemory memory;
  EXPECT_FALSE(IsWin64(memory)) << "a system that knows no emulation";
  EXPECT_EQ(memory.askedModule, "kernel32");
  EXPECT_EQ(memory.askedProcedure, "IsWow64Process");
  memory.knowsEmulation = true;
  EXPECT_FALSE(IsWin64(memory));
  FakeMemory::selfEmulated = TRUE;
  EXPECT_TRUE(IsWin64(memory));
  FakeMemory::emulationKnown = FALSE;
  EXPECT_FALSE(IsWin64(memory)) << "the question fails";
}

TEST_F(MyMapViewTest, TheRealSystemMatchesItsFolders) {
  wchar_t folder[MAX_PATH] = {};
  const bool has64 = GetSystemWow64DirectoryW(folder, MAX_PATH) != 0;
  EXPECT_EQ(IsWin64(SystemMemoryCalls()), has64);
}

TEST_F(MyMapViewTest, TheKindOfATargetProcess) {
  FakeMemory memory;
  EXPECT_EQ(IsProcess64(memory, 77), false) << "32-bit system";
  EXPECT_THAT(memory.calls, IsEmpty());
  memory.Be64BitSystem(true);
  EXPECT_EQ(IsProcess64(memory, 77), true);
  EXPECT_THAT(memory.calls, ElementsAre("OpenProcess 1000 0 4d", "CloseHandle 99"));
  memory.Be64BitSystem(false);
  EXPECT_EQ(IsProcess64(memory, 77), false);
  memory.mayQuery = false;
  EXPECT_EQ(IsProcess64(memory, 77), std::nullopt);
}

TEST_F(MyMapViewTest, AnExistingMappingIsOpened) {
  FakeMemory memory;
  memory.mappingExists = true;
  HANDLE mapping = nullptr;
  void* view = nullptr;
  EXPECT_TRUE(MakeFileMap(memory, "256", mapping, view));
  EXPECT_EQ(mapping, reinterpret_cast<HANDLE>(0x70));
  EXPECT_EQ(view, memory.blocks[0].get());
  EXPECT_EQ(memory.blocks[0][0], 0x7F) << "its content stays";
  EXPECT_THAT(memory.calls,
              ElementsAre("OpenFileMapping 256 f001f 0", "MapViewOfFile 70 f001f 0 0 0"));
}

TEST_F(MyMapViewTest, AMissingMappingIsMadeAndEmptied) {
  FakeMemory memory;
  HANDLE mapping = nullptr;
  void* view = nullptr;
  EXPECT_TRUE(MakeFileMap(memory, "40", mapping, view));
  EXPECT_EQ(mapping, reinterpret_cast<HANDLE>(0x71));
  ASSERT_EQ(view, memory.blocks[0].get());
  EXPECT_THAT(memory.calls, ElementsAre("OpenFileMapping 40 f001f 0",
                                        "CreateFileMapping 40 ffffffff c 0 0 8000004 0 400",
                                        "MapViewOfFile 71 f001f 0 0 0", "FlushViewOfFile 0 400"));
  for (int i = 0; i < 1024; ++i) ASSERT_EQ(memory.blocks[0][static_cast<std::size_t>(i)], 0);
  EXPECT_EQ(memory.blocks[0][1024], 0x7F);
}

TEST_F(MyMapViewTest, EveryFailureOfAMappingIsReportedAndGivesNoView) {
  struct Case {
    const char* what;
    void (*spoil)(FakeMemory&);
  };
  constexpr Case kCases[] = {
      {"existing, no view",
       [](FakeMemory& memory) { memory.mappingExists = true, memory.maps = false; }},
      {"not made", [](FakeMemory& memory) { memory.creates = false; }},
      {"made, no view", [](FakeMemory& memory) { memory.maps = false; }},
      {"not flushed", [](FakeMemory& memory) { memory.flushes = FALSE; }},
  };
  for (const Case& one : kCases) {
    FakeMemory memory;
    one.spoil(memory);
    HANDLE mapping = nullptr;
    void* view = nullptr;
    EXPECT_FALSE(MakeFileMap(memory, "28", mapping, view)) << one.what;
    EXPECT_EQ(OpenShared(memory, "28"), nullptr) << one.what;
  }
}

TEST_F(MyMapViewTest, ClosingASharedBlockLeavesItsViewMapped) {
  FakeMemory memory;
  void* view = OpenShared(memory, "256");
  void* const before = view;
  memory.calls.clear();
  CloseShared(memory, nullptr, view);
  EXPECT_EQ(memory.unmapped, &view);
  EXPECT_EQ(view, before);
  EXPECT_THAT(memory.calls, ElementsAre("UnmapViewOfFile", "CloseHandle 0"));
}

TEST_F(MyMapViewTest, BlocksOfOneNameAreOneMapping) {
  MemoryCalls& calls = SystemMemoryCalls();
  char* const first = static_cast<char*>(OpenShared(calls, "256"));
  char* const second = static_cast<char*>(OpenShared(calls, "256"));
  char* const other = static_cast<char*>(OpenShared(calls, "40"));
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  ASSERT_NE(other, nullptr);
  std::strcpy(first, "written here");
  EXPECT_STREQ(second, "written here");
  EXPECT_STREQ(other, "");
  EXPECT_EQ(first[1023], 0) << "1024 bytes whatever the name says";
  void* view = first;
  CloseShared(calls, nullptr, view);
  EXPECT_STREQ(first, "written here");
  for (void* mapped : {first, second, other}) EXPECT_TRUE(UnmapViewOfFile(mapped));
}

constexpr extract::BlockSize kSize{124, "121", 512};

TEST_F(TargetBlockTest, ABlockInTheTargetIsReleasedWithItsOwnSize) {
  FakeMemory memory;
  {
    extract::TargetBlock block(memory, 77, kSize);
    EXPECT_EQ(block.Address(), reinterpret_cast<std::uintptr_t>(memory.blocks[0].get()));
    memory.calls.clear();
  }
  EXPECT_THAT(memory.calls, ElementsAre("VirtualFreeEx 51 0 200 ffff8000", "CloseHandle 51"));
}

TEST_F(TargetBlockTest, OnlyWhatWasObtainedIsReleased) {
  FakeMemory memory;
  memory.mostBlocks = 0;
  { EXPECT_EQ(extract::TargetBlock(memory, 77, kSize).Address(), 0U); }
  EXPECT_EQ(memory.calls.back(), "CloseHandle 51");
  EXPECT_EQ(memory.calls.size(), 3U);
  memory.opens = false;
  memory.calls.clear();
  { EXPECT_EQ(extract::TargetBlock(memory, 77, kSize).Address(), 0U); }
  EXPECT_THAT(memory.calls, ElementsAre("OpenProcess 38 0 4d"));
}

TEST_F(TargetBlockTest, TheOlderFamilySharesANamedMapping) {
  FakeMemory memory;
  memory.platform = 1;
  {
    extract::TargetBlock block(memory, 77, kSize);
    EXPECT_EQ(block.Address(), reinterpret_cast<std::uintptr_t>(memory.blocks[0].get()));
    block.Write("shared", 7);
    EXPECT_EQ(block.ReadText(121), L"shared");
    memory.calls.resize(1);
    EXPECT_THAT(memory.calls, ElementsAre("OpenFileMapping 121 f001f 0"));
  }
  EXPECT_THAT(memory.calls,
              ElementsAre("OpenFileMapping 121 f001f 0", "UnmapViewOfFile", "CloseHandle 0"));
}

TEST_F(TargetBlockTest, AnOlderSystemWithoutAMappingGivesNoBlock) {
  FakeMemory memory;
  memory.platform = 1;
  memory.creates = false;
  { EXPECT_EQ(extract::TargetBlock(memory, 77, kSize).Address(), 0U); }
  EXPECT_EQ(memory.calls.size(), 2U) << "nothing is closed";
}

TEST_F(TargetBlockTest, ALostTargetThrows) {
  FakeMemory memory;
  extract::TargetBlock block(memory, 77, kSize);
  memory.lost = true;
  EXPECT_THROW(block.Write("x", 1), extract::TargetLost);
  EXPECT_THROW(block.ReadText(121), extract::TargetLost);
}

TEST_F(TargetBlockTest, ATextEndsAtTheFirstZeroByte) {
  FakeMemory memory;
  extract::TargetBlock block(memory, 77, kSize);
  block.Write("ab\0cd", 6);
  EXPECT_EQ(block.ReadText(121), L"ab");
  block.Write("", 1);
  EXPECT_EQ(block.ReadText(121), L"");
}

TEST_F(TargetBlockTest, ATextThatFillsTheBlockIsCutBetweenCharacters) {
  NEEDS(bed::CodePage932());
  FakeMemory memory;
  extract::TargetBlock block(memory, 77, kSize);
  const std::string even = platform::ToAnsi(std::wstring(200, L'表'));
  block.Write(even.data(), even.size());
  EXPECT_EQ(block.ReadText(121), std::wstring(60, L'表'));
  EXPECT_EQ(block.ReadText(120), std::wstring(60, L'表'));
  const std::string odd = platform::ToAnsi(L"x" + std::wstring(200, L'表'));
  block.Write(odd.data(), odd.size());
  EXPECT_EQ(block.ReadText(121), L"x" + std::wstring(60, L'表'));
}

}  // namespace
}  // namespace MyMapView
