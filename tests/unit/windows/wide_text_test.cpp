#include "host/hxacore/windows/wide_text.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

using namespace NKVRHXA20;

TEST(WideText, ReadsUtf8) {
  EXPECT_EQ(ToWide("Gr\xC3\xB6\xC3\x9F"
                   "e \xE2\x82\xAC"),
            L"Gr\u00F6\u00DFe \u20AC");
  EXPECT_EQ(ToWide("plain"), L"plain");
  EXPECT_EQ(ToWide(""), L"");
}

TEST(WideText, ReadsOtherBytesInTheSystemsCodePage) {
  const std::string text =
      "Gr\xF6"
      "e";
  wchar_t expected[8] = {};
  MultiByteToWideChar(CP_ACP, 0, text.c_str(), -1, expected, 8);
  EXPECT_EQ(ToWide(text), expected);
  EXPECT_EQ(ToWide(text).size(), 4U);
}

TEST(WideText, FormatsAnErrorInOneLineWithoutItsEnd) {
  const std::string text = ErrorText(ERROR_FILE_NOT_FOUND);
  EXPECT_GT(text.size(), 5U);
  EXPECT_EQ(text.find_first_of("\r\n"), std::string::npos) << text;
  EXPECT_NE(text.back(), '.');
  EXPECT_EQ(ErrorText(0x2FFFFFFF), "error 805306367");
}

}  // namespace
