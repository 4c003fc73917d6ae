// Records the message boxes of a test instead of showing them: "title|text".
#pragma once

#include <string>
#include <vector>

#include "platform/ErrorReport.h"

class MessageBoxes {
 public:
  MessageBoxes()
      : before_(
            platform::SetMessageBox([this](const std::wstring& text, const std::wstring& title) {
              shown.push_back(title + L"|" + text);
            })) {}
  MessageBoxes(const MessageBoxes&) = delete;
  MessageBoxes& operator=(const MessageBoxes&) = delete;
  ~MessageBoxes() { platform::SetMessageBox(before_); }

  std::vector<std::wstring> shown;

 private:
  platform::MessageBoxFunction before_;
};
