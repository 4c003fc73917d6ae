#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "settings/MyKeyboard.h"
#include "settings/MySub_HotKey.h"

namespace {

// Keys as the test sets them; a query clears the key's "was pressed" bit, as the system does.
class FakeKeyboard : public settings::KeyboardState {
 public:
  void Press(int key) { state_[key] = static_cast<short>(0x8001); }
  void Hold(int key) { state_[key] = static_cast<short>(0x8000); }

  short AsyncKeyState(int key) const override {
    asked.push_back(key);
    const auto found = state_.find(key);
    if (found == state_.end()) return 0;
    const short state = found->second;
    found->second = static_cast<short>(state & ~1);
    return state;
  }

  mutable std::vector<int> asked;

 private:
  mutable std::map<int, short> state_;
};

TEST(HotKeyListTest, HoldsTheKeysThatCanBeChosen) {
  using MySub_HotKey::HotKeyCodes;
  using MySub_HotKey::HotKeyNames;
  ASSERT_EQ(HotKeyNames.size(), 29U);
  ASSERT_EQ(HotKeyCodes.size(), 29U);
  EXPECT_EQ(HotKeyNames[0], L"");
  EXPECT_EQ(HotKeyCodes[0], 0);
  EXPECT_EQ(HotKeyNames[1], L"PAUSE/BREAK");
  EXPECT_EQ(HotKeyCodes[1], 19);
  EXPECT_EQ(HotKeyNames[2], L"ESC");
  EXPECT_EQ(HotKeyCodes[2], 27);
  for (int i = 0; i < 12; ++i) {
    const auto at = static_cast<std::size_t>(i);
    EXPECT_EQ(HotKeyNames[3 + at], L"F" + std::to_wstring(i + 1));
    EXPECT_EQ(HotKeyCodes[3 + at], 112 + i);
  }
  // The second half is the first with Shift.
  for (std::size_t i = 1; i <= 14; ++i) {
    EXPECT_EQ(HotKeyNames[14 + i], L"Shift+" + std::wstring(HotKeyNames[i]));
    EXPECT_EQ(HotKeyCodes[14 + i], HotKeyCodes[i] + 0x40000);
  }
}

TEST(HotKeyCodeTest, FindsTheNameExactly) {
  for (std::size_t i = 0; i < MySub_HotKey::kHotKeyCount; ++i) {
    EXPECT_EQ(MySub_HotKey::HotKeyCode(MySub_HotKey::HotKeyNames[i]), MySub_HotKey::HotKeyCodes[i]);
  }
  EXPECT_EQ(MySub_HotKey::HotKeyCode(L"esc"), 0);
  EXPECT_EQ(MySub_HotKey::HotKeyCode(L" ESC"), 0);
  EXPECT_EQ(MySub_HotKey::HotKeyCode(L"F13"), 0);
}

struct PressCase {
  std::int32_t code;
  bool alt;
  bool ctrl;
  bool shift;
  bool fires;
};

class HotKeyPressTest : public testing::TestWithParam<PressCase> {};

TEST_P(HotKeyPressTest, LooksAtItsOwnModifierOnly) {
  const PressCase& press = GetParam();
  FakeKeyboard keyboard;
  keyboard.Press(press.code & 0xFF);
  if (press.alt) keyboard.Hold(18);
  if (press.ctrl) keyboard.Hold(17);
  if (press.shift) keyboard.Hold(16);
  EXPECT_EQ(MySub_HotKey::HotKeyPressed(press.code, keyboard), press.fires);
  // Holding the key does not fire again.
  EXPECT_FALSE(MySub_HotKey::HotKeyPressed(press.code, keyboard));
}

INSTANTIATE_TEST_SUITE_P(
    Modifiers, HotKeyPressTest,
    testing::Values(
        PressCase{116, false, false, false, true}, PressCase{116, true, false, false, false},
        PressCase{116, false, true, false, false}, PressCase{116, false, false, true, false},
        PressCase{116, true, true, true, false}, PressCase{0x40074, false, false, true, true},
        PressCase{0x40074, false, false, false, false}, PressCase{0x40074, true, true, true, true},
        PressCase{0x40074, true, false, false, false}, PressCase{0x10054, true, false, false, true},
        PressCase{0x10054, false, false, false, false}, PressCase{0x10054, true, true, true, true},
        PressCase{0x20041, false, true, false, true},
        PressCase{0x20041, true, false, true, false}));

TEST(HotKeyPressTest, AKeyThatIsOnlyHeldDoesNotFire) {
  FakeKeyboard keyboard;
  keyboard.Hold(27);
  EXPECT_FALSE(MySub_HotKey::HotKeyPressed(27, keyboard));
}

TEST(HotKeyPressTest, CodeZeroQueriesKeyZeroAndNeverFires) {
  FakeKeyboard keyboard;
  EXPECT_FALSE(MySub_HotKey::HotKeyPressed(0, keyboard));
  EXPECT_EQ(keyboard.asked, std::vector<int>{0});
}

TEST(KeyNameTest, NamesTheKeysOfAJapaneseKeyboard) {
  std::map<int, std::wstring> names{{1, L" "},
                                    {2, L" "},
                                    {3, L"Break"},
                                    {4, L" "},
                                    {8, L"Backspace"},
                                    {9, L"Tab"},
                                    {13, L"Enter"},
                                    {16, L"Shift"},
                                    {17, L"Ctrl"},
                                    {18, L"Alt"},
                                    {19, L"Pause"},
                                    {20, L"Caps Lock"},
                                    {27, L"Esc"},
                                    {28, L"変換"},
                                    {29, L"無変換"},
                                    {32, L"スペース"},
                                    {33, L"PgUp"},
                                    {34, L"PgDn"},
                                    {35, L"End"},
                                    {36, L"Home"},
                                    {37, L"←"},
                                    {38, L"↑"},
                                    {39, L"→"},
                                    {40, L"↓"},
                                    {44, L"Print Screen"},
                                    {45, L"Insert"},
                                    {46, L"Delete"},
                                    {91, L"左ウィンドウズキー"},
                                    {92, L"右ウィンドウズキー"},
                                    {93, L"アプリケーションキー"},
                                    {106, L"*"},
                                    {107, L"+"},
                                    {108, L","},
                                    {109, L"-"},
                                    {110, L"."},
                                    {111, L"/"},
                                    {144, L"Num Lock"},
                                    {145, L"Scroll Lock"},
                                    {186, L":"},
                                    {187, L";"},
                                    {188, L","},
                                    {189, L"-^"},
                                    {190, L"."},
                                    {191, L"/"},
                                    {192, L"@"},
                                    {219, L"["},
                                    {220, L"\\"},
                                    {221, L"]"},
                                    {222, L"^"},
                                    {226, L"\\(バックスラッシュ）"},
                                    {240, L"Caps Lock"},
                                    {242, L"カタカナ"},
                                    {243, L"半角／全角"},
                                    {244, L"半角／全角"}};
  for (int i = 0; i <= 9; ++i) {
    names[48 + i] = std::to_wstring(i);
    names[96 + i] = L"テンキー" + std::to_wstring(i);
  }
  for (int i = 0; i < 26; ++i) names[65 + i] = std::wstring(1, static_cast<wchar_t>(L'A' + i));
  for (int i = 1; i <= 24; ++i) names[111 + i] = L"F" + std::to_wstring(i);
  for (int code = -3; code <= 300; ++code) {
    EXPECT_EQ(MyKeyboard::KeyName(code), names.contains(code) ? names[code] : L"") << code;
  }
}

TEST(KeyHeldTest, MasksTheState) {
  FakeKeyboard keyboard;
  keyboard.Hold(17);
  EXPECT_TRUE(MyKeyboard::IsKeyHeld(17, 0x8000, keyboard));
  EXPECT_FALSE(MyKeyboard::IsKeyHeld(17, 1, keyboard));
  EXPECT_FALSE(MyKeyboard::IsKeyHeld(16, 0x8000, keyboard));
}

TEST(KeyInputsTest, MarksEveryKeyAsExtended) {
  const MyKeyboard::KeyStroke strokes[] = {{'A', false}, {VK_HOME, true}};
  const std::vector<INPUT> inputs = MyKeyboard::KeyInputs(strokes);
  ASSERT_EQ(inputs.size(), 2U);
  EXPECT_EQ(inputs[0].type, static_cast<DWORD>(INPUT_KEYBOARD));
  EXPECT_EQ(inputs[0].ki.wVk, 'A');
  EXPECT_EQ(inputs[0].ki.wScan, MapVirtualKeyA('A', 0));
  EXPECT_EQ(inputs[0].ki.dwFlags, 1U);
  EXPECT_EQ(inputs[0].ki.time, 0U);
  EXPECT_EQ(inputs[0].ki.dwExtraInfo, 0U);
  EXPECT_EQ(inputs[1].ki.wVk, VK_HOME);
  EXPECT_EQ(inputs[1].ki.dwFlags, 3U);
  EXPECT_EQ(sizeof(INPUT), 28U);
}

TEST(KeyInputsTest, AreSentInOneCallWithTheirCountAndSize) {
  const MyKeyboard::KeyStroke strokes[] = {{'A', false}, {'A', true}, {VK_HOME, true}};
  int calls = 0;
  const UINT taken = MyKeyboard::sKeyEventSet(strokes, [&](UINT count, INPUT* records, int size) {
    ++calls;
    EXPECT_EQ(count, 3U);
    EXPECT_EQ(size, 28);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(records[i].ki.wVk, strokes[i].virtualKey) << i;
    return UINT{2};
  });
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(taken, 2U);
}

TEST(SelectAllTest, GoesHomeAndExtendsToTheEnd) {
  std::vector<std::pair<int, bool>> strokes;
  for (const MyKeyboard::KeyStroke& stroke : MyKeyboard::SelectAllStrokes()) {
    strokes.emplace_back(stroke.virtualKey, stroke.up);
  }
  const std::vector<std::pair<int, bool>> expected{
      {VK_CONTROL, false}, {VK_HOME, false}, {VK_HOME, true},    {VK_SHIFT, false},
      {VK_END, false},     {VK_END, true},   {VK_CONTROL, true}, {VK_SHIFT, true}};
  EXPECT_EQ(strokes, expected);
}

}  // namespace
