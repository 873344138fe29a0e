#include "host/hxahost/terminal/ascii_output.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using hxahost::TAsciiBuffer;
using hxahost::ToAscii;

TEST(AsciiOutput, TakesAsManyColumnsAsTheCharacters) {
  EXPECT_EQ(ToAscii("plain\n"), "plain\n");
  EXPECT_EQ(ToAscii("cut\u2026"), "cut~");
  EXPECT_EQ(ToAscii("K\u00e4se"), "K?se");
  EXPECT_EQ(ToAscii("\u6f22\u5b57"), "????");
  EXPECT_EQ(ToAscii("e\u0301"), "e");
  EXPECT_EQ(ToAscii(""), "");
}

TEST(AsciiOutput, StaysAsciiForAnyBytes) {
  for (int first = 0; first < 256; ++first) {
    for (const int second : {0x0a, 0x41, 0x80, 0xbf, 0xe2, 0xff}) {
      const std::string bytes = {static_cast<char>(first), static_cast<char>(second)};
      for (const char character : ToAscii(bytes)) EXPECT_LT(static_cast<unsigned char>(character), 0x80U) << first;
    }
  }
}

TEST(AsciiOutput, ConvertsACharacterThatIsWrittenInPieces) {
  std::ostringstream out;
  {
    TAsciiBuffer buffer(out);
    std::ostream ascii(&buffer);
    ascii << "a\xe2\x80"
          << "\xa6"
          << "b\nrest";
    EXPECT_EQ(out.str(), "a~b\n");
    ascii.flush();
    EXPECT_EQ(out.str(), "a~b\nrest");
    ascii << '!';
  }
  EXPECT_EQ(out.str(), "a~b\nrest!");
}

TEST(AsciiOutput, FailsIfItsOutputFails) {
  std::ostringstream out;
  TAsciiBuffer buffer(out);
  std::ostream ascii(&buffer);
  out.setstate(std::ios::badbit);
  ascii << "line\n" << std::flush;
  EXPECT_FALSE(ascii);
}

}  // namespace
