#include "host/hxacore/windows/wide_text.h"

#include <algorithm>
#include <array>

#include <windows.h>

#include <boost/locale/encoding_utf.hpp>

namespace NKVRHXA20 {

namespace {

namespace conv = boost::locale::conv;

std::wstring FromSystemCodePage(const std::string& text) {
  const int length = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');  // no code page makes more characters than it has bytes
  const int count = MultiByteToWideChar(CP_ACP, 0, text.data(), length, wide.data(), length);
  wide.resize(static_cast<std::size_t>(count));
  return wide;
}

}  // namespace

std::wstring ToWide(const std::string& text) {
  try {
    return conv::utf_to_utf<wchar_t>(text, conv::stop);
  } catch (const conv::conversion_error&) {
    return FromSystemCodePage(text);
  }
}

std::string ErrorText(unsigned long code) {
  std::array<wchar_t, 1024> buffer;
  const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
                                      buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
  std::string text = conv::utf_to_utf<char>(buffer.data(), buffer.data() + length);
  text.erase(text.find_last_not_of("\r\n .") + 1);  // "Access is denied.\r\n"
  std::ranges::replace_if(
      text, [](char character) { return character == '\r' || character == '\n'; }, ' ');
  return text.empty() ? "error " + std::to_string(code) : text;
}

}  // namespace NKVRHXA20
