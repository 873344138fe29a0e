#include "collect/short_text.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace short_text_test {
namespace {

// The characters of a text and nothing behind them, so that a look behind its end is noticed.
class BareText {
 public:
  explicit BareText(std::string_view text) : characters_(text.begin(), text.end()) {}

  std::string_view Piece(std::size_t begin, std::size_t size) const { return {characters_.data() + begin, size}; }
  const char* End() const { return characters_.data() + characters_.size(); }

 private:
  const std::vector<char> characters_;
};

using std::string_view_literals::operator""sv;

constexpr std::string_view kText = "Online (ONL)\r\n\0\x80\xff  34715/71096320 TALVERA\n"sv;
static_assert(kText.size() == 42);

TEST(ShortText, IsPutIntoAnEmptyFieldWhereverItStands) {
  const BareText text(kText);
  for (std::size_t begin = 0; begin <= kText.size(); ++begin) {
    for (std::size_t size = 0; size <= kText.size() - begin; ++size) {
      std::string field;
      Keep(field, text.Piece(begin, size), text.End());
      ASSERT_EQ(field, kText.substr(begin, size)) << begin << " " << size;
      ASSERT_EQ(field.c_str()[size], '\0') << begin << " " << size;
    }
  }
}

TEST(ShortText, TakesThePlaceOfWhatAFieldHeld) {
  const BareText text(kText);
  for (const std::size_t held : {1U, 15U, 16U, 100U}) {
    for (const std::size_t size : {0U, 1U, 14U, 15U, 16U, 30U}) {
      std::string field(held, 'x');
      Keep(field, text.Piece(0, size), text.End());
      ASSERT_EQ(field, kText.substr(0, size)) << held << " " << size;
    }
  }
}

TEST(ShortText, IsNoneThatIsEmptyOrLongOrStandsNextToTheEndOfItsText) {
  struct Case {
    const char* name;
    std::size_t begin;
    std::size_t size;
    bool isKept;
  };
  const std::size_t length = kText.size();
  const Case cases[] = {
      {"one character",                      0,           1,  true },
      {"fifteen characters",                 0,           15, true },
      {"sixteen characters",                 0,           16, false},
      {"no character",                       0,           0,  false},
      {"fifteen characters before the end",  length - 15, 1,  true },
      {"fourteen characters before the end", length - 14, 1,  false},
      {"all up to the end",                  length - 15, 15, true },
      {"the last character",                 length - 1,  1,  false},
      {"nothing at the end",                 length,      0,  false},
  };
  const BareText text(kText);
  for (const auto& [name, begin, size, isKept] : cases) {
    std::string field;
    EXPECT_EQ(KeptShort(field, text.Piece(begin, size), text.End()), isKept) << name;
    EXPECT_EQ(field, isKept ? kText.substr(begin, size) : "") << name;
  }
}

TEST(ShortText, LeavesAFieldThatHoldsSomething) {
  const BareText text(kText);
  std::string field = "x";
  EXPECT_FALSE(KeptShort(field, text.Piece(0, 6), text.End()));
  EXPECT_EQ(field, "x");
}

TEST(ShortText, GoesIntoAFieldThatWasEmptied) {
  const BareText text(kText);
  std::string field(100, 'x');
  field.clear();
  EXPECT_TRUE(KeptShort(field, text.Piece(0, 6), text.End()));
  EXPECT_EQ(field, "Online");
}

TEST(ShortText, IsKeptOfNoTextAtAll) {
  std::string field = "x";
  Keep(field, {}, kText.data());
  EXPECT_EQ(field, "");
}

}  // namespace
}  // namespace short_text_test
