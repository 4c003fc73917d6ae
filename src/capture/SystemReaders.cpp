#include "capture/SystemReaders.h"

#include "accessibility/AccessibleListing.h"
#include "accessibility/AccessibleReport.h"
#include "accessibility/MyAccessible.h"
#include "browser/InterfaceDescription.h"
#include "browser/MyInternetexplore.h"
#include "browser/OpenPage.h"
#include "capture/ElementTable.h"
#include "capture/StatusText.h"
#include "extract/ControlText.h"
#include "extract/CsvText.h"
#include "extract/ListBoxItems.h"
#include "extract/ListViewItems.h"
#include "extract/PointText.h"
#include "extract/TabControlItems.h"
#include "extract/ToolbarItems.h"
#include "extract/Win32API_Window.h"

namespace capture {
namespace {

constexpr std::int32_t kCommaSeparated = 1;  // of the setting "listview col"

struct ClassSearch {
  std::wstring_view className;
  std::vector<HWND> found;
};

BOOL CALLBACK AddIfOfClass(HWND hwnd, LPARAM context) noexcept {
  auto& search = *reinterpret_cast<ClassSearch*>(context);
  if (Win32API_Window::MyGetClassName(hwnd) == search.className) search.found.push_back(hwnd);
  return TRUE;
}

class SystemStatusWindows : public StatusWindows {
 public:
  HWND TopParent(HWND hwnd) override { return Win32API_Window::GetTopParent(hwnd); }
  HWND Foreground() override { return GetForegroundWindow(); }
  std::vector<HWND> Descendants(HWND root, std::wstring_view className) override {
    ClassSearch search{className, {}};
    EnumChildWindows(root, AddIfOfClass, reinterpret_cast<LPARAM>(&search));
    return search.found;
  }
  std::wstring Title(HWND hwnd) override { return Win32API_Window::MyGetWindowText(hwnd); }
  std::wstring Text(HWND hwnd) override { return extract::MyGetControlText(hwnd); }
};

class SystemReaders : public ReportReaders {
 public:
  explicit SystemReaders(const settings::Settings& settings) : settings_(settings) {}

  WindowFacts Facts(HWND hwnd) override {
    WindowFacts facts = ReadWindowFacts(hwnd);
    if (CategoryOf(facts.className) == Category::Ie) description_.Hold();
    return facts;
  }
  WindowInformation Information(const WindowFacts& window) override {
    return ReadWindowInformation(window);
  }

  std::wstring TextFromPoint(POINT point, std::wstring& method,
                             const std::function<void(const std::wstring&)>& showMessage) override {
    return extract::MyGetControlTextFromPoint(point.x, point.y, settings_.accValueText, false,
                                              method, browser_, showMessage);
  }
  std::wstring NameOfWindow(HWND hwnd) override { return MyAccessible::AccNameOfWindow(hwnd); }

  std::wstring MyGetEditItem(const CategoryRead& read) override {
    return extract::MyGetEditItem(read.hwnd, read.method);
  }
  std::wstring MyGetListBoxItem(const CategoryRead& read) override {
    return extract::MyGetListBoxItem(read.hwnd, read.session, read.method);
  }
  std::wstring MyGetComboBoxItem(const CategoryRead& read) override {
    return extract::MyGetComboBoxItem(read.hwnd, read.session, read.method);
  }
  std::wstring AccessibleChildren(const CategoryRead& read) override {
    return MyAccessible::ListChildren(read.hwnd, settings_, read.session);
  }
  std::wstring GetListViewItem(const CategoryRead& read) override {
    std::wstring rows =
        extract::GetListViewItem(read.hwnd, read.session, read.method, settings_.listviewCol,
                                 [&](HWND) { return AccessibleChildren(read); });
    return settings_.listviewCol == kCommaSeparated ? extract::ToCsv(rows) : rows;
  }
  std::wstring AccessibleTree(const CategoryRead& read) override {
    return MyAccessible::ListTree(read.hwnd, read.point, settings_, read.session);
  }
  std::wstring GetToolbarItem(const CategoryRead& read) override {
    return extract::GetToolbarItem(read.hwnd, read.session, read.method);
  }
  std::wstring GetTabControlItem(const CategoryRead& read) override {
    return extract::GetTabControlItem(read.hwnd, read.session, read.method);
  }
  std::wstring GetTooltipText(const CategoryRead&) override { return extract::GetTooltipText(); }
  std::wstring GetOther(const CategoryRead& read) override {
    return extract::GetOther(
        read.hwnd, [&](HWND) { return AccessibleChildren(read); }, read.method);
  }
  std::wstring GetChildText(const CategoryRead& read) override {
    return extract::GetChildText(read.hwnd, read.method);
  }

  std::unique_ptr<MyInternetexplore::PageReader> Page(HWND documentWindow, POINT point) override {
    return MyInternetexplore::OpenPage(
        documentWindow, point, {settings_.startNode, CharactersNeeded(settings_.htmlTagTextLength)},
        browser_);
  }
  bool Answers(HWND hwnd) override { return messages_.Answers(hwnd); }

  AccessibleTexts Accessible(HWND hwnd, POINT point,
                             const platform::ReadSession& session) override {
    MyAccessible::ReportedWindow window;
    if (hwnd != nullptr) {
      const WindowFacts facts = ReadWindowFacts(hwnd);
      window = {hwnd, facts.className, facts.title};
    }
    MyAccessible::AccessibleFacts record;
    std::wstring report =
        MyAccessible::GetAccessibleMemberFromPoint(record, window, point, settings_, session);
    return {std::move(report), record.name};
  }

  std::wstring StatusText(HWND target, std::wstring_view className,
                          std::wstring_view title) override {
    SystemStatusWindows windows;
    return FindStatusText(windows, target, className, title);
  }

 private:
  const settings::Settings& settings_;
  MyInternetexplore::BoundedMessages messages_{MyInternetexplore::SystemBrowserCalls()};
  const MyInternetexplore::BrowserAccess browser_{MyInternetexplore::SystemBrowserCalls(),
                                                  messages_};
  MyInternetexplore::InterfaceDescription description_;
};

}  // namespace

std::unique_ptr<ReportReaders> MakeSystemReaders(const settings::Settings& settings) {
  return std::make_unique<SystemReaders>(settings);
}

}  // namespace capture
