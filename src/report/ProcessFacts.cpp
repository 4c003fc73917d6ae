#include "report/ProcessFacts.h"

#include "extract/MyMapView.h"
#include "platform/UniqueHandle.h"
#include "report/Elevation.h"

namespace report {
namespace {

constexpr DWORD kLongestPath = 32'768;

std::wstring FileOf(HANDLE process) {
  std::wstring file(kLongestPath, L'\0');
  DWORD length = kLongestPath;
  if (!QueryFullProcessImageNameW(process, 0, file.data(), &length)) return {};
  file.resize(length);
  return file;
}

}  // namespace

ProcessFacts ReadProcessFacts(HWND hwnd) {
  ProcessFacts facts;
  GetWindowThreadProcessId(hwnd, &facts.id);
  if (facts.id == 0) return facts;
  facts.is64 = MyMapView::IsProcess64(MyMapView::SystemMemoryCalls(), facts.id);
  const platform::UniqueKernelHandle process(
      OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, facts.id));
  if (!process) return facts;
  facts.file = FileOf(process.Get());
  facts.elevated = IsElevated(process.Get());
  return facts;
}

}  // namespace report
