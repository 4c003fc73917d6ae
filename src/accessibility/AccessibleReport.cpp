#include "accessibility/AccessibleReport.h"

#include <string_view>
#include <utility>

#include "accessibility/AccessibleRows.h"
#include "platform/ErrorReport.h"
#include "platform/HandleText.h"
#include "platform/LineEnd.h"
#include "platform/NumberText.h"
#include "platform/Rounding.h"

namespace MyAccessible {
namespace {

using platform::kCrLf;

AccessibleFacts ReadFacts(const ObjectAndChild& found, const settings::Settings& settings,
                          const platform::ReadSession& session) {
  IAccessible* const object = found.object.Get();
  const VARIANT& child = found.child.Get();
  AccessibleFacts facts = ReadMembers(found);
  if (settings.parentChildren == 1) {
    if (const AccessiblePtr parent = AccParent(object)) {
      facts.parentName = AccName(parent.Get(), LeftOut());
      const std::wstring role = AccRole(parent.Get(), Self());
      facts.parentRole = role + L":" + (role.empty() ? role : GetAccRoleText(parent.Get(), Self()));
    }
  }
  facts.childCount = ChildCountText(object, child);
  if (settings.parentChildren == 1) facts.children = ChildRows(object, child, settings, session);
  return facts;
}

std::wstring HexState(const std::wstring& state) {
  return state.empty() ? std::wstring() : platform::Hexadecimal(platform::LeadingNumber(state));
}

// The report, line by line.
class Words {
 public:
  Words(const ReportFacts& facts, const settings::Settings& settings)
      : facts_(facts), object_(facts.object), max_(settings.parentChildrenMax) {}

  std::wstring Text() {
    Heading();
    if (object_.role.empty()) {
      Line({});
      Line(L" %% Not MSAA %%");
      Line({});
    } else {
      Members();
      // Ends here. Odd, and stays: docs/ODDITIES.md.
      if (EdgeOverflows(object_)) return std::move(text_);
      MembersBelowLocation();
    }
    Ancestors();
    if (!object_.role.empty()) Children();
    return std::move(text_);
  }

 private:
  void Line(std::wstring_view words) { text_.append(words).append(kCrLf); }

  void Heading() {
    Line(L"MSAA(MS Active Accessibility)情報");
    if (const ReportedWindow& window = facts_.window; window.hwnd != nullptr) {
      Line(L"　--ウィンドウハンドル(" + platform::DecimalHandle(window.hwnd) + L")から取得");
      Line(L"　　" + window.className + L" \"" + window.title + L"\"");
    }
    Line(std::wstring(39, L'-'));
  }

  void Members() {
    Line(L"Name       : " + object_.name);
    Line(L"Value      : " + object_.value);
    Line(L"Role       : " + object_.role + L" " + object_.roleText);
    Line(L"State      : x" + HexState(object_.state) + L" " + object_.stateText);
    Line(L"KbShortCut : " + object_.keyboardShortcut);
  }

  void MembersBelowLocation() {
    const auto& [left, top, width, height] = object_.location;
    Line(L"Location   : (l:" + std::to_wstring(left) + L",t:" + std::to_wstring(top) + L",r:" +
         std::to_wstring(left + width) + L",b:" + std::to_wstring(top + height) + L")");
    Line(L"ChildCount : " + object_.childCount);
    Line(L"DefAction  : " + object_.defaultAction);
    Line(L"Description: " + object_.description);
    Line({});
    Line(L"Id         : " + std::to_wstring(facts_.id));
    Line(L"Object Type: " + facts_.objectType);
    Line({});
  }

  void ColumnHeader() {
    Line(L" accName\taccRole:Text\t( Location )\tChildCount=n\taccValue");
    Line(L" " + std::wstring(58, L'-'));
  }

  void Ancestors() {
    if (max_ < 1) {
      Line({});
      Line(L"Parents    : 取得最大個数は０になっています");
      Line({});
    } else if (facts_.hasAncestors) {
      Line(L"Ancestors  : top → bottom");
      ColumnHeader();
      text_ += facts_.ancestors;
    } else {
      Line(L"Ancestors  : ");
      Line({});
      Line(L"GetParentObject failed");
      Line({});
    }
  }

  void Children() {
    if (max_ < 1) {
      // Without a line end. Odd, and stays: docs/ODDITIES.md.
      text_ += L"Children 　: 取得最大個数は０になっています";
      return;
    }
    Line(L"Children   : " + object_.childCount + L" max=" + std::to_wstring(max_));
    ColumnHeader();
    text_ += object_.children;
  }

  const ReportFacts& facts_;
  const AccessibleFacts& object_;
  const std::int32_t max_;
  std::wstring text_;
};

// Reads everything in the order of the report; what an overflow leaves out is not read.
ReportFacts ReadReport(const ReportedWindow& window, const ObjectAndChild& found,
                       const settings::Settings& settings, const platform::ReadSession& session) {
  ReportFacts facts;
  facts.window = window;
  facts.object = ReadFacts(found, settings, session);
  IAccessible* const object = found.object.Get();
  const VARIANT& child = found.child.Get();
  if (!facts.object.role.empty()) {
    if (EdgeOverflows(facts.object)) return facts;
    facts.id = ChildId(child);
    facts.objectType = GetObjectType(object, child);
  }
  if (settings.parentChildrenMax >= 1) {
    // Read twice. Odd, and stays: docs/ODDITIES.md.
    facts.hasAncestors = !AncestorRows(object, child, settings, session).empty();
    if (facts.hasAncestors) facts.ancestors = AncestorRows(object, child, settings, session);
  }
  return facts;
}

}  // namespace

AccessibleFacts ReadMembers(const ObjectAndChild& found) {
  IAccessible* const object = found.object.Get();
  const VARIANT& child = found.child.Get();
  AccessibleFacts facts;
  facts.location = AccLocation(object, child);
  facts.name = AccName(object, child);
  facts.value = AccValue(object, child);
  facts.role = AccRole(object, child);
  if (!facts.role.empty()) facts.roleText = GetAccRoleText(object, child);
  if (const auto state = AccState(object, child)) facts.state = std::to_wstring(*state);
  facts.stateText = AccStateText(object, child);
  facts.keyboardShortcut = AccKeyboardShortcut(object, LeftOut());
  facts.focus = AccFocus(object);
  facts.defaultAction = AccDefaultAction(object, child);
  facts.description = AccDescription(object, child);
  return facts;
}

bool EdgeOverflows(const AccessibleFacts& object) {
  const auto leaves32Bits = [](std::int32_t start, std::int32_t size) {
    const std::int64_t edge = std::int64_t{start} + size;
    return edge != platform::ClampToInt32(edge);
  };
  const Location& place = object.location;
  return leaves32Bits(place.left, place.width) || leaves32Bits(place.top, place.height);
}

std::wstring AccessibleReportText(const ReportFacts& facts, const settings::Settings& settings) {
  return Words(facts, settings).Text();
}

std::wstring GetAccessibleMemberFromPoint(AccessibleFacts& record, const ReportedWindow& window,
                                          const platform::ReadPoint& point,
                                          const settings::Settings& settings,
                                          const platform::ReadSession& session) {
  ObjectAndChild found;
  if (window.hwnd == nullptr) {
    if (!GetAccessibleObjAt(point, found)) return {};
  } else {
    found.object = GetAccessibleObj(window.hwnd);
    if (!found.object) return {};
    *found.child.Receive() = Self();
  }
  return ReportOf(record, window, found, settings, session);
}

std::wstring ReportOf(AccessibleFacts& record, const ReportedWindow& window,
                      const ObjectAndChild& found, const settings::Settings& settings,
                      const platform::ReadSession& session) {
  ReportFacts facts = ReadReport(window, found, settings, session);
  std::wstring text = AccessibleReportText(facts, settings);
  record = std::move(facts.object);
  if (!record.role.empty() && EdgeOverflows(record)) {
    platform::ReportError(
        L"GetAccessibleMemberFromPoint",
        {ERROR_ARITHMETIC_OVERFLOW, platform::SystemDescription(ERROR_ARITHMETIC_OVERFLOW)});
  }
  return text;
}

}  // namespace MyAccessible
