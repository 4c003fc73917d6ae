// The settings dialog as data.
#include "ui/SettingControls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

#include "platform/NumberText.h"
#include "settings/ConfigKeys.h"
#include "ui/ControlIds.h"

namespace ui {
namespace {

using testing::ElementsAre;

using S = settings::Settings;

std::vector<std::wstring> Items(int id) {
  const auto items = FindSettingControl(id)->items;
  return {items.begin(), items.end()};
}

TEST(SettingControlsTest, EveryNumberStandsOnceAndAfterItsParent) {
  std::set<int> seen{0};
  for (const SettingControl& control : SettingControls()) {
    EXPECT_TRUE(seen.contains(control.row.parent)) << control.row.id;
    EXPECT_TRUE(seen.insert(control.row.id).second) << control.row.id;
    EXPECT_EQ(FindSettingControl(control.row.id), &control);
  }
  EXPECT_EQ(FindSettingControl(cmdGo), nullptr);
}

TEST(SettingControlsTest, EverySettingHasOneControlOrOneGroupOfOptions) {
  std::vector<std::int32_t S::*> settings;
  std::map<int, std::vector<std::int32_t>> options;  // by group
  for (const SettingControl& control : SettingControls()) {
    EXPECT_EQ(control.setting == nullptr, control.holds == Holds::Nothing) << control.row.id;
    if (control.setting == nullptr) continue;
    if (control.holds == Holds::Option) {
      options[control.row.parent].push_back(control.number);
      if (control.number > 0) continue;
    }
    EXPECT_EQ(std::ranges::count(settings, control.setting), 0) << control.row.id;
    settings.push_back(control.setting);
  }
  EXPECT_EQ(settings.size(), 21U);
  EXPECT_THAT(options[frClipboard], ElementsAre(0, 1, 2, 3));
  EXPECT_THAT(options[frHint], ElementsAre(0, 1));
  EXPECT_THAT(options[frListview], ElementsAre(0, 1, 2));
  EXPECT_THAT(options[frAct], ElementsAre(0, 1, 2, 3));
}

TEST(SettingControlsTest, EverySettingIsKeptInTheFile) {
  for (const SettingControl& control : SettingControls()) {
    if (control.setting == nullptr) continue;
    const settings::ConfigField field = control.setting;
    EXPECT_EQ(std::ranges::count(settings::ConfigKeys(), field, &settings::ConfigKey::field), 1)
        << control.row.id;
  }
}

struct Words {
  int id;
  const wchar_t* caption;
  const wchar_t* tip;
};

constexpr Words kWords[] = {
    {FrList0, L"各種コントロール情報取得設定", L""},
    {FrList1, L"HTMLドキュメント", L""},
    {FrList2, L"MSAA(MS Active Accessibility) 設定", L""},
    {FrList3, L"その他", L""},
    {lblButton0, L"コントロール", L""},
    {lblButton1, L"HTML", L""},
    {lblButton2, L"MSAA", L""},
    {lblButton3, L"その他", L""},
    {chkContinue, L"コピー＆継続 - 上段テキストをクリップボード転送＆継続実行",
     L"ホットキー押下時に、上段文字列をクリップボードに転送後、連続実行"},
    {lblAutoStopTime, L"自動停止", L""},
    {cmbAutoStop, L"", L"マウスの動きが止まってから指定秒後に自動停止（空白は自動停止無し）"},
    {lblAutoStopNote, L"マウス移動が無くなったら、指定秒後に自動停止", L""},
    {chkAutoClose, L"自動終了", L"自動で処理を終了します"},
    {chkChime, L"サウンド", L"停止時にサウンド"},
    {chkShift, L"目標位置をシフト", L""},
    {lblShift0, L"X軸（右）方向", L""},
    {lblShift1, L"Y軸（下）方向", L""},
    {chkDispTop, L"最前面表示", L"ウィンドウを表示最前面"},
    {chkToFile, L"制限文字数超過時にファイル出力",
     L"取得文字数が65000文字を超える時はデスクトップにテキストファイルとして出力する"},
    {cmdHotKey, L"ホットキーの設定/変更", L"ホットキーの変更"},
    {lblHotKey, L"", L""},
    {chkAutoStart, L"起動時に開始", L"起動後に即、情報取得を開始します。"},
    {chkDispText, L"テキスト表示", L"既定はHTMLソース表示"},
    {lblStLevel, L"表示開始階層", L""},
    {frClipboard, L"クリップボード転送", L""},
    {Opt_Clipboard0, L"無し", L"コピー操作以外は転送無し"},
    {Opt_Clipboard1, L"クリック時",
     L"クリック時に対象コントロールの全文字列をクリップボードに転送"},
    {Opt_Clipboard2, L"停止時 上段テキスト",
     L"[停止]時に自動的に上段テキストボックスの全文字列をクリップボードに転送"},
    {Opt_Clipboard3, L"停止時 下段テキスト",
     L"[停止]時に自動的に下段テキストボックスの全文字列をクリップボードに転送"},
    {frHint, L"ヒントテキスト", L"ポイントした時に表示される文字列"},
    {OptHint0, L"StatusBar", L"ステータスバーの文字列"},
    {OptHint1, L"ToolTips", L"ツールチップ（ToolTips）の表示文字列"},
    {frTreeView, L"ツリービュー", L""},
    {chkTreeViewIndent, L"インデント表示", L"チェック時：ツリービューを字下げ表示"},
    {frListview, L"リストビュー", L""},
    {OptListview0, L"タブ区切り", L"エクセルに直接貼り付けることが出来ます"},
    {OptListview1, L"カンマ区切り", L"CSVファイルとして利用可"},
    {OptListview2, L"１列目のみ", L"複数列の場合、2列目以降を無視"},
    {chkReadWhole, L"省略せずに読む",
     L"長い文字列や大きなリストビューを、途中で切らずに最後まで読み取ります（時間がかかることがあり"
     L"ま"
     L"す）"},
    {lblAccNameMax, L"accNameの取得最大長", L""},
    {lblChildMaxCount, L"AccessiblityでのChild最大取得個数", L""},
    {cmbChildMaxCount, L"", L"MSAA(Microsoft Active Accessibility)でのParent/Child最大取得個数"},
    {ChkAccFromhWnd, L"ウィンドウハンドルから取得",
     L"情報をポイント位置のウィンドウハンドルから取得"},
    {frAct, L"Action Test\u3000\u3000Ctrl キー", L""},
    {OptAct0, L"None", L""},
    {OptAct1, L"AccDoDefaultAction", L""},
    {OptAct2, L"AccSelect 1", L""},
    {OptAct3, L"AccSelect 2", L""},
    {cmdClose, L"閉じる", L""},
};

TEST(SettingControlsTest, HasTheCaptionsAndTipsThatUsersKnow) {
  for (const Words& words : kWords) {
    const SettingControl* const control = FindSettingControl(words.id);
    ASSERT_NE(control, nullptr) << words.id;
    EXPECT_EQ(std::wstring(control->row.caption), words.caption) << words.id;
    const std::wstring tip = control->toolTip == nullptr ? L"" : control->toolTip;
    EXPECT_EQ(tip, words.tip) << words.id;
  }
}

TEST(SettingControlsTest, ListsOfferTheirItemsInOrder) {
  EXPECT_THAT(Items(cmbAutoStop), ElementsAre(L"", L" 1", L" 2", L" 3", L" 4", L" 5", L" 7", L"10",
                                              L"15", L"20", L"30", L"40", L"50", L"60"));
  EXPECT_THAT(Items(cmbStLevel), ElementsAre(L"現在の階層", L"一つ上から", L"二つ上から",
                                             L"三つ上から", L"四つ上から"));
  EXPECT_THAT(Items(cmbAccNameMax),
              ElementsAre(L"  10", L"  20", L"  30", L"  50", L"  70", L" 100"));
  EXPECT_THAT(Items(cmbChildMaxCount),
              ElementsAre(L"   0", L"   5", L"  10", L"  50", L" 100", L" 500", L"1000", L"9999"));
}

TEST(SettingControlsTest, ItemsLookAsTheirValuesAreShown) {
  for (const SettingControl& control : SettingControls()) {
    if (control.holds != Holds::ListNumber) continue;
    for (const std::wstring item : control.items) {
      if (item.empty()) continue;
      EXPECT_EQ(platform::RightAligned(std::to_wstring(platform::LeadingNumber(item)),
                                       static_cast<std::size_t>(control.number)),
                item);
    }
  }
}

}  // namespace
}  // namespace ui
