#include "platform/WindowEnumeration.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "platform/UniqueHandle.h"

namespace platform {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

UniqueWindow Make(HWND parent) {
  return UniqueWindow(CreateWindowExW(0, L"STATIC", L"", parent == nullptr ? WS_POPUP : WS_CHILD, 0,
                                      0, 10, 10, parent, nullptr, nullptr, nullptr));
}

std::vector<HWND> Below(HWND root) {
  std::vector<HWND> found;
  ForEachWindow(root, [&](HWND hwnd) { found.push_back(hwnd); });
  return found;
}

TEST(WindowEnumerationTest, VisitsEveryTopLevelWindowAndNoChild) {
  const UniqueWindow top = Make(nullptr);
  const UniqueWindow child = Make(top.Get());
  std::vector<HWND> found;
  ForEachWindow([&](HWND hwnd) { found.push_back(hwnd); });
  EXPECT_THAT(found, Contains(top.Get()).Times(1));
  EXPECT_THAT(found, Not(Contains(child.Get())));
}

TEST(WindowEnumerationTest, VisitsEveryDescendant) {
  const UniqueWindow top = Make(nullptr);
  const UniqueWindow child = Make(top.Get());
  const UniqueWindow grandchild = Make(child.Get());
  EXPECT_THAT(Below(top.Get()), ElementsAre(child.Get(), grandchild.Get()));
  EXPECT_THAT(Below(grandchild.Get()), IsEmpty());
}

TEST(WindowEnumerationTest, WithoutARootThereAreNoDescendants) {
  EXPECT_THAT(Below(nullptr), IsEmpty());
  HWND gone = nullptr;
  {
    const UniqueWindow top = Make(nullptr);
    const UniqueWindow child = Make(top.Get());
    gone = top.Get();
  }
  EXPECT_THAT(Below(gone), IsEmpty());
}

TEST(WindowEnumerationTest, AnExceptionOfTheVisitorEndsItAndIsRethrown) {
  const UniqueWindow top = Make(nullptr);
  const UniqueWindow first = Make(top.Get());
  const UniqueWindow second = Make(top.Get());
  int visits = 0;
  const WindowVisitor failing = [&](HWND) {
    ++visits;
    throw std::bad_alloc();
  };
  EXPECT_THROW(ForEachWindow(top.Get(), failing), std::bad_alloc);
  EXPECT_EQ(visits, 1);
  EXPECT_THROW(ForEachWindow(failing), std::bad_alloc);
  EXPECT_EQ(visits, 2);
}

}  // namespace
}  // namespace platform
