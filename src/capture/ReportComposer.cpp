#include "capture/ReportComposer.h"

#include <functional>
#include <optional>
#include <utility>

#include "capture/CaptureWords.h"
#include "capture/OutputDelivery.h"
#include "capture/PointerSampling.h"
#include "capture/StopKey.h"
#include "extract/StringUtilities.h"
#include "platform/HandleText.h"
#include "report/ElementTable.h"
#include "report/Remark.h"

namespace capture {
namespace {

// Stands for CR LF while lone line feeds are replaced.
constexpr std::wstring_view kLineMark = L"\x01";

// One report from its first step to its last.
class Report {
 public:
  Report(const CaptureContext& context, report::ReportReaders& readers)
      : context_(context),
        readers_(readers),
        delivery_(context.view),
        // Readers pump messages, which may change the target; this report keeps its own.
        target_(context.state.TargetWindow),
        point_(PointToRead(context.state)),
        window_{target_, {}, {}, {}} {}

  void Compose() {
    ShowHandle();
    ReadWindow();
    ClearSlots();
    ReadTextAtPoint();
    if (category_ == report::Category::Ie && !missing_.hung) {
      // The element report takes the slot of the window's information.
      if (!ReadPage()) ShowWindowInformation();
    } else {
      ReadList();
      ShowWindowInformation();
    }
    ReadAccessible();
    ReadStatus();
    ShowRemark();
  }

 private:
  CaptureState& State() const { return context_.state; }
  const settings::Settings& Set() const { return context_.settings; }

  void SetText(ViewText part, const std::wstring& text) const {
    Attempt([&] { context_.view.SetText(part, text); });
  }
  void Redisplay() {
    Attempt([&] { delivery_.RedisplayPanes(State(), Set()); });
  }

  std::function<void(const std::wstring&)> MessageLine() const {
    return [this](const std::wstring& message) { SetText(ViewText::lblMsg, message); };
  }

  void ShowHandle() const {
    Attempt([&] { context_.view.SetHandleTag(platform::DecimalHandle(target_)); });
    SetText(ViewText::txthWnd, platform::ShownHandle(target_, Set().winHandle));
  }

  void ReadWindow() {
    Attempt([&] { missing_.hung = readers_.IsHung(target_); });
    Attempt([&] { window_ = readers_.Facts(target_); });
    SetText(ViewText::txtWin0, window_.className);
    category_ = report::CategoryOf(window_.className);
  }

  // Whether it is safe to make calls that wait for the target's thread. Beyond what the system
  // knows only pages are tested: they hang most often, and their reader has waited for them
  // already.
  bool Answers() const {
    bool answers = !missing_.hung;
    if (answers && category_ == report::Category::Ie)
      Attempt([&] { answers = readers_.Answers(target_); });
    return answers;
  }

  void ClearSlots() const {
    // Frees their memory too: a huge text would keep it until the program ends.
    for (std::wstring& text : State().TopTexts) std::wstring().swap(text);
    for (std::wstring& text : State().BottomTexts) std::wstring().swap(text);
    SetText(ViewText::txtCount, {});
    SetText(ViewText::lblListKind, {});
    Attempt([&] { context_.view.SetVisible(ViewText::txtCount, true); });
  }

  void ReadTextAtPoint() {
    extract::TextReading reading;
    Attempt([&] {
      if (missing_.hung) return;
      if (Set().fromHwnd != 1) {
        reading = readers_.TextFromPoint(point_, MessageLine());
      } else if (Answers()) {
        reading.text = readers_.NameOfWindow(target_);
      }
    });
    missing_.noText = reading.text.empty();
    NoteCut(reading);
    SetText(ViewText::txtWin3, reading.text);
    SetText(ViewText::lblTextKind, reading.method);
    State().TopTexts[2] = WithLineEnds(reading.text);
  }

  HWND WindowOfDocument() const {
    HWND parent = nullptr;
    Attempt([&] { parent = context_.system.Parent(target_); });
    return report::DocumentWindow(window_.className, target_, parent);
  }

  void Keep(const MyInternetexplore::PageTexts& texts) const {
    State().BottomTexts[3] = texts.displayed;
    State().BottomTexts[2] = texts.markup;
    Attempt([&] { context_.system.Pump(); });
  }

  // Returns whether there is a page. The flag in BottomTexts[0] is set also when the window of a
  // browser gives no document.
  bool ReadPage() {
    State().BottomTexts[0] = L"1";
    Attempt([&] { context_.view.SetVisible(ViewText::txtCount, false); });
    const HWND window = WindowOfDocument();
    if (window == nullptr) return false;
    const platform::ReadSession session = Session([](const std::wstring&) {});
    std::optional<MyInternetexplore::PageFacts> page;
    Attempt([&] {
      page = readers_.Page({window, point_.at, session, MessageLine(),
                            [this](const MyInternetexplore::PageTexts& texts) { Keep(texts); }});
    });
    if (!page) return false;

    missing_.noText = false;
    State().BottomTexts[1] = report::ElementReport(*page, Set().htmlTagTextLength);
    SetText(ViewText::txtWin1, page->chain.empty()
                                   ? std::wstring()
                                   : page->framePath + L"　" + page->chain.back().tag);
    SetText(ViewText::lblTextKind, L"HTML");
    // The top pane is not redisplayed until its text is read.
    Attempt([&] { delivery_.RefreshBottomPane(State(), Set()); });
    return true;
  }

  // Between two items: a reading may take minutes, and the pointer, the buttons and the stop key
  // must work meanwhile.
  void LetGoOn() const {
    Attempt([&] { context_.system.Pump(); });
    Attempt([&] { PollStopKeyBetweenItems(context_); });
  }

  platform::ReadSession Session(std::function<void(const std::wstring&)> showProgress) const {
    return {State().TargetWindow, std::move(showProgress), [this] { LetGoOn(); },
            [this] { return State().CaptureRunning; }, target_};
  }

  void ReadList() {
    extract::TextReading reading;
    const platform::ReadSession session = Session([this](const std::wstring& progress) {
      count_ = progress;
      SetText(ViewText::txtCount, progress);
    });
    Attempt([&] {
      if (missing_.hung) return;
      reading = readers_.Control(category_, {target_, window_.className, point_, session});
    });
    if (report::HoldsText(reading.text)) missing_.noText = false;
    missing_.listOmitted = reading.restOmitted;
    NoteCut(reading);
    SetText(ViewText::lblListKind, reading.method);
    State().BottomTexts[1].clear();
    State().BottomTexts[2] = std::move(reading.text);
    Redisplay();
    Attempt([&] { context_.system.Pump(); });
  }

  void ShowWindowInformation() const {
    Attempt([&] {
      State().BottomTexts[1] =
          report::WindowInformationText(readers_.Information(window_), Set().winHandle);
    });
    SetText(ViewText::txtWin1, {});
  }

  void ReadAccessible() {
    report::AccessibleTexts texts;
    bool counted = false;
    const platform::ReadSession session = Session([&](const std::wstring& progress) {
      counted = true;
      SetText(ViewText::txtCount, progress);
    });
    Attempt([&] {
      if (!Answers()) return;
      texts = readers_.Accessible(Set().fromHwnd == 1 ? &window_ : nullptr, point_, session);
    });
    State().TopTexts[1] = std::move(texts.report);
    SetText(ViewText::txtWin2, texts.name);
    // Shows the number of the list's items again.
    if (counted) SetText(ViewText::txtCount, count_);
    Redisplay();
  }

  void ReadStatus() const {
    if (Set().hint != 0) return;
    SetText(ViewText::txtStatus, {});
    std::wstring text;
    Attempt([&] {
      if (Answers()) text = readers_.StatusText(window_);
    });
    SetText(ViewText::txtStatus, text);
  }

  void NoteCut(const extract::TextReading& reading) {
    if (reading.whole == 0) return;
    missing_.whole = reading.whole;
    missing_.shown = reading.text.size();
  }

  void ShowRemark() {
    if (missing_.noText && !missing_.hung) {
      Attempt([&] { missing_.outOfReach = readers_.IsOutOfReach(target_); });
    }
    // A reader may have put a message of its own there.
    Attempt([&] {
      const std::wstring remark = report::RemarkText(missing_);
      if (!remark.empty() && context_.view.Text(ViewText::lblMsg) == kCapturing) {
        context_.view.SetText(ViewText::lblMsg, remark);
      }
    });
  }

  const CaptureContext& context_;
  report::ReportReaders& readers_;
  PaneDelivery delivery_;
  const HWND target_;
  const platform::ReadPoint point_;
  report::WindowFacts window_;
  report::Category category_ = report::Category::Other;
  report::Missing missing_;
  std::wstring count_;  // what the list's reader showed last
};

}  // namespace

std::wstring WithLineEnds(std::wstring_view text) { return extract::WithCrLf(text, kLineMark); }

void ComposeReport(const CaptureContext& context, report::ReportReaders& readers) {
  Report(context, readers).Compose();
}

}  // namespace capture
