#include "accessibility/RoleStateWords.h"

#include <gtest/gtest.h>

#include <string>

namespace MyAccessible {
namespace {

// By role number, from 1.
constexpr const wchar_t* kNames[] = {
    L"タイトルバー",
    L"メニューバー",
    L"スクロールバー",
    L"グリップ",
    L"サウンド",
    L"カーソル",
    L"キャレット",
    L"アラート",
    L"ウィンドウ",
    L"クライアント",
    L"メニュー",
    L"メニュー項目",
    L"ツールヒント",
    L"アプリケーション",
    L"ドキュメント",
    L"ペイン",
    L"チャート",
    L"ダイアログ",
    L"境界線",
    L"グループ化",
    L"区分線",
    L"ツールバー",
    L"ステータスバー",
    L"テーブル",
    L"列見出し",
    L"行見出し",
    L"列",
    L"行",
    L"セル",
    L"ハイパーリンク",
    L"ヘルプボタン",
    L"キャラクタ",
    L"リスト",
    L"リスト項目",
    L"ツリー",
    L"ツリー項目",
    L"タブ項目",
    L"プロパティページ",
    L"インジケーター",
    L"グラフィック",
    L"テキスト",
    L"テキスト",
    L"ボタン",
    L"チェックボタン",
    L"オプションボタン",
    L"コンボボックス",
    L"ドロップリスト",
    L"進行状況バー",
    L"ダイヤル",
    L"ホットキーフィールド",
    L"スライダー",
    L"スピンボタン",
    L"ダイアグラム",
    L"アニメーション",
    L"EQUATION",
    L"ボタンドロップダウン",
    L"ボタンメニュー",
    L"ボタンドロップダウングリッド",
    L"空白域",
    L"タブ",
    L"時計",
    L"分割ボタン",
    L"IPアドレス",
};

struct State {
  std::uint32_t bit;
  const wchar_t* text;
};

// In the order in which they are joined.
constexpr State kStates[] = {
    {0x1, L"利用不可。"},
    {0x10, L"チェックされています。"},
    {0x8, L"押されています。"},
    {0x2, L"選択されています。"},
    {0x40, L"読み取り専用。"},
    {0x200, L"展開されています。"},
    {0x1000, L"フロート状態です。"},
    {0x4, L"フォーカスされています。"},
    {0x100000, L"フォーカス可。"},
    {0x20000, L"サイズ変更可。"},
    {0x200000, L"選択可。"},
    {0x1000000, L"複数選択可。"},
    {0x2000000, L"拡張選択。"},
    {0x40000, L"移動可。"},
    {0x400000, L"リンクされています。"},
};

TEST(RoleWordTest, EveryStandardRoleHasItsName) {
  int role = 0;
  for (const wchar_t* const name : kNames) EXPECT_EQ(RoleWord(std::to_wstring(++role)), name);
  EXPECT_EQ(role, 63);
}

TEST(RoleWordTest, NamesThatSurprise) {
  EXPECT_EQ(RoleWord(L"31"), L"ヘルプボタン");  // the help balloon
  EXPECT_EQ(RoleWord(L"41"), L"テキスト");
  EXPECT_EQ(RoleWord(L"42"), L"テキスト");
  EXPECT_EQ(RoleWord(L"55"), L"EQUATION");
  EXPECT_EQ(RoleWord(L"37"), L"タブ項目");
  EXPECT_EQ(RoleWord(L"60"), L"タブ");
}

TEST(RoleWordTest, OtherRolesHaveNone) {
  for (const wchar_t* const role :
       {L"0", L"64", L"-1", L"", L"button", L"ボタン", L"043", L" 43", L"43 ", L"4294967339"}) {
    EXPECT_EQ(RoleWord(role), L"") << role;
  }
}

TEST(StateWordsTest, EveryListedBitHasItsSentence) {
  for (const State& state : kStates) EXPECT_EQ(StateWords(state.bit), state.text);
}

TEST(StateWordsTest, SentencesAreJoinedInTheirOwnOrder) {
  EXPECT_EQ(StateWords(0x100006), L"選択されています。フォーカスされています。フォーカス可。");
  std::uint32_t all = 0;
  std::wstring texts;
  for (const State& state : kStates) {
    all |= state.bit;
    texts += state.text;
  }
  EXPECT_EQ(StateWords(all), texts);
  EXPECT_EQ(StateWords(0xFFFFFFFF), texts);
}

TEST(StateWordsTest, OtherBitsHaveNone) {
  std::uint32_t listed = 0;
  for (const State& state : kStates) listed |= state.bit;
  for (std::uint32_t bit = 1; bit != 0; bit <<= 1) {
    EXPECT_EQ(StateWords(bit).empty(), (listed & bit) == 0) << bit;
  }
  EXPECT_EQ(StateWords(0), L"");
  EXPECT_EQ(StateWords(0x8000), L"");  // invisible
}

}  // namespace
}  // namespace MyAccessible
