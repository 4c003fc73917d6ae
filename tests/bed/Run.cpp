#include "bed/Run.h"

#include <windows.h>

#include <gtest/gtest.h>
#include <winternl.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "bed/Needs.h"

namespace bed {
namespace {

// The version that the system is, not the one that it shows to older programs.
void PrintSystem() {
  RTL_OSVERSIONINFOW version = {};
  version.dwOSVersionInfoSize = sizeof version;
  using GetVersion = NTSTATUS(WINAPI*)(RTL_OSVERSIONINFOW*);
  const auto getVersion = reinterpret_cast<GetVersion>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion")));
  getVersion(&version);
  std::printf("System: Windows %lu.%lu.%lu, %d bits, code page %u%s\n", version.dwMajorVersion,
              version.dwMinorVersion, version.dwBuildNumber, Is64BitSystem() ? 64 : 32, GetACP(),
              OnWine() ? ", Wine" : "");
}

class Summary : public testing::EmptyTestEventListener {
  void OnTestProgramStart(const testing::UnitTest&) override { PrintSystem(); }

  void OnTestPartResult(const testing::TestPartResult& result) override {
    if (result.skipped()) ++skipped_[result.message()];
  }

  void OnTestProgramEnd(const testing::UnitTest& all) override {
    for (const auto& [reason, tests] : skipped_) {
      std::printf("Skipped, %d of the tests: %s\n", tests, reason.c_str());
    }
    const wchar_t* const file = _wgetenv(L"VELMORA_COUNTS");
    if (file == nullptr) return;
    std::ofstream(std::filesystem::path(file))
        << all.successful_test_count() << " passed, " << all.failed_test_count() << " failed, "
        << all.skipped_test_count() << " skipped\n";
  }

  std::map<std::string, int> skipped_;
};

}  // namespace

int Run() {
  // The list owns it.
  testing::UnitTest::GetInstance()->listeners().Append(new Summary);
  return RUN_ALL_TESTS();
}

}  // namespace bed
