#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "host/hxahost/text/utf8.h"
#include "tests/support/file_text.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/temporary_folder.h"

namespace {

using hxahost::Utf8FromPath;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

ProgramResult WriteReport(const std::vector<std::string>& furtherArguments) {
  std::vector<std::string> arguments = {"query", "--format", "html", "--replay", RecordedSampleMachine()};
  arguments.insert(arguments.end(), furtherArguments.begin(), furtherArguments.end());
  return RunHxahost(arguments);
}

nlohmann::ordered_json QueryData(const std::string& page) {
  const std::string begin = "id=\"query-data\">";
  const std::size_t first = page.find(begin) + begin.size();
  return nlohmann::ordered_json::parse(page.substr(first, page.find("</script>", first) - first));
}

TEST(Report, ContainsTheJsonOfTheSampleMachine) {
  const ProgramResult result = WriteReport({});
  ASSERT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_THAT(result.out, StartsWith("<!DOCTYPE html>\n"));
  EXPECT_THAT(result.out, EndsWith("</html>\n"));
  const ProgramResult json = RunHxahost({"query", "--format", "json", "--replay", RecordedSampleMachine()});
  EXPECT_EQ(QueryData(result.out), nlohmann::ordered_json::parse(json.out));
}

TEST(Report, NeedsNoFileBesideTheProgramAndIsWrittenByteForByte) {
  const TemporaryFolder folder;
  const auto file = folder.Path() / "report.html";
  ASSERT_EQ(WriteReport({"--output", Utf8FromPath(file)}).exitStatus, 0);
  const std::string page = FileText(file);
  EXPECT_EQ(page, WriteReport({}).out);
  EXPECT_EQ(page.find('\r'), page.npos);
}

TEST(Report, IsNotWrittenIfTheQueryFails) {
  const TemporaryFolder folder;
  const auto file = folder.Path() / "report.html";
  const ProgramResult result = WriteReport({"--output", Utf8FromPath(file), "--plugin", "no such plug-in"});
  EXPECT_EQ(result.exitStatus, 3);
  EXPECT_FALSE(std::filesystem::exists(file));
  const ProgramResult nowhere = WriteReport({"--output", Utf8FromPath(folder.Path() / "none" / "report.html")});
  EXPECT_EQ(nowhere.exitStatus, 2);
  EXPECT_THAT(nowhere.err, HasSubstr("--output"));
}

}  // namespace
