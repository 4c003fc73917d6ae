// Accessible objects that answer wrongly about themselves, their parents and their children.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <string>

#include "../ReadItems.h"
#include "../accessible/AccessibleNode.h"
#include "Cases.h"
#include "accessibility/AccessibleListing.h"
#include "accessibility/AccessibleReport.h"
#include "platform/ErrorReport.h"

namespace hostile {
namespace {

using accessible::Members;
using accessible::Node;

constexpr int kCases = 2000;

class HostileTree {
 public:
  explicit HostileTree(Random& random) : random_(random) {
    for (int i = 1 + random.Below(6); i > 0; --i) nodes_.emplace_back(AnyMembers());
    for (std::size_t i = 0; i < nodes_.size(); ++i) Spoil(nodes_[i], i);
  }
  ~HostileTree() {
    for (const Node& node : nodes_) EXPECT_EQ(node.References(), 1U);
  }

  Node& Any() {
    return nodes_[static_cast<std::size_t>(random_.Below(static_cast<int>(nodes_.size())))];
  }

 private:
  Members AnyMembers() {
    Members members;
    members.name = random_.Text(random_.Chance(3) ? 100000 : 80);
    members.value = random_.Chance(30) ? std::to_wstring(random_.Number()) : random_.Text(80);
    members.role = random_.Chance(70) ? random_.Below(70) : random_.Number();
    if (random_.Chance(10)) members.roleText = random_.Text(30);
    members.state = random_.Number();
    members.place = {random_.Number(), random_.Number(), random_.Number(), random_.Number()};
    members.description = random_.Text(80);
    members.defaultAction = random_.Text(80);
    members.keyboardShortcut = random_.Text(80);
    return members;
  }

  void Spoil(Node& node, std::size_t index) {
    constexpr HRESULT kFailures[] = {E_FAIL,
                                     E_NOTIMPL,
                                     S_FALSE,
                                     E_INVALIDARG,
                                     E_OUTOFMEMORY,
                                     RPC_E_DISCONNECTED,
                                     DISP_E_MEMBERNOTFOUND};
    constexpr const char* kMembers[] = {"accParent",   "accChildCount",    "accChild",
                                        "accName",     "accValue",         "accDescription",
                                        "accRole",     "accState",         "accKeyboardShortcut",
                                        "accFocus",    "accDefaultAction", "accLocation",
                                        "accNavigate", "accHitTest",       ""};
    for (int i = random_.Below(8); i > 0; --i) node.AddElement(AnyMembers());
    for (std::size_t child = index + 1; child < nodes_.size(); ++child) {
      if (random_.Chance(40)) node.AddObject(nodes_[child]);
    }
    // Parents in a circle, and parents that do not know their children.
    if (random_.Chance(30)) node.parent = &Any();
    for (int i = random_.Below(3); i > 0; --i) {
      node.failures[random_.OneOf(kMembers)] = random_.OneOf(kFailures);
    }
    if (random_.Chance(20)) node.claimedChildren = random_.Number();
    node.answersEveryChild = random_.Chance(20);
    node.enumerates = random_.Chance(30);
    node.hasFocus = random_.Chance(30);
  }

  Random& random_;
  std::deque<Node> nodes_;
};

// A capture that moves to another window after a while, and counts the message boxes.
class Surroundings {
 public:
  explicit Surroundings(Random& random)
      : leavesAfter_(random.Below(300)),
        before_(platform::SetMessageBox(
            [this](const std::wstring&, const std::wstring&) { ++boxes; })) {
    settings.parentChildren = random.Below(2);
    settings.parentChildrenMax = random.Chance(50) ? random.Below(20) : random.Number();
    settings.accnameMax = random.Chance(50) ? 50 : random.Number();
    settings.treeviewIndent = random.Below(3) - 1;
    settings.accValueText = random.Text(30);
    settings.winHandle = random.Chance(50) ? L"hex" : random.Text(4);
  }
  ~Surroundings() { platform::SetMessageBox(before_); }
  Surroundings(const Surroundings&) = delete;
  Surroundings& operator=(const Surroundings&) = delete;

  settings::Settings settings;
  int yields = 0;
  int boxes = 0;

 private:
  int leavesAfter_;
  bool running_ = true;
  HWND target_ = reinterpret_cast<HWND>(1);
  platform::MessageBoxFunction before_;

 public:
  platform::ReadSession session{
      target_,
      [](const std::wstring&) {},
      [this] {
        if (++yields <= leavesAfter_) return;
        running_ = false;
        target_ = reinterpret_cast<HWND>(2);
      },
      [this] { return running_; },
  };
};

// Whole lines, except for the mark after an interruption.
void ExpectLines(const std::wstring& text) {
  EXPECT_TRUE(text.empty() || text.ends_with(L"\r\n") ||
              text.ends_with(platform::kInterruptedMark));
}

void Find(Node& object, LONG child, MyAccessible::ObjectAndChild& found) {
  object.AddRef();
  *found.object.GetAddressOf() = &object;
  VARIANT* const number = found.child.Receive();
  number->vt = VT_I4;
  number->lVal = child;
}

LONG AnyChild(Random& random) { return random.Chance(80) ? random.Below(9) : random.Number(); }

TEST(HostileAccessibleTest, Reports) {
  ForEachCase(kCases, [](Random& random) {
    HostileTree tree(random);
    Surroundings around(random);
    MyAccessible::AccessibleFacts record;
    MyAccessible::ReportedWindow window;
    if (random.Chance(50)) {
      window = {reinterpret_cast<HWND>(UINT_PTR{random.Bits()}), random.Text(60), random.Text(60)};
    }
    MyAccessible::ObjectAndChild found;
    Find(tree.Any(), AnyChild(random), found);
    const std::wstring text =
        MyAccessible::ReportOf(record, window, found, around.settings, around.session);
    EXPECT_TRUE(text.starts_with(L"MSAA(MS Active Accessibility)情報\r\n"));
    // Its last line may have no line end.
    EXPECT_NE(text, L"");
    EXPECT_LE(around.boxes, 3);
    EXPECT_LE(around.yields, 301);
  });
}

TEST(HostileAccessibleTest, ListsOfChildren) {
  ForEachCase(kCases, [](Random& random) {
    HostileTree tree(random);
    Surroundings around(random);
    const std::wstring text = ChildrenOf(&tree.Any(), around.settings, around.session);
    ExpectLines(text);
    EXPECT_EQ(around.boxes, 0);
    EXPECT_LE(around.yields, 301);
  });
}

TEST(HostileAccessibleTest, Trees) {
  ForEachCase(kCases, [](Random& random) {
    HostileTree tree(random);
    Surroundings around(random);
    MyAccessible::ObjectAndChild found;
    Find(tree.Any(), AnyChild(random), found);
    const std::wstring text = TreeAround(found, around.settings, around.session);
    ExpectLines(text);
    EXPECT_EQ(around.boxes, 0);
    EXPECT_LE(around.yields, 301);
  });
}

}  // namespace
}  // namespace hostile
