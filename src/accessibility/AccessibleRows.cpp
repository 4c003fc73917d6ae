#include "accessibility/AccessibleRows.h"

#include <cstdint>
#include <ranges>
#include <vector>

#include "accessibility/AccessibleListing.h"
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

}  // namespace

RowFacts ReadAncestorRow(IAccessible* ancestor, const VARIANT& child, std::int32_t accnameMax) {
  RowFacts row = ReadRow(ancestor, Self(), accnameMax);
  // The name in the column accValue. Odd, and stays: docs/ODDITIES.md.
  row.last = AccName(ancestor, child);
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

AccessiblePtr Parent(IAccessible* object, const VARIANT& child) {
  return IsSelf(child) ? AccessiblePtr(object) : ObjectIn(child);
}

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
  // One more than the largest number. Odd, and stays: docs/ODDITIES.md.
  const bool interrupted =
      ForEachAncestor(object, child, std::int64_t{max} + 1, session, [&](IAccessible* ancestor) {
        rows.push_back(RowText(ReadAncestorRow(ancestor, child, settings.accnameMax)));
      });
  if (interrupted) rows.push_back(std::wstring(platform::kInterruptedMark).append(kCrLf));
  std::wstring text;
  for (const std::wstring& row : std::views::reverse(rows)) text += row;
  return text;
}

std::wstring ChildRows(IAccessible* object, const VARIANT& child,
                       const settings::Settings& settings, const platform::ReadSession& session) {
  std::wstring text;
  const auto ended = ForEachChild(object, child, settings.parentChildrenMax, session,
                                  [&](IAccessible* parent, const VARIANT& next) {
                                    text +=
                                        RowText(ReadChildRow(parent, next, settings.accnameMax));
                                  });
  if (ended == platform::Ending::kInterrupted) text.append(platform::kInterruptedMark);
  if (ended == platform::Ending::kRestOmitted) {
    text.append(platform::kRestOmittedLine).append(kCrLf);
  }
  return text;
}

}  // namespace MyAccessible
