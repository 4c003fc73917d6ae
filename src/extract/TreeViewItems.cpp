#include "extract/TreeViewItems.h"

#include <commctrl.h>

#include <vector>

#include "accessibility/AccessibleListing.h"
#include "extract/ItemRecords.h"
#include "extract/RecordTexts.h"

namespace extract {
namespace {

// Limits for trees that have no end.
constexpr std::int32_t kMostItems = 65'536;
constexpr std::size_t kDeepest = 64;

template <typename Record>
class Tree {
 public:
  Tree(HWND hwnd, const ControlAccess& access)
      : hwnd_(hwnd), messages_(access.messages), text_(hwnd, access) {}

  bool IsReady() const { return text_.IsReady(); }
  bool AtItem() const { return item_ != 0; }
  std::size_t Level() const { return around_.size(); }

  void GoToRoot() { item_ = Next(TVGN_ROOT, 0); }

  // To the first child, else to the next item of this or an outer level.
  void GoOn() {
    const std::uint32_t child = Level() < kDeepest ? Next(TVGN_CHILD, item_) : 0;
    if (child != 0) {
      around_.push_back(item_);
      item_ = child;
      return;
    }
    while ((item_ = Next(TVGN_NEXT, item_)) == 0 && !around_.empty()) {
      item_ = around_.back();
      around_.pop_back();
    }
  }

  // An item is named by its address, and answers come in 32 bits: a 64-bit process may have its
  // items where that is another address. What is not there is never sent to the control.
  bool CanBeNamed() const {
    if constexpr (sizeof(Record::item) == sizeof item_) return true;
    return item_ <= 0x7FFFFFFF && text_.Block().IsReadable(item_);
  }

  std::wstring Name() {
    Record record;
    record.item = item_;
    return text_.Ask(record, TVM_GETITEMW, 0);
  }

 private:
  std::uint32_t Next(WPARAM which, std::uint32_t item) {
    return static_cast<std::uint32_t>(
        messages_.Send(hwnd_, TVM_GETNEXTITEM, which, static_cast<LPARAM>(item)));
  }

  HWND hwnd_;
  ControlMessages& messages_;
  RecordText<Record> text_;
  std::uint32_t item_ = 0;
  std::vector<std::uint32_t> around_;  // the items that hold this one, the outermost first
};

template <typename Record>
Method PutTree(Tree<Record> tree, const platform::ReadSession& session, platform::ItemSink& sink,
               const TreeLook& look) {
  if (!tree.IsReady()) return {};
  tree.GoToRoot();
  if (!tree.AtItem() || !tree.CanBeNamed()) return {};
  for (std::int32_t listed = 0; tree.AtItem(); tree.GoOn()) {
    if (Interrupted(session, platform::ReadUntil::kCaptureEnds, sink)) break;
    if (listed == kMostItems || !tree.CanBeNamed()) {
      sink.EndWith(platform::Ending::kInterrupted);
      break;
    }
    const std::wstring name = MyAccessible::ShortName(tree.Name(), look.accnameMax);
    if (look.indented) {
      for (std::size_t i = 0; i < tree.Level(); ++i) sink.Cell({});
    }
    PutItem(sink, name);
    session.Step(std::to_wstring(++listed));
  }
  return L"TVM_GETITEMW";
}

}  // namespace

Method GetTreeViewItem(HWND hwnd, const platform::ReadSession& session, platform::ItemSink& sink,
                       const TreeLook& look, const ControlAccess& access) {
  return InTargetsBitness<TreeItemRecord>(hwnd, access, [&]<typename Record>(Record) {
    return PutTree(Tree<Record>(hwnd, access), session, sink, look);
  });
}

}  // namespace extract
