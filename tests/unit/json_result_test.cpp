#include "host/hxahost/result/json_result.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <span>
#include <string>

#include "host/hxahost/system/exit_status.h"
#include "tests/support/temporary_folder.h"

namespace {

using hxahost::JsonResult;
using hxahost::ReadJsonResult;

constexpr const char* kWhole =
    R"({"format": 1, "machine": "M", "queries": [{"instances": []}, {"instances": [
        {"class": "C", "path": "P", "properties": {"Text": "t", "Number": 7}}], "log": []}]})";

TEST(JsonResult, ReadsTheInstancesOfTheLastQuery) {
  const TemporaryFolder folder;
  const JsonResult result = ReadJsonResult(folder.Write("r.json", kWhole));
  EXPECT_EQ(result.machine, "M");
  ASSERT_EQ(result.instances.size(), 1U);
  EXPECT_EQ(result.instances[0].className, "C");
  EXPECT_EQ(result.instances[0].path, "P");
  EXPECT_EQ(ResultText(result.instances[0], "Text"), "t");
  EXPECT_EQ(ResultText(result.instances[0], "Number"), "7");
  EXPECT_EQ(ResultText(result.instances[0], "Other"), "");
}

TEST(JsonResult, HasTheTimeOfCollectionIfTheFileHas) {
  const TemporaryFolder folder;
  EXPECT_EQ(ReadJsonResult(folder.Write("r.json", kWhole)).time, "");
  const JsonResult dated = ReadJsonResult(folder.Write("d.json", R"({"format": 1, "machine": "M",
      "time": "20261121093000.000000+060", "masked": true, "queries": [{"instances": []}]})"));
  EXPECT_EQ(dated.time, "20261121093000.000000+060");
  EXPECT_TRUE(dated.isMasked);
  EXPECT_FALSE(dated.isReplayed);
}

TEST(JsonResult, HasTheLogsAndTheRunsOfAllQueries) {
  const TemporaryFolder folder;
  const JsonResult result = ReadJsonResult(folder.Write("r.json", R"({"format": 1, "machine": "M", "queries": [
      {"instances": [], "log": [{"level": 3, "text": "a"}], "runs": [
        {"command": "zenx//arcconf.exe", "arguments": ["getconfig", "1"], "outcome": "cut off", "failure": "why"}]},
      {"instances": [], "log": [{"level": 100, "text": "b"}], "runs": []}]})"));
  ASSERT_EQ(result.log.size(), 2U);
  EXPECT_EQ(result.log[1].level, 100);
  EXPECT_EQ(result.log[1].text, "b");
  ASSERT_TRUE(result.runs.has_value());
  ASSERT_EQ(result.runs->size(), 1U);
  EXPECT_EQ(result.runs->front().path, "zenx//arcconf.exe");
  EXPECT_EQ(result.runs->front().arguments.size(), 2U);
  EXPECT_EQ(result.runs->front().outcome, hxahost::Outcome::kCutOff);
  EXPECT_EQ(result.runs->front().failure, "why");
}

TEST(JsonResult, HasNoRunsIfAQueryWasWrittenWithoutThem) {
  const TemporaryFolder folder;
  EXPECT_FALSE(ReadJsonResult(folder.Write("r.json", kWhole)).runs.has_value());
}

std::string Rejection(const std::filesystem::path& file) {
  try {
    ReadJsonResult(file);
  } catch (const hxahost::ProgramError& error) {
    EXPECT_EQ(error.Status(), hxahost::ExitStatus::kWrongArguments);
    return error.what();
  }
  return "read";
}

struct RejectedCase {
  const char* name;
  std::string text;
  const char* says;
};

void ExpectRejections(std::span<const RejectedCase> cases) {
  const TemporaryFolder folder;
  for (const RejectedCase& each : cases) {
    EXPECT_THAT(Rejection(folder.Write("r.json", each.text)), testing::HasSubstr(each.says)) << each.name;
  }
}

TEST(JsonResult, RejectsATextThatIsNotAResultWithAReason) {
  const RejectedCase cases[] = {
      {"nothing",          "",                               "damaged"                 },
      {"no JSON",          "<html>",                         "damaged"                 },
      {"a NUL at its end", kWhole + std::string("\0garbage", 8),                         "it contains a NUL"},
      {"no object",                  "[1]",                                        "an object is missing"                                           },
      {"another program's",                  "{}",                                "\"format\" is missing"},
      {"a later format",                  R"({"format": 2})",                                   "its format is 2, not 1"                                },
      {"no query",                  R"({"format": 1, "machine": "M", "queries": []})",                                         "it has no query"},
      {"no machine",                  R"({"format": 1, "queries": [{}]})",                                       "\"machine\" is missing"                                            },
  };
  ExpectRejections(cases);
}

TEST(JsonResult, RejectsAnInvalidQueryWithAReason) {
  const auto result = [](const std::string& query) {
    return R"({"format": 1, "machine": "M", "queries": [)" + query + "]}";
  };
  const auto run = [&](const std::string& members) {
    return result(R"({"instances": [], "runs": [{"command": "c", )" + members + "}]}");
  };
  const RejectedCase cases[] = {
      {"text",                     result(R"("x")"),                                        "an object is missing"    },
      {"a bare instance",          result(R"({"instances": [{"class": 1}]})"),              "\"class\" is missing"    },
      {"a log of text",            result(R"({"instances": [], "log": ["x"]})"),            "an object is missing"    },
      {"a level of text",          result(R"({"instances": [], "log": [{"level": "3"}]})"), "\"level\" is missing"    },
      {"a run without arguments",  run(R"("failure": "")"),                                 "\"arguments\" is missing"},
      {"a number for an argument", run(R"("arguments": [1])"),                              "an argument is no text"  },
      {"an outcome of the future", run(R"("arguments": [], "outcome": "lost")"),            "the outcome \"lost\""    },
  };
  ExpectRejections(cases);
}

TEST(JsonResult, RejectsAResultCutOffAnywhere) {
  const TemporaryFolder folder;
  const std::string whole = kWhole;
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_THAT(Rejection(folder.Write("r.json", whole.substr(0, length))), testing::HasSubstr("damaged")) << length;
  }
}

std::string WithValue(const std::string& value) {
  return R"({"format": 1, "machine": "M", "queries": [{"instances": [
      {"class": "C", "path": "P", "properties": {"Deep": )" +
         value + "}}]}]}";
}

// Comparing each key with all others takes a minute for a hundred thousand keys.
TEST(JsonResult, RejectsAMachineWhoseNameIsTooLong) {
  const auto read = [](std::size_t length) {
    return hxahost::ParseJsonResult(
        R"({"format": 1, "machine": ")" + std::string(length, 'm') + R"(", "queries": [{"instances": []}]})", "r");
  };
  EXPECT_EQ(read(1000).machine.size(), 1000U);
  EXPECT_THROW(read(1001), hxahost::ProgramError);
}

TEST(JsonResult, RejectsAnObjectWithMoreKeysThanAnyResultHas) {
  const auto result = [](int keys) {
    std::string properties;
    for (int key = 0; key < keys; ++key) properties += (key == 0 ? "\"k" : ",\"k") + std::to_string(key) + "\": 1";
    const std::string instance = R"({"class": "C", "path": "p", "properties": {)" + properties + "}}";
    return R"({"format": 1, "machine": "M", "queries": [{"instances": [)" + instance + ", " + instance + "]}]}";
  };
  EXPECT_EQ(hxahost::ParseJsonResult(result(1000), "r").instances.size(), 2U);
  try {
    hxahost::ParseJsonResult(result(100000), "r");
    ADD_FAILURE() << "it is read";
  } catch (const hxahost::ProgramError& error) {
    EXPECT_EQ(std::string(error.what()),
              "r is no result of \"hxahost query --format json\": an object has more than 1000 keys.");
  }
}

TEST(JsonResult, RejectsValuesNestedTooDeep) {
  const TemporaryFolder folder;
  const auto nested = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
  EXPECT_EQ(Rejection(folder.Write("r.json", WithValue(nested(20)))), "read");
  for (const std::size_t depth : {100U, 100'000U}) {
    EXPECT_THAT(Rejection(folder.Write("r.json", WithValue(nested(depth)))), testing::HasSubstr("nested too deep"))
        << depth;
  }
}

TEST(JsonResult, RejectsAFileThatIsNotThere) {
  const TemporaryFolder folder;
  EXPECT_THAT(Rejection(folder.Path() / "missing.json"), testing::HasSubstr("cannot be read"));
  EXPECT_THAT(Rejection(folder.Path()), testing::HasSubstr("cannot be read"));
}

}  // namespace
