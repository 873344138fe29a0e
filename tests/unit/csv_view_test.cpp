#include "host/hxahost/views/csv/csv_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;
using testing::HasSubstr;
using testing::StartsWith;

std::string Csv(const std::vector<std::string>& classes, const FilledRepository& repository) {
  QueryHeader header;
  header.classes = classes;
  std::ostringstream out;
  BeginCsv(out, header);
  WriteQueryCsv(out, header, {1, repository.Instances(), {}});
  EndCsv(out, header);
  return out.str();
}

TEST(CsvView, HasARowForEachInstanceOfAClass) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "Command", "one, two", "RawResults", Texts({"first", "second"}));
  repository.Publish("KVRSG_zxRawData", "Command", "three");
  EXPECT_EQ(Csv({"KVRSG_zxRawData"}, repository), "Command,RawResults\r\n\"one, two\",\"first\nsecond\"\r\nthree,\r\n");
  EXPECT_EQ(Csv({"KVRSG_zxRawData"}, {}), "Command,RawResults\r\n");
}

TEST(CsvView, HasTheColumnsOfAllClassesAfterTheClass) {
  FilledRepository repository;
  const TCIMReference drive = repository.Publish("KVRSG_zxLogicalDisk", "deviceid", "three");
  repository.Publish("KVRSG_ElementBadStripeData", "ManagedElement", drive);
  const std::string csv = Csv({"KVRSG_ElementBadStripeData", "KVRSG_zxRawData", "KVRSG_zxLogicalDisk"}, repository);
  EXPECT_THAT(csv, StartsWith("class,Stats,ManagedElement,Command,RawResults,"));
  EXPECT_THAT(csv, HasSubstr("\r\nKVRSG_zxLogicalDisk,,,,,"));
  EXPECT_THAT(csv, HasSubstr(",three,"));
  EXPECT_THAT(csv, HasSubstr("\r\nKVRSG_ElementBadStripeData,,\"KVRSG_zxLogicalDisk."));
}

TEST(CsvView, WritesCellsThatReadersTakeForTexts) {
  const std::pair<std::string, std::string> cases[] = {
      {"plain",                   "plain"                               },
      {"",                        ""                                    },
      {"a \"b\" c",               "\"a \"\"b\"\" c\""                   },
      {"\"\"",                    "\"\"\"\"\"\""                        },
      {"a\r\nb",                  "\"a\r\nb\""                          },
      {"=HYPERLINK(\"x\",\"y\")", "\"'=HYPERLINK(\"\"x\"\",\"\"y\"\")\""},
      {"+1",                      "'+1"                                 },
      {"-1",                      "'-1"                                 },
      {"@a",                      "'@a"                                 },
      {"\ta",                     "'\ta"                                },
      {"\ra",                     "\"'\ra\""                            },
      {"a=b",                     "a=b"                                 },
      {"\x1b[2J\xe4",             "\\x1b[2J\xc3\xa4"                    },
  };
  for (const auto& [value, expected] : cases) {
    FilledRepository repository;
    repository.Publish("KVRSG_zxRawData", "Command", value);
    EXPECT_EQ(Csv({"KVRSG_zxRawData"}, repository), "Command,RawResults\r\n" + expected + ",\r\n");
  }
}

}  // namespace
