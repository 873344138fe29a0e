#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "host/hxahost/bundle/bundle_encoding.h"
#include "host/hxahost/bundle/read_bundle.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "tests/support/sample_bundle.h"

namespace {

using namespace hxahost;
using testing::HasSubstr;

// Why the text is refused; "" if it is accepted.
std::string Refusal(const std::string& text) {
  try {
    ReadBundle(text);
    return "";
  } catch (const BundleError& error) {
    return error.what();
  }
}

std::string Changed(std::string text, const std::string& from, const std::string& to) {
  return text.replace(text.find(from), from.size(), to);
}

// The same with a valid closing line: a bundle made on purpose.
std::string Closed(const std::string& text) {
  const std::string body = text.substr(0, text.rfind("end of bundle"));
  return body + "end of bundle, crc32 " + HexText(Crc32(body)) + "\n";
}

TEST(ReadBundle, ReturnsEverythingThatWasWritten) {
  const Bundle bundle = ReadBundle(WriteBundle(SampleBundle()));
  EXPECT_EQ(WriteBundle(bundle), WriteBundle(SampleBundle()));
  EXPECT_EQ(bundle.program, "1.0.0");
  EXPECT_EQ(bundle.machine, "DBSERVER");
  EXPECT_EQ(bundle.directory, "C:\\tools");
  EXPECT_EQ(bundle.osType, 18);
  EXPECT_TRUE(bundle.osVersion.isWindowsNt);
  EXPECT_EQ(bundle.osVersion.major, 6U);
  EXPECT_EQ(bundle.osVersion.minor, 1U);
  EXPECT_EQ(bundle.raidLogDir, "C:\\ZXM\\");
  ASSERT_EQ(bundle.localTimes.size(), 2U);
  EXPECT_EQ(bundle.localTimes[0].count, 2U);
  EXPECT_EQ(bundle.localTimes[1].time.ToString(), "20261121093001.250000+060");
  EXPECT_EQ(bundle.querySeconds, std::vector<double>{1.25});
  ASSERT_EQ(bundle.runs.size(), 3U);
  EXPECT_EQ(bundle.runs[0].result.output, SampleBundle().runs[0].result.output);
  EXPECT_EQ(bundle.runs[0].result.exitStatus, 0);
  EXPECT_EQ(bundle.runs[0].result.seconds, 0.125);
  EXPECT_EQ(bundle.runs[1].arguments, (std::vector<std::string>{"getlogs", "1", ""}));
  EXPECT_EQ(bundle.runs[1].result.exitStatus, std::nullopt);
  EXPECT_EQ(bundle.runs[1].result.ending, "signal 11");
  ASSERT_TRUE(bundle.runs[2].failure);
  EXPECT_EQ(bundle.runs[2].failure->kind, FailureKind::kTooLong);
  EXPECT_EQ(bundle.runs[2].failure->message, "\"it\" was\nended");
  ASSERT_TRUE(bundle.raidLog);
  EXPECT_EQ(bundle.raidLog->bytes, SampleBundle().raidLog->bytes);
}

TEST(ReadBundle, RefusesSecondsThatNoRunTakesAndEndlessNames) {
  const std::string good = WriteBundle(SampleBundle());
  for (const std::string seconds : {"-4.9", "-0", "1e308", "inf", "nan"}) {
    EXPECT_THAT(Refusal(Closed(Changed(good, "seconds: 0.125", "seconds: " + seconds))), HasSubstr("\"seconds\""));
    EXPECT_THAT(Refusal(Closed(Changed(good, "query-seconds: 1.25", "query-seconds: " + seconds))),
                HasSubstr("\"query-seconds\""));
  }
  EXPECT_EQ(Refusal(Closed(Changed(good, "DBSERVER", std::string(1000, 'x')))), "");
  EXPECT_EQ(Refusal(Closed(Changed(good, "DBSERVER", std::string(1001, 'x')))),
            "is damaged: line 4 has a name of more than 1000 bytes");
}

TEST(ReadBundle, BringsBackOutputsOfAllBytes) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  const std::vector<std::string> outputs = {"", "\n", "\n\n", "\r", all, all + "\n", "\n" + all + all};
  for (const std::string& output : outputs) {
    Bundle bundle = SampleBundle();
    bundle.runs[0].result.output = output;
    bundle.raidLog->bytes = output;
    const Bundle read = ReadBundle(WriteBundle(bundle));
    EXPECT_EQ(read.runs[0].result.output, output);
    EXPECT_EQ(read.raidLog->bytes, output);
  }
}

TEST(ReadBundle, BringsBackEveryKindOfFailure) {
  constexpr FailureKind kKinds[] = {FailureKind::kNotInstalled, FailureKind::kNotAsked, FailureKind::kNotStarted,
                                    FailureKind::kTooLong,      FailureKind::kNotEnded, FailureKind::kTooMuchOutput,
                                    FailureKind::kNotOpened,    FailureKind::kHost,     FailureKind::kOther};
  for (const FailureKind kind : kKinds) {
    Bundle bundle = SampleBundle();
    bundle.runs[2].failure->kind = kind;
    bundle.raidLog->failure = RecordedFailure{kind, "locked"};
    const Bundle read = ReadBundle(WriteBundle(bundle));
    EXPECT_EQ(read.runs[2].failure->kind, kind);
    EXPECT_EQ(read.raidLog->failure->kind, kind);
    EXPECT_EQ(read.raidLog->failure->message, "locked");
  }
}

TEST(ReadBundle, RefusesABundleThatEndsEarlyWhereverThatIs) {
  const std::string text = WriteBundle(SampleBundle());
  for (std::size_t size = 0; size < text.size(); ++size) ASSERT_NE(Refusal(text.substr(0, size)), "") << size;
}

TEST(ReadBundle, RefusesABundleOfWhichAnyByteWasChanged) {
  const std::string text = WriteBundle(SampleBundle());
  for (std::size_t place = 0; place < text.size(); ++place) {
    for (const int bit : {0x01, 0x02, 0x20, 0x80}) {
      std::string changed = text;
      changed[place] = static_cast<char>(changed[place] ^ bit);
      ASSERT_NE(Refusal(changed), "") << place << " " << bit;
    }
  }
}

TEST(ReadBundle, RefusesABundleThatLacksALineOrHasOneTwice) {
  const std::string text = WriteBundle(SampleBundle());
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = text.find('\n', begin) + 1;
    ASSERT_NE(Refusal(text.substr(0, begin) + text.substr(end)), "") << begin;
    ASSERT_NE(Refusal(text.substr(0, end) + text.substr(begin)), "") << begin;
    begin = end;
  }
}

TEST(ReadBundle, ReportsAnErrorInOneLine) {
  const std::string text = WriteBundle(SampleBundle());
  struct Case {
    const char* name;
    std::string text;
    const char* says;
  };
  const Case cases[] = {
      {"newer",             Changed(text,        "bundle 1\n",     "bundle 2\n"),    "has the format 2, and this"},
      {"other line ends",   Changed(text,        "bundle 1\n",     "bundle 1\r\n"),  "copy it as bytes"          },
      {"no number",         Changed(text,        "bundle 1\n",     "bundle one\n"),  "line 1 names no format"    },
      {"a changed output",  Closed(Changed(text, "AB12CD34",       "AB12CD35")),     "their checksum is another" },
      {"a shorter output",  Closed(Changed(text, "|\\r\n",         "")),             "line "                     },
      {"a changed name",    Changed(text,        "DBSERVER",       "DBSERVES"),      "its checksum is another"   },
      {"a missing item",    Closed(Changed(text, "items: 4",       "items: 5")),     "beginning of item 5"       },
      {"an item too many",  Closed(Changed(text, "items: 4",       "items: 3")),     "is not its closing line"   },
      {"a wrong number",    Closed(Changed(text, "run 2",          "run 3")),        "beginning of item 2"       },
      {"a wrong time",      Closed(Changed(text, "20261121",       "20261321")),     "\"local-time\""            },
      {"a wrong version",   Closed(Changed(text, "6.1",            "6.x")),          "\"os-version\""            },
      {"seconds of no end", Closed(Changed(text, "seconds: 0.125", "seconds: inf")), "\"seconds\""               },
      {"an endless output", Closed(Changed(text, "output: ",       "output: 9")),    "not as many as"            },
  };
  EXPECT_THAT(Refusal(""), HasSubstr("is no bundle"));
  EXPECT_THAT(Refusal("{\"format\": 1}\n"), HasSubstr("is no bundle"));
  EXPECT_THAT(Refusal(text + "\n"), HasSubstr("something follows it"));
  for (const Case& each : cases) {
    EXPECT_THAT(Refusal(each.text), HasSubstr(each.says)) << each.name;
    EXPECT_EQ(Refusal(each.text).find('\n'), std::string::npos) << each.name;
  }
}

}  // namespace
