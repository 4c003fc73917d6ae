#include "driver/Screen.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "driver/Owners.h"
#include "driver/Paths.h"
#include "driver/WaitFor.h"

namespace gui {
namespace {

BITMAPINFO Layout(int width, int height) {
  BITMAPINFO info = {};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;  // top row first
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return info;
}

using Bytes = std::vector<std::uint8_t>;

void AddBig32(Bytes& bytes, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) {
    bytes.push_back(static_cast<std::uint8_t>(value >> shift));
  }
}

std::uint32_t Crc32(const std::uint8_t* data, std::size_t count) {
  static const std::array<std::uint32_t, 256> table = [] {
    std::array<std::uint32_t, 256> made{};
    for (std::uint32_t n = 0; n < made.size(); ++n) {
      std::uint32_t rest = n;
      for (int bit = 0; bit < 8; ++bit) {
        rest = (rest & 1U) != 0 ? 0xEDB88320U ^ (rest >> 1U) : rest >> 1U;
      }
      made[n] = rest;
    }
    return made;
  }();
  std::uint32_t crc = 0xFFFFFFFFU;
  for (std::size_t i = 0; i < count; ++i) crc = table[(crc ^ data[i]) & 0xFFU] ^ (crc >> 8U);
  return crc ^ 0xFFFFFFFFU;
}

std::uint32_t Adler32(const Bytes& bytes) {
  constexpr std::uint32_t kModulus = 65521;
  std::uint32_t low = 1;
  std::uint32_t high = 0;
  for (const std::uint8_t byte : bytes) {
    low = (low + byte) % kModulus;
    high = (high + low) % kModulus;
  }
  return high << 16U | low;
}

void AddChunk(Bytes& file, const char* type, const Bytes& content) {
  AddBig32(file, static_cast<std::uint32_t>(content.size()));
  const std::size_t start = file.size();
  file.insert(file.end(), type, type + 4);
  file.insert(file.end(), content.begin(), content.end());
  AddBig32(file, Crc32(file.data() + start, file.size() - start));
}

// A zlib stream of stored blocks: no compression, and no library needed for it.
Bytes Stored(const Bytes& raw) {
  constexpr std::size_t kLongestBlock = 65535;
  Bytes stream = {0x78, 0x01};
  for (std::size_t at = 0; at < raw.size(); at += kLongestBlock) {
    const std::size_t length = std::min(kLongestBlock, raw.size() - at);
    const auto low = static_cast<std::uint8_t>(length & 0xFFU);
    const auto high = static_cast<std::uint8_t>(length >> 8U);
    stream.push_back(at + length == raw.size() ? 1 : 0);
    stream.insert(stream.end(),
                  {low, high, static_cast<std::uint8_t>(~low), static_cast<std::uint8_t>(~high)});
    const auto from = raw.begin() + static_cast<std::ptrdiff_t>(at);
    stream.insert(stream.end(), from, from + static_cast<std::ptrdiff_t>(length));
  }
  AddBig32(stream, Adler32(raw));
  return stream;
}

RECT WholeScreen() { return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

std::filesystem::path Saved(const Picture& picture, const std::string& name) {
  const std::filesystem::path file = ScreenshotFolder() / (name + ".png");
  picture.SavePng(file);
  return file;
}

}  // namespace

Picture::Picture(int width, int height)
    : width_(width),
      height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

Picture Picture::Of(const RECT& rectangle) {
  Picture picture(std::max(1L, rectangle.right - rectangle.left),
                  std::max(1L, rectangle.bottom - rectangle.top));
  const OwnedScreenDc screen(GetDC(nullptr));
  const OwnedMemoryDc memory(CreateCompatibleDC(screen.get()));
  const OwnedBitmap bitmap(CreateCompatibleBitmap(screen.get(), picture.width_, picture.height_));
  const HGDIOBJ before = SelectObject(memory.get(), bitmap.get());
  BitBlt(memory.get(), 0, 0, picture.width_, picture.height_, screen.get(), rectangle.left,
         rectangle.top, SRCCOPY);
  SelectObject(memory.get(), before);
  BITMAPINFO info = Layout(picture.width_, picture.height_);
  GetDIBits(memory.get(), bitmap.get(), 0, static_cast<UINT>(picture.height_),
            picture.pixels_.data(), &info, DIB_RGB_COLORS);
  for (DWORD& pixel : picture.pixels_) pixel &= 0xFFFFFFU;
  return picture;
}

Picture Picture::OfScreen() { return Of(WholeScreen()); }

COLORREF Picture::At(int x, int y) const {
  const DWORD pixel = pixels_.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                                 static_cast<std::size_t>(x));
  return (pixel & 0xFFU) << 16U | (pixel & 0xFF00U) | pixel >> 16U;
}

std::size_t Picture::Count(COLORREF color) const {
  const DWORD pixel = (color & 0xFFU) << 16U | (color & 0xFF00U) | color >> 16U;
  return static_cast<std::size_t>(std::count(pixels_.begin(), pixels_.end(), pixel));
}

void Picture::SavePng(const std::filesystem::path& file) const {
  Bytes raw;
  raw.reserve(pixels_.size() * 3 + static_cast<std::size_t>(height_));
  for (std::size_t i = 0; i < pixels_.size(); ++i) {
    if (i % static_cast<std::size_t>(width_) == 0) raw.push_back(0);  // row filter: none
    for (int shift = 16; shift >= 0; shift -= 8) {
      raw.push_back(static_cast<std::uint8_t>(pixels_[i] >> shift));
    }
  }
  Bytes header;
  AddBig32(header, static_cast<std::uint32_t>(width_));
  AddBig32(header, static_cast<std::uint32_t>(height_));
  header.insert(header.end(), {8, 2, 0, 0, 0});  // 8 bits a channel, true colour

  Bytes png = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  AddChunk(png, "IHDR", header);
  AddChunk(png, "IDAT", Stored(raw));
  AddChunk(png, "IEND", {});
  std::ofstream out(file, std::ios::binary);
  out.write(reinterpret_cast<const char*>(png.data()), static_cast<std::streamsize>(png.size()));
  if (!out) throw std::runtime_error("cannot write " + file.string());
}

Picture PictureWhenPainted(const RECT& rectangle) {
  constexpr int kSameInARow = 2;
  Picture last = Picture::Of(rectangle);
  int same = 0;
  Require(WaitFor("the picture stays as it is", [&](std::string&) {
    Last(Milliseconds(60));
    const Picture before = std::exchange(last, Picture::Of(rectangle));
    same = before == last ? same + 1 : 0;
    return same == kSameInARow;
  }));
  return last;
}

std::filesystem::path SaveScreenshot(const std::string& name) {
  return Saved(Picture::OfScreen(), name);
}

std::filesystem::path SaveScreenshotWhenPainted(const std::string& name) {
  return Saved(PictureWhenPainted(WholeScreen()), name);
}

}  // namespace gui
