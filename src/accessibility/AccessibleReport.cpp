#include "accessibility/AccessibleReport.h"

#include <cstdio>
#include <iterator>
#include <string_view>
#include <utility>

#include "accessibility/AccessibleRows.h"
#include "platform/ErrorReport.h"
#include "settings/ConfigText.h"

namespace MyAccessible {
namespace {

constexpr std::wstring_view kCrLf = L"\r\n";

AccessibleFacts ReadFacts(const ObjectAndChild& found, const settings::Settings& settings,
                          const ListingProgress& progress) {
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
  if (settings.parentChildren == 1) {
    if (const AccessiblePtr parent = AccParent(object)) {
      facts.parentName = AccName(parent.Get(), LeftOut());
      const std::wstring role = AccRole(parent.Get(), Self());
      facts.parentRole = role + L":" + (role.empty() ? role : GetAccRoleText(parent.Get(), Self()));
    }
  }
  facts.childCount = ChildCountText(object, child);
  if (settings.parentChildren == 1) facts.children = ChildRows(object, child, settings, progress);
  return facts;
}

std::wstring HexState(const std::wstring& state) {
  if (state.empty()) return {};
  wchar_t digits[9] = {};
  std::swprintf(digits, std::size(digits), L"%X",
                static_cast<unsigned>(settings::LeadingNumber(state)));
  return digits;
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
      const auto handle = static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(window.hwnd));
      Line(L"　--ウィンドウハンドル(" + std::to_wstring(handle) + L")から取得");
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
      // Without a line end, unlike the line about the parents.
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

// Everything in the order in which it is told; what an overflow leaves untold is not read.
ReportFacts ReadReport(const ReportedWindow& window, const ObjectAndChild& found,
                       const settings::Settings& settings, const platform::ReadSession& session) {
  const ListingProgress progress(session);
  ReportFacts facts;
  facts.window = window;
  facts.object = ReadFacts(found, settings, progress);
  IAccessible* const object = found.object.Get();
  const VARIANT& child = found.child.Get();
  if (!facts.object.role.empty()) {
    if (EdgeOverflows(facts.object)) return facts;
    facts.id = ChildId(child);
    facts.objectType = GetObjectType(object, child);
  }
  if (settings.parentChildrenMax >= 1) {
    // Asked for twice: first whether there are any, then what they are.
    facts.hasAncestors = !AncestorRows(object, child, settings, progress).empty();
    if (facts.hasAncestors) facts.ancestors = AncestorRows(object, child, settings, progress);
  }
  return facts;
}

}  // namespace

bool EdgeOverflows(const AccessibleFacts& object) {
  const auto& [left, top, width, height] = object.location;
  std::int32_t edge = 0;
  return __builtin_add_overflow(left, width, &edge) || __builtin_add_overflow(top, height, &edge);
}

std::wstring AccessibleReportText(const ReportFacts& facts, const settings::Settings& settings) {
  return Words(facts, settings).Text();
}

std::wstring GetAccessibleMemberFromPoint(AccessibleFacts& record, const ReportedWindow& window,
                                          POINT point, const settings::Settings& settings,
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
