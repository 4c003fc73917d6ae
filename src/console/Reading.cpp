#include "console/Reading.h"

#include <commctrl.h>

#include <limits>
#include <memory>
#include <utility>

#include "accessibility/MyAccessible.h"
#include "extract/CaptionItems.h"
#include "extract/TreeViewItems.h"
#include "report/ControlReading.h"
#include "report/SystemReaders.h"

namespace console {
namespace {

using report::Category;

// For controls and objects that have no end.
constexpr std::int32_t kMostItems = 1'000'000;
constexpr std::int32_t kMostChildren = 1'000;
constexpr std::int32_t kMostAncestors = 100;
constexpr std::int32_t kTextOfElement = 1'000;  // characters
constexpr std::int32_t kWholeName = std::numeric_limits<std::int32_t>::max();

// Left of and above every screen: an object asked what it has there answers with itself.
constexpr POINT kNowhere{-30'000, -30'000};

settings::Settings SettingsFor(const ReadOptions& options) {
  settings::Settings settings;
  settings.treeviewIndent = 1;
  settings.readWhole = 1;
  settings.accValueText = L"edit,DirectUIHWND";
  settings.accnameMax = kWholeName;
  settings.parentChildrenMax = options.most.value_or(kMostItems);
  settings.htmlTagTextLength = kTextOfElement;
  return settings;
}

bool IsList(Category category) {
  switch (category) {
    case Category::ListBox:
    case Category::ComboBox:
    case Category::ComboLBox:
    case Category::ListView:
    case Category::TreeView:
    case Category::ToolBar:
    case Category::TabControl:
      return true;
    default:
      return false;
  }
}

bool IsContainer(Category category) {
  return category == Category::Child || category == Category::Other;
}

// The header of a list view's columns; null when it has none.
HWND HeaderOf(HWND listView) {
  extract::ControlMessages& messages = extract::SystemAccess().messages;
  return reinterpret_cast<HWND>(INT_PTR{messages.Send(listView, LVM_GETHEADER, 0, 0)});
}

// The reader of pages looks for the element under the pointer: here it is wherever is read.
class PointerAt : public MyInternetexplore::BrowserCalls {
 public:
  explicit PointerAt(POINT point) : point_(point) {}
  BOOL GetCursorPos(POINT* point) override {
    *point = point_;
    return TRUE;
  }

 private:
  POINT point_;
};

class Reader {
 public:
  Reader(const ReadOptions& options, POINT point)
      : options_(options),
        settings_(SettingsFor(options)),
        calls_(point),
        readers_(report::MakeSystemReaders(settings_, calls_)) {}

  Facts ReadTarget(const Target& target) {
    Facts facts;
    if (target.atPoint) facts.point = target.point.at;
    const HWND hwnd = target.hwnd;
    facts.reading.window = readers_->Information(readers_->Facts(hwnd));
    facts.process = report::ReadProcessFacts(hwnd);
    facts.outOfReach = readers_->IsOutOfReach(hwnd);
    facts.reading.hung = readers_->IsHung(hwnd);
    if (!facts.reading.hung) {
      ReadTexts(target, facts.reading);
      if (CategoryOf(facts.reading) == Category::Ie) ReadPage(target, facts);
      if (options_.everything) ReadAround(target, facts);
    }
    if (options_.tree) ReadDescendants(facts);
    facts.gone = !IsWindow(hwnd);
    return facts;
  }

 private:
  // Lets one reading go on until its table is full.
  struct Course {
    Course(HWND hwnd, std::size_t most) : target(hwnd), table(most) {}

    HWND target;
    ItemTable table;
    const platform::ReadSession session{target, [](const std::wstring&) {},
                                        [this] {
                                          if (table.IsFull()) target = nullptr;
                                        },
                                        [] { return true; }};
  };

  std::size_t Most() const { return static_cast<std::size_t>(options_.most.value_or(kMostItems)); }

  static Category CategoryOf(const ReadingFacts& reading) {
    return report::CategoryOf(reading.window.window.className);
  }

  void ReadTexts(const Target& target, ReadingFacts& reading) {
    const platform::ReadPoint point =
        target.atPoint ? target.point : platform::ReadPoint{kNowhere, target.hwnd};
    reading.text = readers_->TextFromPoint(point, [](const std::wstring&) {});
    ReadItems(target, reading);
  }

  void ReadItems(const Target& target, ReadingFacts& reading) {
    const Category category = CategoryOf(reading);
    Course course(target.hwnd, Most());
    const std::wstring method(MethodOf(category, target, reading, course));
    const ItemTable& table = course.table;
    // An edit gives the whole of its text there.
    if (!table.Words().empty() && (category == Category::Edit || reading.text.text.empty())) {
      reading.text = {table.Words(), method};
    }
    if (table.Rows().empty() && !IsList(category)) return;
    reading.items = {method, table.IsComplete(), table.Rows(), {}};
    if (category == Category::ListView) reading.items->headers = HeadersOf(target.hwnd);
    const auto& rows = reading.items->rows;
    if (!rows.empty() && rows.front().size() != reading.items->headers.size()) {
      reading.items->headers.clear();
    }
  }

  // What a control says item by item is better than what it says of a part of them.
  extract::Method ByItemMessages(Category category, HWND hwnd, Course& course) const {
    if (category == Category::TreeView) {
      // Not only the items around the point.
      return extract::GetTreeViewItem(hwnd, course.session, course.table, {true, kWholeName});
    }
    // The combo box inside holds the addresses of texts.
    const HWND extended = category == Category::ComboBox ? extract::ComboBoxExOf(hwnd) : nullptr;
    return extended == nullptr ? extract::Method()
                               : extract::GetComboBoxExItem(extended, course.session, course.table);
  }

  extract::Method MethodOf(Category category, const Target& target, const ReadingFacts& reading,
                           Course& course) const {
    const extract::Method method = ByItemMessages(category, target.hwnd, course);
    if (course.table.HasText()) return method;
    course.table.Discard();
    return report::ReadControlItems(
        category, {target.hwnd, reading.window.window.className, target.point, course.session},
        settings_, course.table);
  }

  Row HeadersOf(HWND listView) const {
    const HWND header = HeaderOf(listView);
    if (header == nullptr || !IsWindow(header)) return {};
    Course course(header, Most());
    extract::GetHeaderItem(header, course.session, course.table);
    Row captions;
    for (const Row& row : course.table.Rows())
      captions.insert(captions.end(), row.begin(), row.end());
    return captions;
  }

  void ReadPage(const Target& target, Facts& facts) {
    const report::WindowFacts& window = facts.reading.window.window;
    const HWND document =
        report::DocumentWindow(window.className, target.hwnd, GetParent(target.hwnd));
    if (document == nullptr || !readers_->Answers(document)) return;
    Course course(target.hwnd, Most());
    MyInternetexplore::PageTexts texts;
    const auto page =
        readers_->Page({document, target.point.at, course.session, [](const std::wstring&) {},
                        [&](const MyInternetexplore::PageTexts& read) { texts = read; }});
    if (page) facts.page = {*page, texts};
  }

  void ReadAround(const Target& target, Facts& facts) {
    MyAccessible::ObjectAndChild found;
    if (target.atPoint) {
      if (MyAccessible::GetAccessibleObjAt(target.point, found)) facts.object = ObjectOf(found);
    } else {
      found.object = MyAccessible::GetAccessibleObj(target.hwnd);
      *found.child.Receive() = MyAccessible::Self();
      if (found.object) facts.object = ObjectOf(found);
    }
    facts.status = readers_->StatusText(facts.reading.window.window);
  }

  ObjectFacts ObjectOf(const MyAccessible::ObjectAndChild& found) const {
    IAccessible* const object = found.object.Get();
    const VARIANT& child = found.child.Get();
    Course course(nullptr, Most());
    const std::int32_t children = options_.most.value_or(kMostChildren);
    ObjectFacts facts;
    facts.members = MyAccessible::ReadMembers(found);
    facts.members.childCount = MyAccessible::ChildCountText(object, child);
    facts.type = MyAccessible::GetObjectType(object, child);
    facts.ancestors.complete = !MyAccessible::ForEachAncestor(
        object, child, kMostAncestors, course.session, [&](IAccessible* ancestor) {
          facts.ancestors.rows.push_back(
              MyAccessible::ReadAncestorRow(ancestor, child, kWholeName));
        });
    facts.children.complete = !MyAccessible::ForEachChild(
        object, child, children, course.session, [&](IAccessible* parent, const VARIANT& next) {
          facts.children.rows.push_back(MyAccessible::ReadChildRow(parent, next, kWholeName));
        });
    return facts;
  }

  void ReadDescendants(Facts& facts) {
    facts.descendants.emplace();
    for (const report::WindowFacts& child : facts.reading.window.children) {
      ReadingFacts reading;
      reading.window.window = child;
      reading.hung = readers_->IsHung(child.hwnd);
      // What a container holds comes with the windows in it.
      const bool repeats = IsContainer(CategoryOf(reading)) && GetWindow(child.hwnd, GW_CHILD);
      if (repeats && !reading.hung) {
        reading.text = {child.title, {}};
      } else if (!reading.hung) {
        ReadTexts(TargetOf(child.hwnd), reading);
      }
      facts.descendants->push_back(std::move(reading));
    }
  }

  const ReadOptions& options_;
  const settings::Settings settings_;
  PointerAt calls_;
  const std::unique_ptr<report::ReportReaders> readers_;
};

}  // namespace

Facts Read(const Target& target, const ReadOptions& options) {
  return Reader(options, target.point.at).ReadTarget(target);
}

}  // namespace console
