#include "accessibility/AccessibleAction.h"

#include <iterator>
#include <string>
#include <string_view>

#include "accessibility/MyAccessible.h"
#include "platform/ErrorReport.h"
#include "platform/LineEnd.h"

namespace MyAccessible {
namespace {

struct Action {
  std::wstring_view label;
  HRESULT (*perform)(IAccessible* object, const VARIANT& child);
};

// By mode, from 1.
constexpr Action kActions[] = {
    {L"accDoDefaultAction",
     [](IAccessible* object, const VARIANT& child) { return object->accDoDefaultAction(child); }},
    {L"AccSelect 1",
     [](IAccessible* object, const VARIANT& child) {
       return object->accSelect(SELFLAG_TAKEFOCUS, child);
     }},
    {L"AccSelect 2",
     [](IAccessible* object, const VARIANT& child) {
       return object->accSelect(SELFLAG_TAKESELECTION, child);
     }},
};

}  // namespace

bool AccAction(std::int32_t mode, IAccessible* object, const VARIANT& child) {
  if (object == nullptr) {
    platform::ShowMessage(L"MSAAオブジェクトではありません", L"AccAction");
    return true;
  }
  if (mode < 1 || mode > static_cast<std::int32_t>(std::size(kActions))) return false;
  const Action& action = kActions[mode - 1];
  const std::wstring name = AccName(object, child);
  const HRESULT result = action.perform(object, child);
  if (FAILED(result)) {
    std::wstring description = platform::SystemDescription(result);
    if (!name.empty()) description += std::wstring(platform::kCrLf) + name;
    platform::ReportError(L"AccAction - " + std::wstring(action.label), {result, description});
  }
  return false;
}

bool AccActionAt(std::int32_t mode, const platform::ReadPoint& point) {
  ObjectAndChild found;
  GetAccessibleObjAt(point, found);
  return AccAction(mode, found.object.Get(), found.child.Get());
}

}  // namespace MyAccessible
