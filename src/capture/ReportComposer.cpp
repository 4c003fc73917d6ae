#include "capture/ReportComposer.h"

#include <functional>
#include <memory>
#include <utility>

#include "capture/CaptureWords.h"
#include "capture/ElementTable.h"
#include "capture/OutputDelivery.h"
#include "capture/StopKey.h"
#include "extract/StringUtilities.h"

namespace capture {
namespace {

// Stands for CR LF while lone line feeds are replaced.
constexpr std::wstring_view kLineMark = L"\x01";

// One report from its first step to its last.
class Report {
 public:
  Report(const CaptureContext& context, ReportReaders& readers)
      : context_(context),
        readers_(readers),
        // Readers pump, and the pump lets the target move on; this report stays where it began.
        target_(context.state.TargetWindow),
        point_(context.state.CapturePoint) {}

  void Compose() {
    ShowHandle();
    ReadWindow();
    ClearSlots();
    ReadTextAtPoint();
    if (category_ == Category::Ie) {
      // The report on an element stands where the window's information would.
      if (!ReadPage()) ShowWindowInformation();
    } else {
      ReadList();
      ShowWindowInformation();
    }
    ReadAccessible();
    ReadStatus();
  }

 private:
  CaptureState& State() const { return context_.state; }
  const settings::Settings& Set() const { return context_.settings; }

  void SetText(ViewText part, const std::wstring& text) const {
    Attempt([&] { context_.view.SetText(part, text); });
  }
  void Redisplay() const {
    Attempt([&] { RedisplayPanes(State(), Set(), context_.view); });
  }

  void ShowHandle() const {
    Attempt([&] { context_.view.SetHandleTag(DecimalHandle(target_)); });
    SetText(ViewText::txthWnd, ShownHandle(target_, Set().winHandle));
  }

  void ReadWindow() {
    Attempt([&] { window_ = readers_.Facts(target_); });
    SetText(ViewText::txtWin0, window_.className);
    category_ = CategoryOf(window_.className);
  }

  // Whether the target can be asked what its thread must answer, without end if it hangs. Pages
  // hang more often than anything else, and whoever reads them has waited for them already.
  bool Answers() const {
    bool answers = true;
    if (category_ == Category::Ie) Attempt([&] { answers = readers_.Answers(target_); });
    return answers;
  }

  void ClearSlots() const {
    // With their memory: one huge text would keep it until the program ends.
    for (std::wstring& text : State().TopTexts) std::wstring().swap(text);
    for (std::wstring& text : State().BottomTexts) std::wstring().swap(text);
    SetText(ViewText::txtCount, {});
    Attempt([&] { context_.view.SetVisible(ViewText::txtCount, true); });
  }

  void ReadTextAtPoint() const {
    std::wstring text;
    std::wstring method;
    Attempt([&] {
      if (Set().fromHwnd != 1) {
        text = readers_.TextFromPoint(point_, method, [this](const std::wstring& message) {
          SetText(ViewText::lblMsg, message);
        });
      } else if (Answers()) {
        text = readers_.NameOfWindow(target_);
      }
    });
    SetText(ViewText::txtWin3, text);
    SetText(ViewText::lblTextKind, method);
    State().TopTexts[2] = WithLineEnds(text);
  }

  HWND WindowOfDocument() const {
    HWND parent = nullptr;
    Attempt([&] { parent = context_.system.Parent(target_); });
    return DocumentWindow(window_.className, target_, parent);
  }

  // Returns whether there is a page. The window of a browser counts as one also when it gives no
  // document.
  bool ReadPage() const {
    State().BottomTexts[0] = L"1";
    Attempt([&] { context_.view.SetVisible(ViewText::txtCount, false); });
    const HWND window = WindowOfDocument();
    if (window == nullptr) return false;
    std::unique_ptr<MyInternetexplore::PageReader> page;
    Attempt([&] { page = readers_.Page(window, point_); });
    if (!page) return false;

    MyInternetexplore::PageTexts texts;
    Attempt([&] { texts = page->Texts(); });
    State().BottomTexts[3] = std::move(texts.displayed);
    State().BottomTexts[2] = std::move(texts.markup);
    Attempt([&] { context_.system.Pump(); });

    MyInternetexplore::PageFacts facts;
    Attempt([&] { facts = page->Facts(Session([](const std::wstring&) {})); });
    State().BottomTexts[1] = ElementReport(facts, Set().htmlTagTextLength);
    SetText(ViewText::txtWin1, facts.chain.empty()
                                   ? std::wstring()
                                   : facts.framePath + L"　" + facts.chain.back().tag);
    SetText(ViewText::lblTextKind, L"HTML");
    Redisplay();
    return true;
  }

  // Between two items: a reading may take minutes, and the pointer, the buttons and the stop key
  // are served meanwhile.
  void LetGoOn() const {
    Attempt([&] { context_.system.Pump(); });
    Attempt([&] { PollStopKey(context_); });
  }

  platform::ReadSession Session(std::function<void(const std::wstring&)> showProgress) const {
    return {State().TargetWindow, std::move(showProgress), [this] { LetGoOn(); },
            [this] { return State().CaptureRunning; }, target_};
  }

  void ReadList() {
    std::wstring text;
    std::wstring method;
    platform::ReadSession session = Session([this](const std::wstring& progress) {
      count_ = progress;
      SetText(ViewText::txtCount, progress);
    });
    Attempt([&] {
      text = ReadByCategory(readers_, category_, {target_, point_, session, method});
    });
    State().BottomTexts[1].clear();
    State().BottomTexts[2] = std::move(text);
    Redisplay();
    Attempt([&] { context_.system.Pump(); });
  }

  void ShowWindowInformation() const {
    Attempt([&] {
      State().BottomTexts[1] =
          WindowInformationText(readers_.Information(window_), Set().winHandle);
    });
    SetText(ViewText::txtWin1, {});
  }

  void ReadAccessible() const {
    AccessibleTexts texts;
    bool counted = false;
    const platform::ReadSession session = Session([&](const std::wstring& progress) {
      counted = true;
      SetText(ViewText::txtCount, progress);
    });
    Attempt([&] {
      if (!Answers()) return;
      texts = readers_.Accessible(Set().fromHwnd == 1 ? target_ : nullptr, point_, session);
    });
    State().TopTexts[1] = std::move(texts.report);
    SetText(ViewText::txtWin2, texts.name);
    // The number of the list's items is what is left standing.
    if (counted) SetText(ViewText::txtCount, count_);
    Redisplay();
  }

  void ReadStatus() const {
    if (Set().hint != 0) return;
    SetText(ViewText::txtStatus, {});
    std::wstring text;
    Attempt([&] {
      if (Answers()) text = readers_.StatusText(target_, window_.className, window_.title);
    });
    SetText(ViewText::txtStatus, text);
  }

  const CaptureContext& context_;
  ReportReaders& readers_;
  const HWND target_;
  const POINT point_;
  WindowFacts window_;
  Category category_ = Category::Other;
  std::wstring count_;  // what the list's reader showed last
};

}  // namespace

std::wstring WithLineEnds(std::wstring_view text) { return extract::WithCrLf(text, kLineMark); }

void ComposeReport(const CaptureContext& context, ReportReaders& readers) {
  Report(context, readers).Compose();
}

}  // namespace capture
