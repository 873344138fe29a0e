#include "logs/text_file.h"

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace {

using Lines = std::vector<std::string>;

// The lines of a file that holds the bytes.
Lines Read(std::string_view bytes, std::size_t limit = 511) {
  const TemporaryFolder folder;
  TextFile file(folder.Write("text", bytes).string());
  EXPECT_TRUE(file.IsOpen());
  Lines lines;
  for (std::string line = file.ReadLine(limit); !line.empty(); line = file.ReadLine(limit)) lines.push_back(line);
  EXPECT_TRUE(file.HasMetEnd());
  return lines;
}

TEST(TextFile, ReadsLinesWithTheirLineFeeds) {
  using namespace std::string_view_literals;
  struct Case {
    const char* name;
    std::string_view bytes;
    Lines lines;
  };
  const Case cases[] = {
      {"nothing",                                       "",                 {}                              },
      {"line feeds",                                    "one\ntwo\n",       {"one\n", "two\n"}              },
      {"carriage return and line feed are a line feed", "one\r\ntwo\r\n",   {"one\n", "two\n"}              },
      {"both kinds",                                    "one\ntwo\r\n\r\n", {"one\n", "two\n", "\n"}        },
      {"a last line without an end",                    "one\ntwo",         {"one\n", "two"}                },
      {"a carriage return by itself stays",             "o\rne\r\r\ntwo\r", {"o\rne\r\n", "two\r"}          },
      {"NUL, control and high bytes stay",              "a\0\x1a\xff\n"sv,  {std::string("a\0\x1a\xff\n"sv)}},
  };
  for (const Case& one : cases) EXPECT_EQ(Read(one.bytes), one.lines) << one.name;
}

TEST(TextFile, ReadsALongLineInPiecesOfTheLimit) {
  EXPECT_EQ(Read("abcdefgh\nij\n", 3), (Lines{"abc", "def", "gh\n", "ij\n"}));
  EXPECT_EQ(Read("abc\n", 4), (Lines{"abc\n"}));
  EXPECT_EQ(Read("abc\r\n", 3), (Lines{"abc", "\n"}));
  EXPECT_EQ(Read("abc\r\n", 4), (Lines{"abc\n"}));
}

TEST(TextFile, PutsLinesTogetherThatStandAcrossItsBuffer) {
  std::string bytes;
  Lines lines;
  for (int number = 0; number < 20000; ++number) {
    lines.push_back("line " + std::to_string(number));
    bytes += lines.back() + "\r\n";
    lines.back() += "\n";
  }
  EXPECT_EQ(Read(bytes), lines);
}

TEST(TextFile, FindsALineEndWhereverTheBufferCutsIt) {
  constexpr std::size_t kAroundTheBuffer = std::size_t{64} << 10U;
  for (std::size_t length = kAroundTheBuffer - 3; length <= kAroundTheBuffer + 1; ++length) {
    const std::string text(length, 'x');
    EXPECT_EQ(Read(text + "\r\nnext\r\n", length + 100), (Lines{text + "\n", "next\n"})) << length;
    EXPECT_EQ(Read(text + "\nnext\n", length + 100), (Lines{text + "\n", "next\n"})) << length;
    EXPECT_EQ(Read(text + "\r\r\n\r", length + 100), (Lines{text + "\r\n", "\r"})) << length;
    EXPECT_EQ(Read(text + "\r\nnext\r\n", length), (Lines{text, "\n", "next\n"})) << length;
  }
}

TEST(TextFile, NoticesTheEndOnlyWhenAReadRunsIntoIt) {
  const TemporaryFolder folder;
  TextFile ended(folder.Write("ended", "one\n").string());
  EXPECT_FALSE(ended.HasMetEnd());
  EXPECT_EQ(ended.ReadLine(511), "one\n");
  EXPECT_FALSE(ended.HasMetEnd());
  EXPECT_EQ(ended.ReadLine(511), "");
  EXPECT_TRUE(ended.HasMetEnd());

  TextFile open(folder.Write("open", "one").string());
  EXPECT_EQ(open.ReadLine(511), "one");
  EXPECT_TRUE(open.HasMetEnd());
}

TEST(TextFile, AFileThatIsNotThereIsNotOpenAndHasNoLines) {
  const TemporaryFolder folder;
  TextFile missing((folder.Path() / "missing").string());
  EXPECT_FALSE(missing.IsOpen());
  EXPECT_EQ(missing.ReadLine(511), "");
  TextFile none;
  EXPECT_FALSE(none.IsOpen());
  EXPECT_EQ(none.ReadLine(511), "");
}

TEST(TextFile, AFolderHasNoLines) {
  const TemporaryFolder folder;
  TextFile file(folder.Path().string());
  EXPECT_EQ(file.ReadLine(511), "");
}

}  // namespace
