#include "host/hxahost/views/report/summary.h"

#include <gmock/gmock.h>

#include <sstream>
#include <string>

#include "tests/support/healthy_machine.h"

namespace {

using namespace hxahost;
using testing::HasSubstr;
using testing::Not;

std::string Summary(const QueryHeader& header, const QueryResult& result) {
  std::ostringstream out;
  WriteSummaryHtml(out, header, BuildMachine(header, result));
  return out.str();
}

std::string Summary(const HealthyMachine& machine) { return Summary(machine.Header(), machine.Result()); }

TEST(Summary, CallsAMachineFineOnlyWhereEverythingWasLookedAt) {
  const HealthyMachine machine;
  EXPECT_THAT(Summary(machine), HasSubstr("<p class=\"verdict level-ok\">"));
  EXPECT_THAT(Summary(machine), Not(HasSubstr("class=\"incident")));
  QueryHeader part = machine.Header();
  part.classes = {"KVRSG_zxDiskDrive"};
  EXPECT_THAT(Summary(part, machine.Result()), HasSubstr("verdict level-unsaid"));
  EXPECT_THAT(Summary(part, machine.Result()), HasSubstr("so not judged: KVRSG_zxSCSIProtocolController, "));
  EXPECT_THAT(Summary(machine.Header(), {}), HasSubstr("verdict level-unknown"));
}

TEST(Summary, ShowsItsOrigin) {
  QueryHeader header = HealthyMachine().Header();
  header.directory = "C:\\<tools>";
  std::ostringstream out;
  WriteOriginHtml(out, header);
  EXPECT_EQ(out.str(), "<p>Collected on 2026-11-21 09:30:00 +01:00 in C:\\&lt;tools&gt;</p>\n");
  header.isReplayed = true;
  WriteOriginHtml(out, header);
  EXPECT_THAT(out.str(), HasSubstr(SourceNote(header)));
}

TEST(Summary, ShowsTheActionOfAnIncidentAndLinksToTheDisk) {
  HealthyMachine machine;
  machine.SetOf("C2 CH0 I00:Controller: Device #0", "State", "Failed");
  const std::string summary = Summary(machine);
  EXPECT_THAT(summary, HasSubstr("<p class=\"verdict level-critical\">"));
  EXPECT_THAT(summary, HasSubstr("CRITICAL: 1 critical</p>"));
  EXPECT_THAT(summary, HasSubstr("<li class=\"incident level-critical\">"));
  EXPECT_THAT(summary, HasSubstr("PULL channel 0, ID 0"));
  EXPECT_THAT(summary, HasSubstr("<a href=\"#object-12\">channel 0, ID 0</a>"));
  EXPECT_THAT(summary, HasSubstr("<a class=\"disk level-critical\" href=\"#object-12\""));
}

TEST(Summary, MakesNoMarkupOfTextsOfTools) {
  HealthyMachine machine;
  const std::string hostile = "\"><img src=x onerror='alert(1)'>&amp;\x1b[31m";
  for (HealthyMachine::Device& device : machine.devices) {
    for (auto& [name, value] : device.properties) {
      const bool isShown = name.ends_with("Status") || name == "State" || name == "ControllerType";
      if (isShown || name == "LogicalDriveName" || name == "RaidLevel") value = hostile;
    }
  }
  const std::string summary = Summary(machine);
  EXPECT_THAT(summary, HasSubstr("&quot;&gt;&lt;img src=x onerror=&#39;alert(1)&#39;&gt;&amp;amp;\\x1b[31m"));
  EXPECT_THAT(summary, Not(HasSubstr("<img")));
  EXPECT_THAT(summary, Not(HasSubstr("onerror='")));
}

}  // namespace
