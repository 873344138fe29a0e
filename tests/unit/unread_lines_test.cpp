#include "host/hxahost/result/unread_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/filled_repository.h"

namespace {

using namespace NKVRHXA20;
using hxahost::FindUnreadLines;
using hxahost::ShownValues;
using hxahost::UnreadText;

TEST(UnreadLines, TakesAValueForShownHoweverAPropertyShowsIt) {
  struct Case {
    const char* name;
    const char* value;
    bool isShown;
  };
  const Case cases[] = {
      {"the whole property",           "Okay (OKY)",        true },
      {"blanks at the ends",           "  Okay (OKY) ",     true },
      {"more blanks between",          "Okay    (OKY)",     true },
      {"another word",                 "Okay",              false},
      {"an element of an array",       "Hard disk",         true },
      {"part of an element",           "disk",              false},
      {"several properties",           "7,12",              true },
      {"several, one of them missing", "7,13",              false},
      {"a code",                       "0000120c",          true },
      {"a code in capitals",           "0000120C",          true },
      {"another code",                 "0000120d",          false},
      {"some words of an identifier",  "MODEL S96H8B01234", true },
      {"words that end within a word", "MODEL S96H8B0",     false},
      {"one word of an identifier",    "S96H8B01234",       false},
      {"nothing",                      " ",                 true },
  };
  FilledRepository repository;
  repository.Publish("KVRSG_zxLogicalDisk", "LogicalDriveStatus", "Okay (OKY)\r", "LogicalDriveNum", "7", "Size", "12");
  repository.Publish("KVRSG_zxDiskDrive", "OtherIdentifyingInfo", Texts({"Hard disk"}), "DeviceID",
                     "I00:MAKER MODEL S96H8B01234");
  repository.Publish("KVRSG_LogRecord_SoftEvent", "HexSoftEvent", TCIMValue(kCIMUInt32, 0, {TCIMValue(0x120cU)}));
  const ShownValues shown(repository.Instances());
  for (const Case& each : cases) EXPECT_EQ(shown.Shows(each.value), each.isShown) << each.name;
}

TEST(UnreadLines, AreListedByTextWithTheirPlaces) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxLogicalDisk", "Size", "5 MB");
  repository.Publish("KVRSG_zxRawData", "Command", "tool one", "RawResults",
                     Texts({"Size : 5 MB", "Mode : new", "", "More : news"}));
  repository.Publish("KVRSG_zxRawData", "Command", "tool two", "RawResults", Texts({"Size : 5 MB"}));
  repository.Publish("KVRSG_zxManagerRawData", "Command", "log", "RawResults", Texts({"today\tERR\t5 MB"}));
  const std::vector<UnreadText> texts = FindUnreadLines(repository.Instances());
  ASSERT_EQ(texts.size(), 2U);
  EXPECT_EQ(texts[0].command, "tool one");
  EXPECT_EQ(texts[0].unread, (std::vector<std::size_t>{1, 3}));
  EXPECT_EQ(texts[0].unreadLines, (std::vector<std::string>{"Mode : new", "More : news"}));
  EXPECT_EQ(texts[1].command, "log");
  EXPECT_EQ(texts[0].instance, 1U);
  EXPECT_EQ(texts[1].instance, 3U);
}

TEST(UnreadLines, AreNotShownByTheRawTextsThemselves) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "Command", "new", "RawResults", Texts({"Mode : new", "new"}));
  EXPECT_EQ(FindUnreadLines(repository.Instances()).size(), 1U);
}

TEST(UnreadLines, AreAllLinesOfAContinuedValue) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "Command", "c", "RawResults", Texts({"Order : 0,2", "        0,3"}));
  EXPECT_EQ(FindUnreadLines(repository.Instances()).at(0).unread, (std::vector<std::size_t>{0, 1}));
  repository.Publish("KVRSG_zxLogicalDisk", "StripeOrder", "0,2 0,3");
  EXPECT_TRUE(FindUnreadLines(repository.Instances()).empty());
}

}  // namespace
