#include "report/ControlCategory.h"

namespace report {
namespace {

struct Fragment {
  std::wstring_view text;
  Category category;
};

// Pieces of names; the first one that a class name contains counts. Odd, and stays:
// docs/ODDITIES.md.
constexpr Fragment kFragments[] = {
    {L"Edit", Category::Edit},
    {L"ListBox", Category::ListBox},
    {L"ComboBox", Category::ComboBox},
    {L"ComboLBox", Category::ComboLBox},
    {L"ListView", Category::ListView},
    {L"TreeView", Category::TreeView},
    {L"Toolbar", Category::ToolBar},
    {L"TabControl", Category::TabControl},
    {L"tooltips_class32", Category::ToolTips},
    {L"Internet Explorer", Category::Ie},
    {L"Silverlight", Category::Ie},
    {L"IEFrame", Category::IeFrame},
    {L"#32770", Category::Child},
};

bool Contains(std::wstring_view text, std::wstring_view part) {
  return text.find(part) != text.npos;
}

}  // namespace

Category CategoryOf(std::wstring_view className) {
  for (const Fragment& fragment : kFragments) {
    if (Contains(className, fragment.text)) return fragment.category;
  }
  return Category::Other;
}

HWND DocumentWindow(std::wstring_view className, HWND target, HWND parent) {
  if (Contains(className, L"CmboBx") || Contains(className, L"LstBox")) return parent;
  const bool own = Contains(className, L"Server") || Contains(className, L"Silverlight");
  return own ? target : nullptr;
}

}  // namespace report
