// Reports on pages of another process, made with the real readers; their texts are stored instead
// of shown.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "BrowserProcess.h"
#include "platform/ErrorReport.h"
#include "report/ReportReaders.h"
#include "unit/FakeCapture.h"

namespace html {

// Everything above the rows of the element table; the URL comes after the first piece.
#define URL_LABEL L"URL     "
#define TABLE_HEAD                                                        \
  L"\r\n\r\nTag     Type        Id          value       表示文字\r\n" \
  L"------------------------------------------\r\n"

// Where reports' tests place the fixture: the page's origin on the screen.
inline constexpr POINT kOrigin = {40, 40};
inline constexpr char kPlace[] = "place=40,40,400,300 ";

class PageReport : public testing::Test {
 protected:
  PageReport();
  ~PageReport() override;
  void SetUp() override;
  void TearDown() override;

  // Moves the pointer to that point of the page, and reads what is there or, with a shift, that far
  // from there. The page's objects are all released afterwards.
  void ReportAt(const BrowserProcess& browser, POINT point, POINT shift = {0, 0});

  const std::wstring& Shown(capture::ViewText part) { return capture_.view.texts[part]; }
  const std::wstring& TextAtPoint() const { return capture_.state.TopTexts[2]; }
  const std::wstring& Table() const { return capture_.state.BottomTexts[1]; }
  const std::wstring& Markup() const { return capture_.state.BottomTexts[2]; }
  const std::wstring& Displayed() const { return capture_.state.BottomTexts[3]; }
  std::size_t Rows() const;

  FakeCapture capture_;
  settings::Settings& settings_ = capture_.settings;
  std::vector<std::wstring> boxes_;  // "title|text"
  double milliseconds_ = 0;          // that the last report took

 private:
  platform::MessageBoxFunction before_;
  std::unique_ptr<report::ReportReaders> readers_;
};

// Waits until no object of the page is held any more.
testing::AssertionResult IsReleased(const BrowserProcess& browser);

}  // namespace html
