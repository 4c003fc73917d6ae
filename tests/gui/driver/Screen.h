// Pictures and pixels of the screen.
#pragma once

#include <windows.h>

#include <cstddef>
#include <filesystem>
#include <vector>

namespace gui {

// A copy of one part of the screen, taken once.
class Picture {
 public:
  // What the screen shows inside that rectangle (screen pixels).
  static Picture Of(const RECT& rectangle);
  static Picture OfScreen();

  int Width() const { return width_; }
  int Height() const { return height_; }
  COLORREF At(int x, int y) const;
  std::size_t Count(COLORREF color) const;

  bool operator==(const Picture&) const = default;

  // Throws std::runtime_error when the file cannot be written.
  void SavePng(const std::filesystem::path& file) const;

 private:
  Picture(int width, int height);

  int width_;
  int height_;
  std::vector<DWORD> pixels_;  // 0x00RRGGBB, top row first
};

// What that rectangle shows once it no longer changes. A window reports its new text or size before
// it has drawn it, and draws its controls one after the other. Throws std::runtime_error when the
// picture keeps changing.
Picture PictureWhenPainted(const RECT& rectangle);

// Saves the whole screen as screenshots/<name>.png and returns that file: as it is now, or once it
// no longer changes.
std::filesystem::path SaveScreenshot(const std::string& name);
std::filesystem::path SaveScreenshotWhenPainted(const std::string& name);

}  // namespace gui
