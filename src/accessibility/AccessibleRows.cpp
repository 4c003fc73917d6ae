#include "accessibility/AccessibleRows.h"

#include <cstdint>
#include <ranges>
#include <vector>

#include "accessibility/AccessibleListing.h"
#include "accessibility/ChildWalk.h"
#include "platform/LineEnd.h"
#include "platform/TextSink.h"

namespace MyAccessible {
namespace {

using platform::kCrLf;

// Far outside the screen, the right and bottom edges may not fit into 32 bits.
std::wstring Edge(std::int32_t start, std::int32_t size) {
  return std::to_wstring(std::int64_t{start} + size);
}

std::wstring Quoted(const std::wstring& text) { return L"\"" + text + L"\""; }

RowFacts ReadRow(IAccessible* object, const VARIANT& child, std::int32_t accnameMax) {
  RowFacts row;
  row.name = ShortName(AccName(object, child), accnameMax);
  row.role = AccRole(object, child);
  if (!row.role.empty()) row.roleText = GetAccRoleText(object, child);
  row.location = AccLocation(object, child);
  row.childCount = ChildCountText(object, child);
  return row;
}

RowFacts ReadChildRow(IAccessible* object, const VARIANT& child, std::int32_t accnameMax) {
  const AccessiblePtr held = ObjectIn(child);
  IAccessible* const owner = held ? held.Get() : object;
  const VARIANT& inOwner = held ? Self() : child;
  RowFacts row = ReadRow(owner, inOwner, accnameMax);
  row.last = AccValue(owner, inOwner);
  if (held) row.typeName = GetObjectType(object, child);
  return row;
}

// The object whose children a report lists; empty for a simple element, which has none.
AccessiblePtr Parent(IAccessible* object, const VARIANT& child) {
  return IsSelf(child) ? AccessiblePtr(object) : ObjectIn(child);
}

}  // namespace

std::wstring RowText(const RowFacts& row) {
  std::wstring text = L" " + Quoted(row.name) + L"\t" + row.role + L":" + row.roleText + L"\t(" +
                      std::to_wstring(row.location.left) + L"," +
                      std::to_wstring(row.location.top) + L"," +
                      Edge(row.location.left, row.location.width) + L"," +
                      Edge(row.location.top, row.location.height) + L")\tChildCount=" +
                      row.childCount + L"\t" + Quoted(row.last);
  if (!row.typeName.empty()) text += L" TypeName=" + row.typeName;
  return text.append(kCrLf);
}

std::wstring AncestorRows(IAccessible* object, const VARIANT& child,
                          const settings::Settings& settings,
                          const platform::ReadSession& session) {
  const std::int32_t max = settings.parentChildrenMax;
  if (max == 0) return {};
  std::vector<std::wstring> rows;
  AccessiblePtr ancestor = IsSelf(child) ? AccParent(object) : AccessiblePtr(object);
  // One more than the largest number. Odd, and stays: docs/ODDITIES.md.
  for (std::int64_t i = 0; ancestor && i <= max; ++i) {
    // Parents may form a circle.
    if (!session.GoesOn(platform::ReadUntil::kCaptureEnds)) {
      rows.push_back(std::wstring(platform::kInterruptedMark).append(kCrLf));
      break;
    }
    RowFacts row = ReadRow(ancestor.Get(), Self(), settings.accnameMax);
    // The name in the column accValue. Odd, and stays: docs/ODDITIES.md.
    row.last = AccName(ancestor.Get(), child);
    rows.push_back(RowText(row));
    session.yield();
    ancestor = AccParent(ancestor.Get());
  }
  std::wstring text;
  for (const std::wstring& row : std::views::reverse(rows)) text += row;
  return text;
}

std::wstring ChildRows(IAccessible* object, const VARIANT& child,
                       const settings::Settings& settings, const platform::ReadSession& session) {
  const AccessiblePtr parent = Parent(object, child);
  if (!parent) return {};
  std::wstring text;
  std::int32_t listed = 0;
  ChildWalk walk(parent.Get(), settings.parentChildrenMax);
  while (const VARIANT* const next = walk.Next()) {
    if (!session.GoesOn(platform::ReadUntil::kCaptureEnds)) {
      return text.append(platform::kInterruptedMark);
    }
    if (listed >= settings.parentChildrenMax) {
      return text.append(platform::kRestOmittedLine).append(kCrLf);
    }
    text += RowText(ReadChildRow(parent.Get(), *next, settings.accnameMax));
    session.Step(std::to_wstring(++listed));
  }
  return text;
}

}  // namespace MyAccessible
