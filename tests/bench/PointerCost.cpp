#include "PointerCost.h"

#include <windows.h>

#include "Turns.h"
#include "driver/Target.h"
#include "extract/WindowAtPoint.h"

namespace bench {
namespace {

constexpr int kRounds = 60;
constexpr int kPoints = 400;

POINT PointOf(int index) { return {45 + index % 400, 60 + index * 7 % 400}; }

void AskBare(int index) {
  POINT point = PointOf(index);
  const HWND window = WindowFromPoint(point);
  ScreenToClient(window, &point);
  ChildWindowFromPointEx(window, point, CWP_SKIPINVISIBLE);
}

void Choose(int index) {
  const POINT point = PointOf(index);
  extract::WindowMeant(WindowFromPoint(point), point);
}

void ForAllPoints(void (*step)(int)) {
  for (int i = 0; i < kPoints; ++i) step(i);
}

}  // namespace

std::vector<Pair> MeasureWindowMeant() {
  const gui::Fixture fixture(
      "deadline=3600 place=40,40,480,480 edit=a button=b static=c memo=d list=5 leaf=e");
  return Compare(
      kRounds, [] { ForAllPoints(Choose); }, [] { ForAllPoints(AskBare); });
}

}  // namespace bench
