// For test programs that prepare nothing.
#include <gtest/gtest.h>

#include "bed/Run.h"

int main(int count, char** words) {
  testing::InitGoogleTest(&count, words);
  return bed::Run();
}
