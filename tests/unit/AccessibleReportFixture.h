// Accessible objects to report on, and the texts that their reports share.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../accessible/AccessibleNode.h"
#include "FakeSession.h"
#include "accessibility/AccessibleReport.h"
#include "platform/ErrorReport.h"

namespace MyAccessible {

#define LINE39 L"---------------------------------------\r\n"
#define COLUMNS                                                       \
  L" accName\taccRole:Text\t( Location )\tChildCount=n\taccValue\r\n" \
  L" ----------------------------------------------------------\r\n"

// A list in a group in a window, with two simple elements and an object in it.
class AccessibleReportFixture : public testing::Test {
 protected:
  AccessibleReportFixture()
      : before_(
            platform::SetMessageBox([this](const std::wstring& text, const std::wstring& title) {
              boxes_.push_back(title + L"|" + text);
            })) {
    settings_.parentChildren = 1;
    settings_.parentChildrenMax = 10;
    settings_.accnameMax = 50;
    window_.AddObject(group_);
    group_.AddObject(list_);
    list_.AddElement({.name = L"林檎",
                      .value = L"赤",
                      .role = ROLE_SYSTEM_LISTITEM,
                      .state = 0x300006,
                      .place = {10, 20, 100, 16}});
    list_.AddObject(button_);
    list_.AddElement({.name = L"蜜柑",
                      .value = L"橙",
                      .role = ROLE_SYSTEM_LISTITEM,
                      .state = 0x200000,
                      .place = {10, 52, 100, 16},
                      .description = L"果物",
                      .defaultAction = L"選ぶ"});
  }
  ~AccessibleReportFixture() override {
    platform::SetMessageBox(before_);
    for (const accessible::Node* const node : {&window_, &group_, &list_, &button_}) {
      EXPECT_EQ(node->References(), 1U);
    }
  }

  std::wstring Report(accessible::Node& object, LONG child, const ReportedWindow& window = {}) {
    ObjectAndChild found;
    object.AddRef();
    *found.object.GetAddressOf() = &object;
    found.child.Receive()->vt = VT_I4;
    *found.child.Receive() = platform::UniqueVariant(child).Get();
    for (accessible::Node* const node : {&window_, &group_, &list_, &button_}) node->calls.clear();
    return ReportOf(record_, window, found, settings_, session_.Session());
  }

  accessible::Node window_{
      {.name = L"窓の題", .role = ROLE_SYSTEM_WINDOW, .state = 0, .place = {0, 0, 640, 480}}};
  accessible::Node group_{
      {.name = L"組", .role = ROLE_SYSTEM_GROUPING, .place = {5, 15, 200, 100}}};
  accessible::Node list_{{.name = L"果物の一覧",
                          .value = L"二つ",
                          .role = ROLE_SYSTEM_LIST,
                          .state = 0x100000,
                          .place = {10, 20, 100, 80},
                          .description = L"好きな果物",
                          .defaultAction = L"開く",
                          .keyboardShortcut = L"Alt+F"}};
  accessible::Node button_{{.name = L"追加",
                            .value = L"加",
                            .role = ROLE_SYSTEM_PUSHBUTTON,
                            .place = {10, 36, 100, 16}}};
  settings::Settings settings_;
  FakeSession session_;
  AccessibleFacts record_;
  std::vector<std::wstring> boxes_;
  platform::MessageBoxFunction before_;
};

}  // namespace MyAccessible
