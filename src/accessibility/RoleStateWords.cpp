#include "accessibility/RoleStateWords.h"

#include <windows.h>

#include <oleacc.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace MyAccessible {
namespace {

// By role number, from 1. What is shown follows the third "_". Some of the words are odd, and
// stay: docs/ODDITIES.md.
constexpr std::wstring_view kRoles[] = {
    L"ROLE_SYSTEM_TITLEBAR_タイトルバー",
    L"ROLE_SYSTEM_MENUBAR_メニューバー",
    L"ROLE_SYSTEM_SCROLLBAR_スクロールバー",
    L"ROLE_SYSTEM_GRIP_グリップ",
    L"ROLE_SYSTEM_SOUND_サウンド",
    L"ROLE_SYSTEM_CURSOR_カーソル",
    L"ROLE_SYSTEM_CARET_キャレット",
    L"ROLE_SYSTEM_ALERT_アラート",
    L"ROLE_SYSTEM_WINDOW_ウィンドウ",
    L"ROLE_SYSTEM_CLIENT_クライアント",
    L"ROLE_SYSTEM_MENUPOPUP_メニュー",
    L"ROLE_SYSTEM_MENUITEM_メニュー項目",
    L"ROLE_SYSTEM_TOOLTIP_ツールヒント",
    L"ROLE_SYSTEM_APPLICATION_アプリケーション",
    L"ROLE_SYSTEM_DOCUMENT_ドキュメント",
    L"ROLE_SYSTEM_PANE_ペイン",
    L"ROLE_SYSTEM_CHART_チャート",
    L"ROLE_SYSTEM_DIALOG_ダイアログ",
    L"ROLE_SYSTEM_BORDER_境界線",
    L"ROLE_SYSTEM_GROUPING_グループ化",
    L"ROLE_SYSTEM_SEPARATOR_区分線",
    L"ROLE_SYSTEM_TOOLBAR_ツールバー",
    L"ROLE_SYSTEM_STATUSBAR_ステータスバー",
    L"ROLE_SYSTEM_TABLE_テーブル",
    L"ROLE_SYSTEM_COLUMNHEADER_列見出し",
    L"ROLE_SYSTEM_ROWHEADER_行見出し",
    L"ROLE_SYSTEM_COLUMN_列",
    L"ROLE_SYSTEM_ROW_行",
    L"ROLE_SYSTEM_CELL_セル",
    L"ROLE_SYSTEM_LINK_ハイパーリンク",
    L"ROLE_SYSTEM_HELPBALLOON_ヘルプボタン",
    L"ROLE_SYSTEM_CHARACTER_キャラクタ",
    L"ROLE_SYSTEM_LIST_リスト",
    L"ROLE_SYSTEM_LISTITEM_リスト項目",
    L"ROLE_SYSTEM_OUTLINE_ツリー",
    L"ROLE_SYSTEM_OUTLINEITEM_ツリー項目",
    L"ROLE_SYSTEM_PAGETAB_タブ項目",
    L"ROLE_SYSTEM_PROPERTYPAGE_プロパティページ",
    L"ROLE_SYSTEM_INDICATOR_インジケーター",
    L"ROLE_SYSTEM_GRAPHIC_グラフィック",
    L"ROLE_SYSTEM_STATICTEXT_テキスト",
    L"ROLE_SYSTEM_TEXT_テキスト",
    L"ROLE_SYSTEM_PUSHBUTTON_ボタン",
    L"ROLE_SYSTEM_CHECKBUTTON_チェックボタン",
    L"ROLE_SYSTEM_RADIOBUTTON_オプションボタン",
    L"ROLE_SYSTEM_COMBOBOX_コンボボックス",
    L"ROLE_SYSTEM_DROPLIST_ドロップリスト",
    L"ROLE_SYSTEM_PROGRESSBAR_進行状況バー",
    L"ROLE_SYSTEM_DIAL_ダイヤル",
    L"ROLE_SYSTEM_HOTKEYFIELD_ホットキーフィールド",
    L"ROLE_SYSTEM_SLIDER_スライダー",
    L"ROLE_SYSTEM_SPINBUTTON_スピンボタン",
    L"ROLE_SYSTEM_DIAGRAM_ダイアグラム",
    L"ROLE_SYSTEM_ANIMATION_アニメーション",
    L"ROLE_SYSTEM_EQUATION_EQUATION",
    L"ROLE_SYSTEM_BUTTONDROPDOWN_ボタンドロップダウン",
    L"ROLE_SYSTEM_BUTTONMENU_ボタンメニュー",
    L"ROLE_SYSTEM_BUTTONDROPDOWNGRID_ボタンドロップダウングリッド",
    L"ROLE_SYSTEM_WHITESPACE_空白域",
    L"ROLE_SYSTEM_PAGETABLIST_タブ",
    L"ROLE_SYSTEM_CLOCK_時計",
    L"ROLE_SYSTEM_SPLITBUTTON_分割ボタン",
    L"ROLE_SYSTEM_IPADDRESS_IPアドレス",
};

constexpr std::wstring_view kRolePrefix = L"ROLE_SYSTEM_";
constexpr std::size_t kShownPiece = 3;

constexpr std::wstring_view Piece(std::wstring_view text, std::size_t index) {
  for (; index > 0; --index) {
    const std::size_t sign = text.find(L'_');
    if (sign == std::wstring_view::npos) return {};
    text.remove_prefix(sign + 1);
  }
  return text.substr(0, text.find(L'_'));
}

// The prefix, the constant's name, "_" and what is shown.
static_assert(std::ranges::all_of(kRoles, [](std::wstring_view role) {
  return role.starts_with(kRolePrefix) && std::ranges::count(role, L'_') == kShownPiece &&
         !Piece(role, kShownPiece - 1).empty() && !Piece(role, kShownPiece).empty();
}));

struct StateWord {
  std::uint32_t bit;
  std::wstring_view text;
};

// In the order in which the texts are joined, not that of the bits. Odd, and stays:
// docs/ODDITIES.md.
constexpr StateWord kStates[] = {
    {STATE_SYSTEM_UNAVAILABLE, L"利用不可。"},
    {STATE_SYSTEM_CHECKED, L"チェックされています。"},
    {STATE_SYSTEM_PRESSED, L"押されています。"},
    {STATE_SYSTEM_SELECTED, L"選択されています。"},
    {STATE_SYSTEM_READONLY, L"読み取り専用。"},
    {STATE_SYSTEM_EXPANDED, L"展開されています。"},
    {STATE_SYSTEM_FLOATING, L"フロート状態です。"},
    {STATE_SYSTEM_FOCUSED, L"フォーカスされています。"},
    {STATE_SYSTEM_FOCUSABLE, L"フォーカス可。"},
    {STATE_SYSTEM_SIZEABLE, L"サイズ変更可。"},
    {STATE_SYSTEM_SELECTABLE, L"選択可。"},
    {STATE_SYSTEM_MULTISELECTABLE, L"複数選択可。"},
    {STATE_SYSTEM_EXTSELECTABLE, L"拡張選択。"},
    {STATE_SYSTEM_MOVEABLE, L"移動可。"},
    {STATE_SYSTEM_LINKED, L"リンクされています。"},
};

}  // namespace

std::wstring RoleWord(std::wstring_view role) {
  for (std::size_t i = 0; i < std::size(kRoles); ++i) {
    if (role == std::to_wstring(i + 1)) return std::wstring(Piece(kRoles[i], kShownPiece));
  }
  return {};
}

std::wstring StateWords(std::uint32_t state) {
  std::wstring words;
  for (const StateWord& row : kStates) {
    if ((state & row.bit) != 0) words += row.text;
  }
  return words;
}

}  // namespace MyAccessible
