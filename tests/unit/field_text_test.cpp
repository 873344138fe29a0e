#include "collect/field_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using std::string_view_literals::operator""sv;

constexpr std::string_view kText = "Online (ONL)\r\n\0\x80\xff  34715/71096320 TALVERA T36LW10 S96H8B01234\r\n"sv;
static_assert(kText.size() > 60);

constexpr std::size_t kLengths[] = {0, 1, 2, 3, 4, 7, 8, 9, 15, 16, 17, 30, 31, 32, 33, 60};

// The characters of a text and nothing in front of them or behind, so that a look past them is noticed.
std::vector<char> Bare(std::string_view text) { return {text.begin(), text.end()}; }

std::string_view ViewOf(const std::vector<char>& characters) { return {characters.data(), characters.size()}; }

TEST(FieldText, IsEmptyAtFirst) {
  const FieldText text;
  EXPECT_TRUE(text.empty());
  EXPECT_EQ(text.size(), 0U);
  EXPECT_EQ(text, "");
}

TEST(FieldText, HoldsTextsOfAnyLengthWithAnyCharacters) {
  for (std::size_t length = 0; length <= kText.size(); ++length) {
    const std::vector<char> characters = Bare(kText.substr(0, length));
    const FieldText text(ViewOf(characters));
    ASSERT_EQ(std::string_view(text), kText.substr(0, length));
    ASSERT_EQ(std::string(text), std::string(kText.substr(0, length)));
    ASSERT_EQ(text.size(), length);
    ASSERT_EQ(text.empty(), length == 0);
  }
}

TEST(FieldText, TakesThePlaceOfATextOfAnyLength) {
  for (const std::size_t held : kLengths) {
    for (const std::size_t length : kLengths) {
      FieldText text = std::string(held, 'x');
      text = kText.substr(0, length);
      ASSERT_EQ(text, kText.substr(0, length)) << held << " " << length;
    }
  }
}

TEST(FieldText, PutsTextsOfAnyLengthBehindEachOther) {
  for (const std::size_t held : kLengths) {
    for (const std::size_t length : kLengths) {
      FieldText text = std::string(held, 'x');
      const std::vector<char> characters = Bare(kText.substr(0, length));
      text.append(ViewOf(characters)).append("!");
      ASSERT_EQ(text, std::string(held, 'x').append(kText.substr(0, length)) + "!") << held << " " << length;
    }
  }
}

TEST(FieldText, CopiesAreTextsOfTheirOwn) {
  for (const std::size_t length : kLengths) {
    for (const std::size_t held : kLengths) {
      FieldText original = kText.substr(0, length);
      const FieldText copy = original;
      FieldText assigned = std::string(held, 'x');
      assigned = original;
      original = "other";
      ASSERT_EQ(copy, kText.substr(0, length));
      ASSERT_EQ(assigned, kText.substr(0, length)) << held;
    }
  }
}

TEST(FieldText, MovesTextsOfAnyLength) {
  for (const std::size_t length : kLengths) {
    for (const std::size_t held : kLengths) {
      FieldText original = kText.substr(0, length);
      FieldText moved = std::move(original);
      ASSERT_EQ(moved, kText.substr(0, length));
      FieldText assigned = std::string(held, 'x');
      assigned = std::move(moved);
      ASSERT_EQ(assigned, kText.substr(0, length)) << held;
    }
  }
}

TEST(FieldText, TakesAPartOfItself) {
  for (const std::size_t length : kLengths) {
    for (std::size_t begin = 0; begin <= length; ++begin) {
      FieldText text = kText.substr(0, length);
      text = std::string_view(text).substr(begin);
      ASSERT_EQ(text, kText.substr(0, length).substr(begin)) << length << " " << begin;
    }
  }
}

TEST(FieldText, PutsItselfBehindItself) {
  for (const std::size_t length : kLengths) {
    FieldText text = kText.substr(0, length);
    text.append(text);
    ASSERT_EQ(text, std::string(kText.substr(0, length)).append(kText.substr(0, length))) << length;
  }
}

TEST(FieldText, TakesItselfAsItIs) {
  for (const std::size_t length : kLengths) {
    FieldText text = kText.substr(0, length);
    const FieldText& same = text;
    text = same;
    ASSERT_EQ(text, kText.substr(0, length)) << length;
  }
}

TEST(FieldText, IsTheSameAsTextsWithTheSameCharacters) {
  EXPECT_EQ(FieldText("No"), FieldText("No"));
  EXPECT_EQ(FieldText("No"), "No");
  EXPECT_EQ("No"sv, FieldText("No"));
  EXPECT_EQ(FieldText("No"), std::string("No"));
  EXPECT_NE(FieldText("No"), "Not");
  EXPECT_NE(FieldText("No\0"sv), "No");
  EXPECT_NE(FieldText(kText), kText.substr(1));
  FieldText shortAfterLong = kText;
  shortAfterLong = "No";
  EXPECT_EQ(shortAfterLong, FieldText("No"));
}

TEST(FieldText, IsPutTogetherWithOtherTexts) {
  const FieldText number = "1";
  EXPECT_EQ("Zentraxis:" + number + "C" + FieldText("0"), "Zentraxis:1C0");
  EXPECT_EQ(number + "|" + number, "1|1");
}

TEST(FieldText, TakesNoMoreRoomThanAString) { EXPECT_LE(sizeof(FieldText), std::size_t{32}); }

}  // namespace
