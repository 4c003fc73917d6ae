#include "capture/PaneCopy.h"

namespace capture {
namespace {

constexpr const wchar_t* kNotCopied = L"クリップボードに転送できませんでした";

}  // namespace

void CopyTopPane(const CaptureContext& context) {
  Attempt([&] {
    CopyText(context, context.view.Text(ViewText::TopPane), L"上段 クリップボード転送完了");
  });
}

void CopyBottomPane(const CaptureContext& context) {
  Attempt([&] {
    CopyText(context, context.view.Text(ViewText::BottomPane), L"下段 クリップボード転送完了");
  });
}

void CopyText(const CaptureContext& context, const std::wstring& text, const wchar_t* done) {
  bool copied = false;
  Attempt([&] { copied = context.system.PutOnClipboard(text); });
  Attempt([&] { context.view.SetText(ViewText::lblMsg, copied ? done : kNotCopied); });
}

}  // namespace capture
