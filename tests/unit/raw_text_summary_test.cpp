#include "host/hxahost/views/tables/raw_text_summary.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;

std::string Summary(const FilledRepository& repository) {
  std::ostringstream out;
  WriteRawTextSummary(out, {}, repository.Instances());
  return out.str();
}

TEST(RawTextSummary, CountsCommandsAnswersAndLinesOfEachTool) {
  FilledRepository repository;
  const auto publish = [&](const char* className, const char* command, const std::vector<std::string>& lines) {
    repository.Publish(className, "Command", command, "RawResults", Texts(lines));
  };
  publish("KVRSG_zxManagerRawData", "C:\\Program Files\\RaidEvtA.log", {"1", "2", "3"});
  publish("KVRSG_zxRawData", "zenx//qcmdrun.exe getconfig 1 al", {"1", "2"});
  publish("KVRSG_zxRawData", "zenx//qcmdrun.exe getconfig 2 al", {});
  publish("KVRSG_zxRawData", "zenx//arcconf.exe getconfig 1 al", {"1"});
  publish("KVRSG_zxRawData", "zenx//qcmdrun.exe getevent 2 ddd", {"1"});
  EXPECT_EQ(Summary(repository), R"(
  Raw texts of                   Commands  Answered  Lines
  C:\Program Files\RaidEvtA.log  1         1         3
  zenx//qcmdrun.exe              3         2         3
  zenx//arcconf.exe              1         1         1
)");
}

TEST(RawTextSummary, IsNothingWithoutRawTexts) { EXPECT_EQ(Summary(FilledRepository()), ""); }

}  // namespace
