#include "host/hxahost/views/tables/record_sections.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "host/hxahost/views/controller_columns.h"
#include "host/hxahost/views/record_columns.h"
#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;

std::string Sections(const FilledRepository& repository, bool showAll = true) {
  QueryHeader header;
  header.showAll = showAll;
  QueryResult result;
  result.instances = repository.Instances();
  std::ostringstream out;
  WriteRecordSections(out, header, result.instances, BuildMachine(header, result));
  return out.str();
}

TEST(RecordSections, NamePropertiesThatOneOfTheirClassesDeclares) {
  for (const RecordSection& section : RecordSections()) {
    for (const InstanceColumn& column : section.columns) {
      bool isDeclared = column.property.empty();
      for (const std::string_view name : section.classes) {
        const auto* const declaration = FindClass(name);
        ASSERT_NE(declaration, nullptr) << name;
        isDeclared = isDeclared || FindProperty(*declaration, column.property) != nullptr;
      }
      EXPECT_TRUE(isDeclared) << section.heading << ": " << column.property;
    }
  }
}

TEST(RecordSections, AndControllerBlocksShowEveryClassExceptThoseThatAreOnlyCounted) {
  std::multiset<std::string_view> shown;
  for (const DeviceKind& kind : DeviceKinds()) shown.insert(kind.className);
  for (const RecordSection& section : RecordSections()) shown.insert(section.classes.begin(), section.classes.end());
  for (const ClassDeclaration& declaration : PublishedClasses()) {
    const bool isRawText = declaration.name.ends_with("RawData");
    const bool isCountedOnly = declaration.isAssociation || isRawText || declaration.name == "KVRSG_DiskGroup";
    EXPECT_EQ(shown.count(declaration.name), isCountedOnly ? 0U : 1U) << declaration.name;
  }
}

TEST(RecordSections, ShowNothingWithoutInstances) { EXPECT_EQ(Sections(FilledRepository()), ""); }

TEST(RecordSections, ShowVersionsOfAllKindsInOneTable) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxFirmwareVersion", "Name", "Zentraxis1 Firmware", "Version", "5.2-0 (12345)",
                     "BuildNumber", "12345", "SoftwareElementState", static_cast<unsigned short>(3),
                     "SoftwareElementID", "1");
  repository.Publish("KVRSG_zxDiskDriveVersion", "Name", "Zentraxis Disk", "Version", "5.2-0 ", "SoftwareElementID",
                     "1-C1 CH0 I03:3KR0", "Manufacturer", "SEAGULL");
  repository.Publish("KVRSG_zxDiskDrive", "ControllerNum", "1", "DeviceID", "C1 CH0 I03:3KR0", "Channel", "0", "ScsiId",
                     "3", "DeviceSerialNum", "3KR0");
  EXPECT_EQ(Sections(repository), R"(
Versions
  Controller  Location         Serial  Version        Name                 Build  Manufac…  Element
  C1                                   5.2-0 (12345)  Zentraxis1 Firmware  12345            1
  C1          channel 0, ID 3  3KR0    5.2-0          Zentraxis Disk              SEAGULL   1-C1 CH…
)");
}

// If two controllers share the number, each record shows its own controller, or that it is not known.
TEST(RecordSections, DistinguishControllersWithOneNumber) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxSCSIProtocolController", "ControllerNum", "3", "ReadAhead", "On");
  repository.Publish("KVRSG_zxSCSIProtocolController", "ControllerNum", "3", "VPD", "7");
  for (const char* const version : {"1.0", "2.0"}) {
    repository.Publish("KVRSG_zxBiosVersion", "Version", version, "SoftwareElementID", "3");
  }
  repository.Publish("KVRSG_zxFirmwareVersion", "Version", "3.0", "SoftwareElementID", "3");
  repository.Publish("KVRSG_BadStripeData", "ControllerNum", "3", "LogicalDrive", "2", "NumBadStripes", "0");
  repository.Publish("KVRSG_LogRecord_SoftEvent", "ControllerNum", "3", "NumEntries", "1");
  EXPECT_EQ(Sections(repository), R"(
Soft events
  Controller    Entries
  C3 (qcmdrun)  1

Versions
  Controller           Version  Element
  C3 (qcmdrun)         1.0      3
  C3 (arcconf)         2.0      3
  C3 (tool not known)  3.0      3

Bad stripes
  Controller           Logical drive  Bad stripes
  C3 (tool not known)  2              0
)");
}

TEST(RecordSections, ShowStatisticsAndLogs) {
  FilledRepository repository;
  const TCIMDateTime time(2026, 3, 5, 12, 30, 15, 0, 60);
  const TCIMValue softCodes(kCIMUInt32, 0, {TCIMValue(255U)});
  const TCIMValue hardCodes(kCIMUInt32, 0, {TCIMValue(16U)});
  repository.Publish("KVRSG_BadStripeData", "ControllerNum", "1", "LogicalDrive", "2", "NumBadStripes", "3");
  repository.Publish("KVRSG_zxSCSIDeviceData", "StatisticTime", time, "ControllerNum", "1", "Channel", "0", "Misc", "m",
                     "NumHardErrors", "h", "NumParityErrors", "p", "NumSoftErrors", "s", "PFA", "f", "ScsiId", "3");
  repository.Publish("KVRSG_zxSCSISubStatData", "ControllerNum", "1", "Channel", "0", "ScsiId", "3", "Params", "p",
                     "Req_Off", "r", "Max_Txer_P", "max", "Cur_Txer_p", "cur");
  repository.Publish("KVRSG_LogRecord_zxDDD", "Controller", "1", "RecordID", "7", "Date", "03/05/26", "Time",
                     "12:30:15", "Channel", "0", "ID", "3", "Reason", "0x24", "Descrip", "Timed out\r");
  repository.Publish("KVRSG_LogRecord_SoftEvent", "MessageTimestamp", time, "ControllerNum", "1", "NumEntries", "1",
                     "HexSoftEvent", softCodes);
  repository.Publish("KVRSG_LogRecord_HardEvent", "MessageTimestamp", time, "ControllerNum", "1", "NumEntries", "1",
                     "HexHardEvent", hardCodes);
  repository.Publish("KVRSG_LogRecord_RAIDMgrEvent", "MessageTimestamp", time, "RecordID", "1", "Severity", "Error",
                     "MachineName", "M", "Message", "Bad disk");
  const std::string events = R"(
Defunct drives log
  Controller  Date      Time      Channel  ID  Description  Reason  Record
  C1          03/05/26  12:30:15  0        3   Timed out    0x24    7

Soft events
  Controller  Entries  Codes
  C1          1        0x000000ff

Hard events
  Controller  Entries  Codes
  C1          1        0x00000010

RAID manager events
  Time                        Severity  Message   Machine  Record
  2026-03-05 12:30:15 +01:00  Error     Bad disk  M        1
)";
  EXPECT_EQ(Sections(repository, false), events);
  EXPECT_EQ(Sections(repository), events + R"(
Bad stripes
  Controller  Logical drive  Bad stripes
  C1          2              3

Device statistics
  Controller  Channel  ID  Hard errors  Soft errors  Parity errors  Misc  PFA
  C1          0        3   h            s            p              m     f

SCSI sub-status
  Controller  Channel  ID  Parameters  Req/Off  Highest transfer  Current transfer
  C1          0        3   p           r        max               cur
)");
}

}  // namespace
