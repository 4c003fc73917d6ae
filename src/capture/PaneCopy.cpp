#include "capture/PaneCopy.h"

namespace capture {
namespace {

void Copy(const CaptureContext& context, ViewText pane, const wchar_t* message) {
  Attempt([&] { context.system.PutOnClipboard(context.view.Text(pane)); });
  Attempt([&] { context.view.SetText(ViewText::lblMsg, message); });
}

}  // namespace

void CopyTopPane(const CaptureContext& context) {
  Copy(context, ViewText::TopPane, L"上段 クリップボード転送完了");
}

void CopyBottomPane(const CaptureContext& context) {
  Copy(context, ViewText::BottomPane, L"下段 クリップボード転送完了");
}

}  // namespace capture
