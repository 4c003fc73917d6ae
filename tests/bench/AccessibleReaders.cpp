#include "AccessibleReaders.h"

#include <windows.h>

#include <limits>
#include <stdexcept>
#include <string>

#include "../ReadItems.h"
#include "BareAccessible.h"
#include "Turns.h"
#include "accessibility/AccessibleListing.h"
#include "accessibility/AccessibleReport.h"
#include "accessibility/MyAccessible.h"
#include "accessible/FixtureProcess.h"
#include "extract/PointText.h"

namespace bench {
namespace {

constexpr int kRounds = 31;
constexpr int kListingRounds = 9;
constexpr LONG kNoLimit = std::numeric_limits<LONG>::max();

platform::ReadSession Session(HWND& target) {
  return {target, [](const std::wstring&) {}, PumpMessages, [] { return true; }};
}

settings::Settings Everything() {
  settings::Settings settings;
  settings.parentChildren = 1;
  settings.parentChildrenMax = kNoLimit;
  settings.accnameMax = 50;
  return settings;
}

POINT InFirstItem(const accessible::FixtureProcess& fixture) {
  const RECT at = fixture.Control().Rectangle();
  return {at.left + 25, at.top + 8};
}

POINT InTheMiddle(const accessible::FixtureProcess& fixture) { return fixture.Control().Center(); }

void Expect(const accessible::FixtureProcess& fixture, const std::wstring& text) {
  if (text.empty() || !fixture.IsRunning()) {
    throw std::runtime_error("the accessible fixture gave nothing, or has ended");
  }
}

std::wstring ListTree(const accessible::FixtureProcess& fixture) {
  HWND target = fixture.Window();
  std::wstring text = TreeAt(target, InFirstItem(fixture), Everything(), Session(target));
  Expect(fixture, text);
  return text;
}

}  // namespace

std::vector<Pair> MeasureTextAtPoint() {
  const Apartment apartment;
  const accessible::FixtureProcess fixture("deadline=3600 fruit");
  const POINT point = InTheMiddle(fixture);
  MyInternetexplore::BoundedMessages messages(MyInternetexplore::SystemBrowserCalls());
  const MyInternetexplore::BrowserAccess browser{MyInternetexplore::SystemBrowserCalls(), messages};
  return Compare(
      kRounds,
      [&] {
        const extract::TextReading reading = extract::MyGetControlTextFromPoint(
            point.x, point.y, {}, false, browser, [](const std::wstring&) {});
        Expect(fixture, reading.text);
      },
      [point] { AskTextAtPoint(point); });
}

std::vector<Pair> MeasureAccessibleReport() {
  const Apartment apartment;
  const accessible::FixtureProcess fixture("deadline=3600 fruit");
  const POINT point = InTheMiddle(fixture);
  HWND target = fixture.Window();
  const settings::Settings settings = Everything();
  return Compare(
      kRounds,
      [&] {
        MyAccessible::AccessibleFacts record;
        Expect(fixture, MyAccessible::GetAccessibleMemberFromPoint(record, {}, {point}, settings,
                                                                   Session(target)));
      },
      [point] { AskAccessibleReport(point); });
}

std::vector<Pair> MeasureChildListing(int children) {
  const Apartment apartment;
  const accessible::FixtureProcess fixture("deadline=3600 objects=" + std::to_string(children));
  HWND target = fixture.Window();
  const settings::Settings settings = Everything();
  return Compare(
      kListingRounds, [&] { Expect(fixture, ChildrenOf(target, settings, Session(target))); },
      [target] { AskChildListing(target); });
}

std::vector<Pair> MeasureTreeListing(int items) {
  const Apartment apartment;
  const accessible::FixtureProcess fixture("deadline=3600 tree=" + std::to_string(items));
  return Compare(
      kListingRounds, [&] { ListTree(fixture); }, [&] { AskTreeListing(InFirstItem(fixture)); });
}

std::vector<Pair> MeasureTreeGrowth(int items) {
  const Apartment apartment;
  const accessible::FixtureProcess few("deadline=3600 place=10,10,200,300 tree=" +
                                       std::to_string(items));
  const accessible::FixtureProcess many("deadline=3600 place=300,10,200,300 tree=" +
                                        std::to_string(items * 10));
  return Compare(
      kListingRounds, [&] { ListTree(many); },
      [&] {
        for (int i = 0; i < 10; ++i) ListTree(few);
      });
}

}  // namespace bench
