// Roles and states in every kind of variant. Servers should give 32-bit numbers; other kinds are
// used when they hold a number, and never end a report.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "../accessible/AccessibleNode.h"
#include "FakeSession.h"
#include "MessageBoxes.h"
#include "accessibility/AccessibleReport.h"
#include "accessibility/MyAccessible.h"

namespace MyAccessible {
namespace {

using accessible::Node;
using testing::HasSubstr;
using testing::IsEmpty;

// Gives role and state as the test fills the variant.
class AnyKindNode : public Node {
 public:
  AnyKindNode() : Node({.name = L"物"}) {}

  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT, VARIANT* role) override { return Give(role); }
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT, VARIANT* state) override { return Give(state); }

  std::function<void(VARIANT& given)> fill;

 private:
  HRESULT Give(VARIANT* given) const {
    VariantInit(given);
    fill(*given);
    return S_OK;
  }
};

// A conversion to a number calls it.
class UnaskedObject : public Node {
 public:
  UnaskedObject() : Node({.name = L"値"}) {}
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                   EXCEPINFO*, UINT*) override {
    ++invoked;
    result->vt = VT_I4;
    result->lVal = 43;
    return S_OK;
  }
  int invoked = 0;
};

struct Kind {
  const char* name;
  VARTYPE type;
  std::int64_t bits;  // the content of the variant, low bytes first
  const wchar_t* role;
  const wchar_t* roleText;
  std::optional<std::int32_t> state;
};

constexpr std::int64_t Bits(double real) { return std::bit_cast<std::int64_t>(real); }

constexpr Kind kKinds[] = {
    {"Signed32", VT_I4, 43, L"43", L"ボタン", 43},
    {"Signed16", VT_I2, 43, L"43", L"ボタン", 43},
    {"Signed16Negative", VT_I2, -1, L"-1", L"", -1},
    {"Unsigned8", VT_UI1, 43, L"43", L"ボタン", 43},
    {"Unsigned32", VT_UI4, 43, L"43", L"ボタン", 43},
    {"Signed64", VT_I8, 43, L"43", L"ボタン", 43},
    {"Signed64TooLarge", VT_I8, 1LL << 40, L"", L"", std::nullopt},
    {"Real", VT_R8, Bits(43.0), L"43", L"ボタン", 43},
    {"RealIsRounded", VT_R8, Bits(42.75), L"43", L"ボタン", 43},
    {"RealTooLarge", VT_R8, Bits(1e300), L"", L"", std::nullopt},
    {"Truth", VT_BOOL, VARIANT_TRUE, L"-1", L"", -1},
    {"TextThatIsNone", VT_BSTR, 0, L"", L"", std::nullopt},
    {"Empty", VT_EMPTY, 0, L"", L"", std::nullopt},
    {"Null", VT_NULL, 0, L"", L"", std::nullopt},
    {"LeftOut", VT_ERROR, DISP_E_PARAMNOTFOUND, L"", L"", std::nullopt},
    {"ObjectThatIsNone", VT_DISPATCH, 0, L"", L"", std::nullopt},
    {"Unknown", VT_UNKNOWN, 0, L"", L"", std::nullopt},
    {"KindThatIsNone", 0x0FF0, 43, L"", L"", std::nullopt},
};

class RoleAndStateKindsTest : public testing::TestWithParam<Kind> {
 protected:
  ~RoleAndStateKindsTest() override { EXPECT_THAT(boxes_.shown, IsEmpty()); }

  void FillAsAsked() {
    node_.fill = [](VARIANT& given) {
      given.vt = GetParam().type;
      given.llVal = GetParam().bits;
    };
  }

  std::wstring Report() {
    ObjectAndChild found;
    node_.AddRef();
    *found.object.GetAddressOf() = &node_;
    *found.child.Receive() = Self();
    AccessibleFacts record;
    return ReportOf(record, {}, found, {}, session_.Session());
  }

  MessageBoxes boxes_;
  FakeSession session_;
  AnyKindNode node_;
};

TEST_P(RoleAndStateKindsTest, AreReadAsNumbers) {
  FillAsAsked();
  EXPECT_EQ(AccRole(&node_, Self()), GetParam().role);
  EXPECT_EQ(GetAccRoleText(&node_, Self()), GetParam().roleText);
  EXPECT_EQ(AccState(&node_, Self()), GetParam().state);
}

TEST_P(RoleAndStateKindsTest, AreShownInTheReport) {
  FillAsAsked();
  const std::wstring role = GetParam().role;
  if (role.empty()) {
    EXPECT_THAT(Report(), HasSubstr(L"\r\n\r\n %% Not MSAA %%\r\n\r\n"));
    return;
  }
  EXPECT_THAT(Report(), HasSubstr(L"Role       : " + role + L" " + GetParam().roleText + L"\r\n"));
  const wchar_t* const digits = GetParam().state == 43 ? L"2B" : L"FFFFFFFF";
  EXPECT_THAT(Report(), HasSubstr(std::wstring(L"State      : x") + digits + L" "));
}

INSTANTIATE_TEST_SUITE_P(Kinds, RoleAndStateKindsTest, testing::ValuesIn(kKinds),
                         [](const auto& test) { return test.param.name; });

// A role may be a text, and is then shown unchanged; digits are a number.
TEST(RoleAndStateTextTest, IsTheRoleButNoState) {
  AnyKindNode node;
  const wchar_t* text = L"独自の役";
  node.fill = [&](VARIANT& given) {
    given.vt = VT_BSTR;
    given.bstrVal = SysAllocString(text);
  };
  EXPECT_EQ(AccRole(&node, Self()), L"独自の役");
  EXPECT_EQ(GetAccRoleText(&node, Self()), L"");
  EXPECT_EQ(AccState(&node, Self()), std::nullopt);
  text = L"43";
  EXPECT_EQ(AccRole(&node, Self()), L"43");
  EXPECT_EQ(GetAccRoleText(&node, Self()), L"ボタン");
  EXPECT_EQ(AccState(&node, Self()), 43);
}

// That would be another call into the other program.
TEST(RoleAndStateObjectTest, IsNotConvertedToANumber) {
  UnaskedObject object;
  AnyKindNode node;
  node.fill = [&](VARIANT& given) {
    object.AddRef();
    given.vt = VT_DISPATCH;
    given.pdispVal = &object;
  };
  EXPECT_EQ(AccRole(&node, Self()), L"");
  EXPECT_EQ(AccState(&node, Self()), std::nullopt);
  EXPECT_EQ(object.invoked, 0);
  EXPECT_EQ(object.References(), 1U);
}

}  // namespace
}  // namespace MyAccessible
