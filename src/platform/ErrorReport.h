// Message boxes: shown through one replaceable function, and never a second while one is open.
#pragma once

#include <exception>
#include <functional>
#include <string>
#include <string_view>

namespace platform {

using MessageBoxFunction = std::function<void(const std::wstring& text, const std::wstring& title)>;

// Replaces the function that shows a message box with an OK button; returns the one before, so
// that a test can put it back.
MessageBoxFunction SetMessageBox(MessageBoxFunction function);

// Shows text under title and waits for OK. Returns false, showing nothing, while another box of
// this program is open.
bool ShowMessage(const std::wstring& text, const std::wstring& title);

// An error with one of the system's error numbers.
class NumberedError : public std::exception {
 public:
  NumberedError(long number, std::wstring description)
      : number_(number), description_(std::move(description)) {}
  long Number() const noexcept { return number_; }
  const std::wstring& Description() const noexcept { return description_; }

 private:
  long number_;
  std::wstring description_;
};

// Windows' error for an argument that cannot be used, ERROR_INVALID_PARAMETER.
NumberedError InvalidArgument();

// Number, a blank, description.
std::wstring ErrorText(const NumberedError& error);

// The same for the exception that is being handled, whatever it is; for catch blocks.
std::wstring CurrentErrorText();

// The program's common error report: the error's text, titled with the name of the procedure that
// failed.
void ReportError(std::wstring_view procedure, const NumberedError& error);

// The same for the exception that is being handled.
void ReportCurrentError(std::wstring_view procedure);

// The same with a second line that names line 0. Odd, and stays: docs/ODDITIES.md.
void ReportCurrentErrorAtLine(std::wstring_view procedure);

// What the system says about one of its error numbers, without the line end.
std::wstring SystemDescription(long number);

}  // namespace platform
