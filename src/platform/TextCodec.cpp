#include "platform/TextCodec.h"

#include <windows.h>

namespace platform {
namespace {

// The conversion calls count in int. Longer texts are converted in pieces of this many units.
constexpr std::size_t kPiece = 1U << 20;

bool IsHighSurrogate(wchar_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }

// How many units at the start of text can be converted separately.
std::size_t PieceOf(std::wstring_view text) {
  if (text.size() <= kPiece) return text.size();
  return IsHighSurrogate(text[kPiece - 1]) ? kPiece - 1 : kPiece;
}

std::size_t PieceOf(std::string_view bytes) {
  if (bytes.size() <= kPiece) return bytes.size();
  // A lead byte can also be a trail byte, so the cut is found by walking from the start.
  std::size_t at = 0;
  while (at < kPiece - 1) {
    at += IsDBCSLeadByte(static_cast<BYTE>(bytes[at])) ? 2U : 1U;
  }
  return at;
}

constexpr UINT kJapanese = 932;

UINT CountingCodePage() {
  CPINFO system{};
  return GetCPInfo(CP_ACP, &system) && system.MaxCharSize == 2 ? CP_ACP : kJapanese;
}

}  // namespace

std::size_t DoubleByteLength(std::wstring_view text) {
  const UINT codePage = CountingCodePage();
  std::size_t length = 0;
  while (!text.empty()) {
    const std::size_t piece = PieceOf(text);
    length += static_cast<std::size_t>(WideCharToMultiByte(
        codePage, 0, text.data(), static_cast<int>(piece), nullptr, 0, nullptr, nullptr));
    text.remove_prefix(piece);
  }
  return length;
}

std::string ToAnsi(std::wstring_view text) {
  std::string result;
  while (!text.empty()) {
    const std::size_t piece = PieceOf(text);
    const int length = static_cast<int>(piece);
    const int size =
        WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    const std::size_t done = result.size();
    result.resize(done + static_cast<std::size_t>(size));
    WideCharToMultiByte(CP_ACP, 0, text.data(), length, result.data() + done, size, nullptr,
                        nullptr);
    text.remove_prefix(piece);
  }
  return result;
}

std::wstring FromAnsi(std::string_view bytes) {
  std::wstring result;
  while (!bytes.empty()) {
    const std::size_t piece = PieceOf(bytes);
    const int length = static_cast<int>(piece);
    const int size = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
    const std::size_t done = result.size();
    result.resize(done + static_cast<std::size_t>(size));
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, result.data() + done, size);
    bytes.remove_prefix(piece);
  }
  return result;
}

}  // namespace platform
