#include "host/hxahost/program/query_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>

#include "host/hxahost/system/exit_status.h"
#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;
namespace fs = std::filesystem;
using testing::HasSubstr;

// The output fails at the second query, like a full disk or a broken view.
TEST(QueryCommand, ReportsThatTheOutputOfAFailedQueryIsIncomplete) {
  const fs::path before = fs::current_path();
  const TemporaryFolder folder;
  QueryOptions options;
  options.collection.directory = folder.Path();
  options.classes = {"KVRSG_zxDiskDrive"};
  options.repeat = 2;
  options.format = "json";
  options.collection.showProgress = false;
  QueryDisplay display;
  display.begin = [](std::ostream& out, const QueryHeader&) { out << "begin "; };
  display.query = [](std::ostream& out, const QueryHeader&, const QueryResult& result) {
    if (result.number == 2) throw std::runtime_error("it broke");
    out << "first ";
  };
  display.end = [](std::ostream& out, const QueryHeader&) { out << "end"; };
  std::ostringstream out;
  std::ostringstream err;
  std::string failure;
  try {
    RunQueries(options, display, out, err);
  } catch (const ProgramError& error) {
    EXPECT_EQ(error.Status(), ExitStatus::kQueryFailed);
    failure = error.what();
  }
  fs::current_path(before);  // the program changes to the folder of the tools
  EXPECT_THAT(failure,
              HasSubstr("it broke. --log FILE shows how far it came. What was written before this is not whole."));
  EXPECT_EQ(out.str(), "begin first ") << "and never its end";
}

}  // namespace
