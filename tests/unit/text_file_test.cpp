#include "logs/text_file.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/temporary_folder.h"

namespace {

using Lines = std::vector<std::string>;

// The lines of a file with these bytes.
Lines Read(std::string_view bytes) {
  const TemporaryFolder folder;
  TextFile file(folder.Write("text", bytes).string());
  EXPECT_TRUE(file.IsOpen());
  Lines lines;
  for (std::string line = file.ReadLine(); !line.empty(); line = file.ReadLine()) lines.push_back(line);
  EXPECT_TRUE(file.HasMetEnd());
  TextFile recorded(std::make_shared<const std::string>(bytes));
  for (const std::string& line : lines) {
    EXPECT_FALSE(recorded.HasMetEnd());
    EXPECT_EQ(recorded.ReadLine(), line);
  }
  EXPECT_EQ(recorded.ReadLine(), "");
  EXPECT_TRUE(recorded.HasMetEnd());
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
      {"nothing",                                       "",                  {}                                },
      {"line feeds",                                    "one\ntwo\n",        {"one\n", "two\n"}                },
      {"a NUL in the last place",                       "a\0"sv,             {std::string("a\0"sv)}            },
      {"carriage return and line feed are a line feed", "one\r\ntwo\r\n",    {"one\n", "two\n"}                },
      {"both kinds",                                    "one\ntwo\r\n\r\n",  {"one\n", "two\n", "\n"}          },
      {"a last line without an end",                    "one\ntwo",          {"one\n", "two"}                  },
      {"a carriage return by itself stays",             "o\rne\r\r\ntwo\r",  {"o\rne\r\n", "two\r"}            },
      {"NUL, control and high bytes stay",              "\0a\0\x1b\xff\n"sv, {std::string("\0a\0\x1b\xff\n"sv)}},
  };
  for (const Case& one : cases) EXPECT_EQ(Read(one.bytes), one.lines) << one.name;
}

TEST(TextFile, ReadsALongLineInPieces) {
  const std::string shorter(510, 'x');
  const std::string piece(511, 'x');
  EXPECT_EQ(Read(piece + piece + "ab\ncd\n"), (Lines{piece, piece, "ab\n", "cd\n"}));
  EXPECT_EQ(Read(shorter + "\nab\n"), (Lines{shorter + "\n", "ab\n"}));
  EXPECT_EQ(Read(shorter + "\r\nab\n"), (Lines{shorter + "\n", "ab\n"}));
  EXPECT_EQ(Read(shorter + "\rab\n"), (Lines{shorter + "\r", "ab\n"}));
  EXPECT_EQ(Read(piece + "\r\nab\n"), (Lines{piece, "\n", "ab\n"}));
}

TEST(TextFile, NoticesTheEndOnlyWhenAReadRunsIntoIt) {
  const TemporaryFolder folder;
  TextFile ended(folder.Write("ended", "one\n").string());
  EXPECT_FALSE(ended.HasMetEnd());
  EXPECT_EQ(ended.ReadLine(), "one\n");
  EXPECT_FALSE(ended.HasMetEnd());
  EXPECT_EQ(ended.ReadLine(), "");
  EXPECT_TRUE(ended.HasMetEnd());

  TextFile open(folder.Write("open", "one").string());
  EXPECT_EQ(open.ReadLine(), "one");
  EXPECT_TRUE(open.HasMetEnd());
}

TEST(TextFile, AFileThatIsNotThereIsNotOpenAndHasNoLines) {
  const TemporaryFolder folder;
  TextFile missing((folder.Path() / "missing").string());
  EXPECT_FALSE(missing.IsOpen());
  EXPECT_EQ(missing.ReadLine(), "");
  TextFile none;
  EXPECT_FALSE(none.IsOpen());
  EXPECT_EQ(none.ReadLine(), "");
}

// On systems that can open a folder, the read fails; on others the open does.
TEST(TextFile, AReadThatFailsIsNoEnd) {
  const TemporaryFolder folder;
  TextFile file(folder.Path().string());
  EXPECT_EQ(file.ReadLine(), "");
  EXPECT_FALSE(file.HasMetEnd());
}

}  // namespace
