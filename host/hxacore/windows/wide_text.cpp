#include "host/hxacore/windows/wide_text.h"

#include <algorithm>
#include <array>

#include <windows.h>

namespace NKVRHXA20 {

namespace {

std::wstring ToWideFrom(UINT codePage, DWORD flags, const std::string& text) {
  const int length = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');  // no code page makes more characters than it has bytes
  const int count = MultiByteToWideChar(codePage, flags, text.data(), length, wide.data(), length);
  wide.resize(static_cast<std::size_t>(count));
  return wide;
}

std::string ToUtf8(const wchar_t* wide, int length) {
  std::string text(static_cast<std::size_t>(length) * 3, '\0');
  const int count =
      WideCharToMultiByte(CP_UTF8, 0, wide, length, text.data(), static_cast<int>(text.size()), nullptr, nullptr);
  text.resize(static_cast<std::size_t>(count));
  return text;
}

}  // namespace

std::wstring ToWide(const std::string& text) {
  std::wstring wide = ToWideFrom(CP_UTF8, MB_ERR_INVALID_CHARS, text);
  return wide.empty() ? ToWideFrom(CP_ACP, 0, text) : wide;
}

std::string ErrorText(unsigned long code) {
  std::array<wchar_t, 1024> buffer;
  const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
                                      buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
  std::string text = ToUtf8(buffer.data(), static_cast<int>(length));
  text.erase(text.find_last_not_of("\r\n .") + 1);  // "Access is denied.\r\n"
  std::ranges::replace_if(
      text, [](char character) { return character == '\r' || character == '\n'; }, ' ');
  return text.empty() ? "error " + std::to_string(code) : text;
}

}  // namespace NKVRHXA20
