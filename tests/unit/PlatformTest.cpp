#include <gtest/gtest.h>

#include <windows.h>

#include <oleacc.h>
#include <wrl/client.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "NoMemory.h"
#include "bed/Needs.h"
#include "bed/Place.h"
#include "platform/API_Shell.h"
#include "platform/Clipboard.h"
#include "platform/ComOwners.h"
#include "platform/ErrorReport.h"
#include "platform/TextCodec.h"
#include "platform/UniqueHandle.h"

namespace platform {
namespace {

// Texts that every code page contains, with lengths around the size of a piece.
TEST(CodePageTest, PlainTextsAreConvertedToTheCodePageAndBack) {
  for (const std::size_t length : {0U, 1U, 1000U, (1U << 20) - 1, 1U << 20, (1U << 20) + 1}) {
    std::wstring text;
    for (std::size_t i = 0; i < length; ++i) text += static_cast<wchar_t>(L' ' + i % 95);
    const std::string bytes = ToAnsi(text);
    EXPECT_EQ(bytes.size(), length);
    EXPECT_EQ(FromAnsi(bytes), text);
  }
}

TEST(CodePageTest, WhatThePageCannotHoldBecomesAReplacement) {
  const std::string bytes = ToAnsi(L"a\u0E01b");  // a Thai letter
  EXPECT_EQ(bytes, "a?b");
}

TEST(CodePageTest, EmbeddedZeroCharactersStay) {
  const std::wstring text(L"a\0b", 3);
  EXPECT_EQ(ToAnsi(text), std::string("a\0b", 3));
  EXPECT_EQ(FromAnsi(std::string("a\0b", 3)), text);
}

// Letters with bytes that differ between the pages.
struct PageLetters {
  UINT codePage;
  const wchar_t* text;
  const char* bytes;
};
constexpr PageLetters kLetters[] = {
    {932, L"あア漢ｱ", "\x82\xA0\x83\x41\x8A\xBF\xB1"},
    {1252, L"é€ÿ", "\xE9\x80\xFF"},
};

TEST(CodePageTest, LettersHaveTheBytesOfTheSystemsPage) {
  const auto* const letters = std::ranges::find(kLetters, GetACP(), &PageLetters::codePage);
  ASSERT_NE(letters, std::end(kLetters)) << "no letters for code page " << GetACP();
  EXPECT_EQ(ToAnsi(letters->text), letters->bytes);
  EXPECT_EQ(FromAnsi(letters->bytes), letters->text);
}

TEST(TextCodecTest, LongTextsAreNotCutInsideACharacter) {
  NEEDS(bed::CodePage932());
  for (const std::size_t shift : {0U, 1U}) {
    std::wstring text(shift, L'x');
    text.append((1U << 20) + 3, L'表');
    const std::string bytes = ToAnsi(text);
    EXPECT_EQ(bytes.size(), shift + 2 * ((1U << 20) + 3));
    EXPECT_EQ(FromAnsi(bytes), text);
  }
}

class ErrorReportTest : public testing::Test {
 protected:
  ErrorReportTest()
      : before_(SetMessageBox([this](const std::wstring& text, const std::wstring& title) {
          boxes_.emplace_back(title, text);
          if (boxes_.size() == 1) ReportError(L"Second", {7, L"while the first is open"});
        })) {}
  ~ErrorReportTest() override { SetMessageBox(before_); }

  std::vector<std::pair<std::wstring, std::wstring>> boxes_;
  MessageBoxFunction before_;
};

TEST_F(ErrorReportTest, ShowsNumberAndDescriptionUnderTheProcedure) {
  ReportError(L"GetTextCountInfo", {5, L"引数が不正です"});
  ASSERT_EQ(boxes_.size(), 1U);  // never a second while one is open
  EXPECT_EQ(boxes_[0].first, L"GetTextCountInfo");
  EXPECT_EQ(boxes_[0].second, L"5 引数が不正です");

  EXPECT_TRUE(ShowMessage(L"later", L"again"));
  EXPECT_EQ(boxes_.size(), 2U);
}

TEST_F(ErrorReportTest, ABoxThatFailsDoesNotBlockTheNext) {
  SetMessageBox([](const std::wstring&, const std::wstring&) { throw 1; });
  EXPECT_THROW(ShowMessage(L"a", L"b"), int);
  int shown = 0;
  SetMessageBox([&shown](const std::wstring&, const std::wstring&) { ++shown; });
  EXPECT_TRUE(ShowMessage(L"a", L"b"));
  EXPECT_EQ(shown, 1);
}

struct CountingCloser {
  using Handle = int;
  static void Close(int) noexcept { ++closed; }
  static inline int closed = 0;
};

TEST(UniqueHandleTest, ClosesOnceAndNeverNothing) {
  CountingCloser::closed = 0;
  {
    UniqueHandle<CountingCloser> none;
    UniqueHandle<CountingCloser> first(1);
    UniqueHandle<CountingCloser> second(std::move(first));
    EXPECT_FALSE(first);
    EXPECT_EQ(second.Get(), 1);
    second = UniqueHandle<CountingCloser>(2);
    EXPECT_EQ(CountingCloser::closed, 1);
  }
  EXPECT_EQ(CountingCloser::closed, 2);
}

// Counts its references only.
class Counted : public IUnknown {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++count; }
  ULONG STDMETHODCALLTYPE Release() override { return --count; }
  ULONG count = 1;
};

TEST(ComPtrTest, ReceivingAnObjectCountsItOnce) {
  Counted object;
  {
    Microsoft::WRL::ComPtr<IUnknown> owner;
    *owner.GetAddressOf() = &object;  // as a call returns its result
    EXPECT_EQ(object.count, 1U);
    const Microsoft::WRL::ComPtr<IUnknown> second = owner;
    EXPECT_EQ(object.count, 2U);
  }
  EXPECT_EQ(object.count, 0U);
}

TEST(ComOwnersTest, HoldTextsAndNumbers) {
  UniqueBstr text;
  EXPECT_EQ(text.Text(), L"");
  *text.Receive() = SysAllocStringLen(L"a\0b", 3);
  EXPECT_EQ(text.Text(), std::wstring(L"a\0b", 3));
  EXPECT_EQ(UniqueVariant(7).Get().lVal, 7);
  EXPECT_EQ(UniqueVariant().Get().vt, VT_EMPTY);
}

TEST(ShellTest, FindsSpecialFolders) {
  EXPECT_EQ(API_Shell::FolderPath(API_Shell::kWindowsFolder), L"C:\\windows");
  const std::wstring desktop = API_Shell::FolderPath(API_Shell::kDesktopFolder);
  EXPECT_NE(desktop, L"");
  EXPECT_FALSE(desktop.ends_with(L'\\'));
  EXPECT_EQ(API_Shell::FolderPath(0x3F), L"");
}

TEST(ShellTest, SoundFlagsPlayToTheEndOrRepeat) {
  EXPECT_EQ(API_Shell::SoundFlags(false), 0U);
  EXPECT_EQ(API_Shell::SoundFlags(true), 8U);
}

TEST(ShellTest, OpensAddressesWithTheExplorer) {
  EXPECT_EQ(API_Shell::ExplorerCommand(L"file:///C:/a b/help/index.html#about"),
            L"explorer.exe file:///C:/a b/help/index.html#about");
}

// An invisible window that opens the clipboard.
UniqueWindow ClipboardOwner() {
  return UniqueWindow(
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr));
}

std::wstring ClipboardText(HWND owner) {
  std::wstring text;
  if (!OpenClipboard(owner)) return text;
  const HANDLE data = GetClipboardData(CF_UNICODETEXT);
  if (const void* const place = data == nullptr ? nullptr : GlobalLock(data)) {
    text = static_cast<const wchar_t*>(place);
    GlobalUnlock(data);
  }
  CloseClipboard();
  return text;
}

TEST(ClipboardTest, TakesTextsAsTheyAre) {
  const UniqueWindow owner = ClipboardOwner();
  for (const wchar_t* const text : {L"文字\r\n二行目", L"", L"\U0001F600"}) {
    EXPECT_TRUE(PutTextOnClipboard(owner.Get(), text));
    EXPECT_EQ(ClipboardText(owner.Get()), text);
  }
}

TEST(ClipboardTest, StaysAsItIsWhenThereIsNoMemory) {
  const UniqueWindow owner = ClipboardOwner();
  ASSERT_TRUE(PutTextOnClipboard(owner.Get(), L"before"));
  const std::wstring text(4'000'000, L'a');
  bool put = true;
  {
    const NoMemory none;
    put = PutTextOnClipboard(owner.Get(), text);
  }
  EXPECT_FALSE(put);
  EXPECT_EQ(ClipboardText(owner.Get()), L"before");
}

TEST(ClipboardTest, StaysAsItIsWhileAnotherWindowHasItOpen) {
  const UniqueWindow owner = ClipboardOwner();
  const UniqueWindow other = ClipboardOwner();
  ASSERT_TRUE(PutTextOnClipboard(owner.Get(), L"before"));
  ASSERT_TRUE(OpenClipboard(other.Get()));
  EXPECT_FALSE(PutTextOnClipboard(owner.Get(), L"after"));
  CloseClipboard();
  EXPECT_EQ(ClipboardText(owner.Get()), L"before");
}

TEST(ShellTest, KnowsItsOwnFolder) {
  const std::wstring folder = API_Shell::ProgramFolder();
  EXPECT_FALSE(folder.ends_with(L'\\'));
  EXPECT_NE(GetFileAttributesW((folder + L"\\unit_tests.exe").c_str()), INVALID_FILE_ATTRIBUTES);
}

class AbsolutePathTest : public testing::Test {
 protected:
  AbsolutePathTest()
      : before_(SetMessageBox([this](const std::wstring& text, const std::wstring& title) {
          text_ = text;
          title_ = title;
        })) {}
  ~AbsolutePathTest() override { SetMessageBox(before_); }

  static std::wstring At(const std::wstring& path) {
    return API_Shell::AbsolutePath(path, L"C:\\windows");
  }

  std::wstring text_;
  std::wstring title_;
  MessageBoxFunction before_;
};

TEST_F(AbsolutePathTest, JoinsWhatIsRelative) {
  EXPECT_EQ(At(L"a.txt"), L"C:\\windows\\a.txt");
  EXPECT_EQ(At(L" a.txt "), L"C:\\windows\\a.txt");
  EXPECT_EQ(At(L".\\a.txt"), L"C:\\windows\\a.txt");
  EXPECT_EQ(At(L"..\\a.txt"), L"C:\\a.txt");
  EXPECT_EQ(At(L"x\\..\\y\\a.txt"), L"C:\\windows\\y\\a.txt");
  EXPECT_EQ(At(L""), L"C:\\windows\\");
}

TEST_F(AbsolutePathTest, LeavesWhatIsAbsolute) {
  EXPECT_EQ(At(L"D:\\a.txt"), L"D:\\a.txt");
  EXPECT_EQ(At(L"D:\\"), L"D:\\");
  EXPECT_EQ(At(L"\\\\server\\a.txt"), L"\\\\server\\a.txt");
  // A drive without its backslash is a name like any other.
  EXPECT_EQ(At(L"D:a.txt"), L"C:\\windows\\D:a.txt");
}

TEST_F(AbsolutePathTest, TakesTheProgramFolderWithoutABase) {
  const std::wstring file = bed::Place("tests/unit/a.txt").wstring();
  const bool hasBlank = file.find(L' ') != file.npos;
  EXPECT_EQ(API_Shell::AbsolutePath(L"a.txt", L""), hasBlank ? L'"' + file + L'"' : file);
}

TEST_F(AbsolutePathTest, ABaseThatIsNoFolderGetsNoBackslash) {
  EXPECT_EQ(API_Shell::AbsolutePath(L"a.txt", L"Q:\\none"), L"Q:\\nonea.txt");
}

TEST_F(AbsolutePathTest, QuotesAreRemovedAndAddedForABlank) {
  EXPECT_EQ(At(L"\"a.txt\""), L"C:\\windows\\a.txt");
  EXPECT_EQ(At(L"\"a b.txt\""), L"\"C:\\windows\\a b.txt\"");
  EXPECT_EQ(At(L"a b.txt"), L"\"C:\\windows\\a b.txt\"");
}

TEST_F(AbsolutePathTest, AQuoteThatIsNotClosedIsReported) {
  for (const wchar_t* const path : {L"\"a.txt", L"\"", L" \"a b"}) {
    title_.clear();
    EXPECT_EQ(At(path), path);
    EXPECT_EQ(title_, L"AbsolutePath");
    EXPECT_TRUE(text_.ends_with(L" 87"));
  }
}

}  // namespace
}  // namespace platform
