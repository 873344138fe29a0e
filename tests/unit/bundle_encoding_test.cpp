#include "host/hxahost/bundle/bundle_encoding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>

#include "host/hxahost/text/escaping.h"

namespace {

using namespace hxahost;

TEST(BundleEncoding, BringsEveryByteBackAlsoBesideEveryOther) {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string bytes = {static_cast<char>(first), static_cast<char>(second)};
      const std::string text = EscapeBytes(bytes);
      ASSERT_EQ(UnescapeBytes(text), bytes) << first << " " << second;
      ASSERT_EQ(Unquote(Quote(bytes)), bytes) << first << " " << second;
      ASSERT_TRUE(std::ranges::none_of(text, [](char character) { return character >= 0 && character < 0x20; }));
    }
  }
}

TEST(BundleEncoding, IsReadable) {
  EXPECT_EQ(EscapeBytes("a \"b\"\r"), "a \"b\"\\r");
  EXPECT_EQ(EscapeBytes("\t\\n\x01\x7f"), "\\t\\\\n\\x01\\x7f");
  EXPECT_EQ(EscapeBytes("K\xc3\xa4se \xe4"), "K\xc3\xa4se \\xe4");
  EXPECT_EQ(EscapeBytes("\xe2\x80\xae"), "\\xe2\\x80\\xae");  // changes the direction of the text after it
  EXPECT_EQ(Quote("a\"b"), "\"a\\\"b\"");
}

TEST(BundleEncoding, EscapesInvisibleCharactersAndReadsThemUnescapedAsOlderProgramsWroteThem) {
  std::string marks = "e";
  for (int mark = 0; mark < 200; ++mark) marks += "\u0301";
  for (const std::string text :
       {"\U000e0100", "\u034f", "\u115f", "\u1160", "\u3164", "\uffa0", "\u2800", "\U0001d173", marks.c_str()}) {
    const std::string escaped = EscapeBytes(text);
    EXPECT_EQ(EscapeControls(escaped), escaped);
    EXPECT_NE(escaped, text);
    EXPECT_EQ(UnescapeBytes(escaped), text);
    EXPECT_EQ(UnescapeBytes(text), text);
    EXPECT_EQ(Unquote('"' + text + '"'), text);
  }
  EXPECT_EQ(EscapeBytes("e\u0301\u0301\u0301\u0301\u0301\u0301"), "e\u0301\u0301\u0301\u0301\\xcc\\x81\\xcc\\x81");
}

TEST(BundleEncoding, RefusesTextsThatItDoesNotWrite) {
  for (const char* const text : {"\\", "\\x", "\\x1", "\\xg1", "\\u0041", "\r", "\xff", "\x1b", "a\\"}) {
    EXPECT_EQ(UnescapeBytes(text), std::nullopt) << text;
  }
  for (const char* const text : {"", "\"", "a", "\"a", "a\"", "'a'"}) EXPECT_EQ(Unquote(text), std::nullopt) << text;
}

// With a second notation for the same bytes, a bundle would not be written again as it was read.
TEST(BundleEncoding, RefusesBytesThatAreWrittenInAnotherWay) {
  for (const char* const text : {"\\x41", "\\x0d", "\\x0D", "\\x1B", "\\\"", "\\x22", "K\\xc3\\xa4se", "a\\x5c"}) {
    EXPECT_EQ(UnescapeBytes(text), std::nullopt) << text;
  }
  for (const char* const text : {R"("1"0argument: "al")", R"("a"b")", R"(""")", R"("a\x22b")", R"("a\x0a")"}) {
    EXPECT_EQ(Unquote(text), std::nullopt) << text;
  }
}

TEST(BundleEncoding, WritesNumbersThatAreReadBackAsTheSame) {
  EXPECT_EQ(DecimalText(0.125), "0.125");
  EXPECT_EQ(std::stod(DecimalText(0.1 + 0.2)), 0.1 + 0.2);
  EXPECT_EQ(HexText(0xab), "000000ab");
  EXPECT_EQ(Crc32("123456789"), 0xcbf43926U);
  EXPECT_EQ(Crc32(""), 0U);
}

}  // namespace
