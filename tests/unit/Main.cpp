// unit_tests.exe [--file=NAME.cpp] [--gtest_…]
//
// With --file only the tests of that source file run; GoogleTest knows where each test stands.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <string_view>

#include "bed/Run.h"

namespace {

// The filter that selects all tests of a source file; empty when there are none.
std::string FilterOf(std::string_view file) {
  std::string filter;
  const testing::UnitTest& all = *testing::UnitTest::GetInstance();
  for (int i = 0; i < all.total_test_suite_count(); ++i) {
    const testing::TestSuite& suite = *all.GetTestSuite(i);
    for (int j = 0; j < suite.total_test_count(); ++j) {
      const testing::TestInfo& test = *suite.GetTestInfo(j);
      const std::string_view path = test.file();
      if (path.substr(path.find_last_of("/\\") + 1) != file) continue;
      filter.append(suite.name()).append(".").append(test.name()).append(":");
    }
  }
  return filter;
}

// The system takes the windows of a thread for hung that has not asked for messages for five
// seconds, and the tests before may have taken that long.
class AsksForMessages : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override {
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
  }
};

}  // namespace

int main(int count, char** words) {
  testing::InitGoogleMock(&count, words);
  testing::UnitTest::GetInstance()->listeners().Append(new AsksForMessages);
  constexpr std::string_view kFile = "--file=";
  for (int i = 1; i < count; ++i) {
    const std::string_view word = words[i];
    const bool known = word.starts_with(kFile);
    const std::string filter = known ? FilterOf(word.substr(kFile.size())) : std::string();
    if (filter.empty()) {
      std::fprintf(stderr, "%s: %s\n", words[i], known ? "no such tests" : "unknown option");
      return 2;
    }
    GTEST_FLAG_SET(filter, filter);
  }
  return bed::Run();
}
