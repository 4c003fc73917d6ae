#include "AccessibleReaders.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string>

#include "BareObject.h"
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

void Expect(const std::wstring& text) {
  if (text.empty()) throw std::runtime_error("nothing was read from the accessible fixture");
}

ObjectPtr ObjectIn(const VARIANT& value) {
  ObjectPtr object;
  if (value.vt == VT_DISPATCH && value.pdispVal != nullptr) {
    value.pdispVal->QueryInterface(IID_IAccessible,
                                   reinterpret_cast<void**>(object.GetAddressOf()));
  }
  return object;
}

using ChildVisit = std::function<void(const VARIANT& child)>;

void ForEachChild(IAccessible* object, const ChildVisit& visit) {
  std::array<VARIANT, 64> children{};
  const long count = BareObject(object, MyAccessible::Self()).ChildCount();
  for (long from = 0; from < count;) {
    long got = 0;
    const long asked = std::min<long>(static_cast<long>(children.size()), count - from);
    if (FAILED(AccessibleChildren(object, from, asked, children.data(), &got)) || got == 0) return;
    for (long i = 0; i < got; ++i) {
      VARIANT& child = children[static_cast<std::size_t>(i)];
      visit(child);
      VariantClear(&child);
    }
    from += got;
  }
}

// The members that a row about an ancestor or a child shows; the role's number and its word are
// two questions.
void AskRow(const BareObject& object) {
  object.Name();
  object.Role();
  object.Role();
  object.Location();
}

void AskAncestors(const MyAccessible::ObjectAndChild& found) {
  const VARIANT& child = found.child.Get();
  ObjectPtr ancestor = MyAccessible::IsSelf(child) ? BareObject(found.object.Get(), child).Parent()
                                                   : ObjectPtr(found.object);
  while (ancestor) {
    const BareObject self(ancestor.Get(), MyAccessible::Self());
    AskRow(self);
    self.ChildCount();
    BareObject(ancestor.Get(), child).Name();
    ancestor = self.Parent();
  }
}

void AskChildRow(IAccessible* parent, const VARIANT& child) {
  const ObjectPtr held = ObjectIn(child);
  const BareObject object(held ? held.Get() : parent, held ? MyAccessible::Self() : child);
  AskRow(object);
  object.Text(&IAccessible::get_accValue);
  if (!held) return;
  object.ChildCount();
  object.ChildCount();
}

void AskReport(POINT point) {
  MyAccessible::ObjectAndChild found;
  AccessibleObjectFromPoint(point, found.object.GetAddressOf(), found.child.Receive());
  const BareObject object(found.object.Get(), found.child.Get());
  object.Location();
  object.Name();
  object.Text(&IAccessible::get_accValue);
  object.Role();
  object.Role();
  object.State();
  object.State();
  BareObject(found.object.Get(), MyAccessible::LeftOut())
      .Text(&IAccessible::get_accKeyboardShortcut);
  object.Focus();
  object.Text(&IAccessible::get_accDefaultAction);
  object.Text(&IAccessible::get_accDescription);
  if (const ObjectPtr parent = object.Parent()) {
    BareObject(parent.Get(), MyAccessible::LeftOut()).Name();
    const BareObject self(parent.Get(), MyAccessible::Self());
    self.Role();
    self.Role();
  }
  if (MyAccessible::IsSelf(found.child.Get())) {
    object.ChildCount();
    ForEachChild(found.object.Get(),
                 [&](const VARIANT& child) { AskChildRow(found.object.Get(), child); });
    object.ChildCount();
  }
  AskAncestors(found);
  AskAncestors(found);
}

void AskListing(IAccessible* object) {
  ForEachChild(object, [object](const VARIANT& child) {
    const ObjectPtr held = ObjectIn(child);
    if (!held) {
      BareObject(object, child).Name();
    } else {
      BareObject(held.Get(), MyAccessible::Self()).Name();
      PumpMessages();
      AskListing(held.Get());
    }
  });
}

void AskTree(POINT point) {
  MyAccessible::ObjectAndChild found;
  AccessibleObjectFromPoint(point, found.object.GetAddressOf(), found.child.Receive());
  LONG at = found.child.Get().lVal;
  for (bool more = true; more;) {
    const platform::UniqueVariant child(at);
    const BareObject item(found.object.Get(), child.Get());
    item.Name();
    PumpMessages();
    platform::UniqueVariant next;
    more = item.Navigate(NAVDIR_NEXT, next);
    if (more) at = next.Get().lVal;
  }
}

std::wstring ListTree(const accessible::FixtureProcess& fixture) {
  HWND target = fixture.Window();
  std::wstring text =
      MyAccessible::ListTree(target, InFirstItem(fixture), Everything(), Session(target));
  Expect(text);
  return text;
}

}  // namespace

std::vector<Pair> MeasureTextAtPoint() {
  const Apartment apartment;
  const accessible::FixtureProcess fixture("fruit");
  const POINT point = InTheMiddle(fixture);
  MyInternetexplore::BoundedMessages messages(MyInternetexplore::SystemBrowserCalls());
  const MyInternetexplore::BrowserAccess browser{MyInternetexplore::SystemBrowserCalls(), messages};
  return Compare(
      kRounds,
      [&] {
        std::wstring method;
        Expect(extract::MyGetControlTextFromPoint(point.x, point.y, {}, false, method, browser,
                                                  [](const std::wstring&) {}));
      },
      [point] {
        wchar_t className[128];
        GetClassNameW(WindowFromPoint(point), className, 128);
        MyAccessible::ObjectAndChild found;
        AccessibleObjectFromPoint(point, found.object.GetAddressOf(), found.child.Receive());
        BareObject(found.object.Get(), found.child.Get()).Name();
      });
}

std::vector<Pair> MeasureAccessibleReport() {
  const Apartment apartment;
  const accessible::FixtureProcess fixture("fruit");
  const POINT point = InTheMiddle(fixture);
  HWND target = fixture.Window();
  const settings::Settings settings = Everything();
  return Compare(
      kRounds,
      [&] {
        MyAccessible::AccessibleFacts record;
        Expect(MyAccessible::GetAccessibleMemberFromPoint(record, {}, point, settings,
                                                          Session(target)));
      },
      [point] { AskReport(point); });
}

std::vector<Pair> MeasureChildListing(int children) {
  const Apartment apartment;
  const accessible::FixtureProcess fixture("objects=" + std::to_string(children));
  HWND target = fixture.Window();
  const settings::Settings settings = Everything();
  return Compare(
      kListingRounds,
      [&] { Expect(MyAccessible::ListChildren(target, settings, Session(target))); },
      [target] {
        ObjectPtr object;
        AccessibleObjectFromWindow(target, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                   reinterpret_cast<void**>(object.GetAddressOf()));
        AskListing(object.Get());
      });
}

std::vector<Pair> MeasureTreeListing(int items) {
  const Apartment apartment;
  const accessible::FixtureProcess fixture("tree=" + std::to_string(items));
  return Compare(
      kListingRounds, [&] { ListTree(fixture); }, [&] { AskTree(InFirstItem(fixture)); });
}

std::vector<Pair> MeasureTreeGrowth(int items) {
  const Apartment apartment;
  const accessible::FixtureProcess few("place=10,10,200,300 tree=" + std::to_string(items));
  const accessible::FixtureProcess many("place=300,10,200,300 tree=" + std::to_string(items * 10));
  return Compare(
      kListingRounds, [&] { ListTree(many); },
      [&] {
        for (int i = 0; i < 10; ++i) ListTree(few);
      });
}

}  // namespace bench
