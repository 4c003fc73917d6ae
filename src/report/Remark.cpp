#include "report/Remark.h"

#include "platform/TextSink.h"

namespace report {

bool HoldsText(std::wstring_view list) {
  return list != platform::kNoObjectMark && list.find_first_not_of(L"\t\r\n") != list.npos;
}

std::wstring RemarkText(const Missing& missing) {
  if (missing.hung) return L"応答していないため読み取っていません";
  if (missing.noText && missing.outOfReach) return L"管理者として実行中のため読み取れません";
  if (missing.noText) return L"ここに文字列はありません";
  if (missing.whole != 0) {
    return L"全" + std::to_wstring(missing.whole) + L"文字中" + std::to_wstring(missing.shown) +
           L"文字：[設定]→[省略せずに読む]";
  }
  if (missing.listOmitted) return L"一覧は最大数まで：[設定]→[MSAA] …Child最大取得個数";
  return {};
}

}  // namespace report
