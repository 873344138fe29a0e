#include "host/hxahost/views/tables/table_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/filled_repository.h"
#include "tests/support/healthy_machine.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;
using testing::HasSubstr;
using testing::Not;

QueryHeader Header(const std::vector<std::string>& classes, unsigned queryCount = 1) {
  QueryHeader header{"MACHINE", "C:\\tools", TCIMDateTime(2026, 3, 5, 12, 30, 15, 0, 60), classes, queryCount};
  header.showAll = true;
  return header;
}

std::string Tables(const QueryHeader& header, const std::vector<QueryResult>& results) {
  std::ostringstream out;
  BeginTables(out, header);
  for (const QueryResult& result : results) WriteQueryTables(out, header, result);
  EndTables(out, header);
  return out.str();
}

TEST(TableView, BeginsWithMachineAndTimeThenBlocksSectionsAndCounts) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxFirmwareVersion", "Name", "Zentraxis1 Firmware");
  repository.Publish("KVRSG_zxSCSIProtocolController", "ControllerNum", "1", "ControllerStatus", "Okay");
  const QueryHeader header = Header({"KVRSG_zxFirmwareVersion", "KVRSG_zxSCSIProtocolController", "KVRSG_zxDiskDrive"});
  const QueryResult result{1, repository.Instances(), {}};
  EXPECT_EQ(Tables(header, {result}),
            R"(RAID controllers of MACHINE on 2026-03-05 12:30:15 +01:00, collected in C:\tools

Controller 1 - Okay

Versions
  Name
  Zentraxis1 Firmware

  Class asked for                 Instances
  KVRSG_zxFirmwareVersion         1
  KVRSG_zxSCSIProtocolController  1
  KVRSG_zxDiskDrive               0

Runs of the tools
  qcmdrun: not run
  hrconf_64: not run
  arcconf: not run
)");
}

TEST(TableView, BeginsWithTheFaultsAndLeavesOutUnimportantClasses) {
  HealthyMachine machine;
  const std::string healthy = Tables(machine.Header(), {machine.Result()});
  EXPECT_THAT(healthy, HasSubstr("\n\nOK       no fault found\n\nController 1"));
  EXPECT_THAT(healthy, Not(HasSubstr("Class asked for")));
  machine.SetOf("Zentraxis2LD1", "LogicalDriveStatus", "Degraded");
  EXPECT_THAT(Tables(machine.Header(), {machine.Result()}),
              HasSubstr("\n\nCRITICAL 1 critical\n\ncritical C2 \"Data\" "));
  QueryHeader withoutDisks = machine.Header();
  std::erase(withoutDisks.classes, "KVRSG_zxDiskDrive");
  EXPECT_THAT(Tables(withoutDisks, {machine.Result()}), Not(HasSubstr("CRITICAL"))) << "a verdict on less misleads";
}

TEST(TableView, ReportsThatNothingWasFoundAndWhichToolsCouldNotBeRun) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "Command", "zenx//hrconf_64.exe getversion  nuthin");
  ToolRun run;
  run.path = "zenx//qcmdrun.exe";
  run.arguments = {"getconfig", "1", "al"};
  run.outcome = Outcome::kNotStarted;
  run.failure = "zenx//qcmdrun.exe: No such file or directory";
  EXPECT_EQ(Tables(Header({
                       "KVRSG_zxRawData"
  }),
                   {QueryResult{1, repository.Instances(), {}, {run, run}}}),
            R"(RAID controllers of MACHINE on 2026-03-05 12:30:15 +01:00, collected in C:\tools

Nothing was found: no controller, no drive and no log record of the classes asked for.
Not started: zenx//qcmdrun.exe

  Raw texts of         Commands  Answered  Lines
  zenx//hrconf_64.exe  1         0         0

  Class asked for  Instances
  KVRSG_zxRawData  1

Runs of the tools
  qcmdrun: 2 runs, no controller answered, 2 not started, 0.0 s
    not started (2 runs, the first getconfig 1 al): zenx//qcmdrun.exe: No such file or directory
  hrconf_64: not run
  arcconf: not run
  Tools belong into the folder zenx of C:\tools.
)");
}

TEST(TableView, BlamesNoToolThatWasNotRun) {
  EXPECT_EQ(Tables(Header({
                       "KVRSG_zxDiskDrive"
  }),
                   {QueryResult{1, {}, {{3, "configData is not empty!\n"}}}}),
            R"(RAID controllers of MACHINE on 2026-03-05 12:30:15 +01:00, collected in C:\tools

Nothing was found: no controller, no drive and no log record of the classes asked for.

  Class asked for    Instances
  KVRSG_zxDiskDrive  0

Runs of the tools
  qcmdrun: not run
  hrconf_64: not run
  arcconf: not run
)");
}

TEST(TableView, KeepsItsFirstLineWithinTheWidth) {
  QueryHeader header = Header({});
  header.directory = std::string(200, 'd') + "\n";
  EXPECT_EQ(Tables(header, {}), "RAID controllers of MACHINE on 2026-03-05 12:30:15 +01:00, collected in " +
                                    std::string(27, 'd') + "\u2026\n");
}

TEST(TableView, NumbersTheQueriesWhereThereAreSeveral) {
  EXPECT_EQ(Tables(Header(
                       {
  },
                       2),
                   {QueryResult{1, {}, {}}, QueryResult{2, {}, {}}}),
            R"(RAID controllers of MACHINE on 2026-03-05 12:30:15 +01:00, collected in C:\tools

Query 1 of 2

Nothing was found: no controller, no drive and no log record of the classes asked for.


Runs of the tools
  qcmdrun: not run
  hrconf_64: not run
  arcconf: not run

Query 2 of 2

Nothing was found: no controller, no drive and no log record of the classes asked for.


Runs of the tools
  none: the answers are those of the first query
)");
}

}  // namespace
