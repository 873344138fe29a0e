#include "host/hxahost/views/cim/mof_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/result/unique_paths.h"
#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;
using testing::HasSubstr;

std::string Mof(const std::vector<QueryResult>& results) {
  QueryHeader header;
  header.machine = "MACHINE";
  header.time = TCIMDateTime("20260305123015.250000+060");
  header.queryCount = static_cast<unsigned>(results.size());
  std::ostringstream out;
  BeginMof(out, header);
  for (const QueryResult& result : results) WriteQueryMof(out, header, result);
  EndMof(out, header);
  return out.str();
}

std::string Mof(const FilledRepository& repository) {
  return Mof({
      QueryResult{1, repository.Instances(), {}}
  });
}

TCIMValue TwoCodes() {
  return {
      kCIMUInt32, 0, {4294967295U, 7U}
  };
}
TCIMValue Nothings() { return {kCIMString, 0, {TCIMValue()}}; }

TEST(MofView, ShowsInstancesWithAllKindsOfValues) {
  FilledRepository repository;
  repository.Publish("KVRSG_LogRecord_SoftEvent", "RecordID", "1", "MessageTimestamp",
                     TCIMDateTime("20260305123015.250000-060"), "HexSoftEvent", TwoCodes());
  repository.Publish("KVRSG_zxFirmwareVersion", "Name", "Zentraxis1 \"Firmware\"", "SoftwareElementState",
                     static_cast<unsigned short>(3), "Version", TCIMValue());
  repository.Publish("KVRSG_zxRawData", "RawResults", Texts({"a\\", ""}));
  EXPECT_EQ(Mof(repository),
            R"(// What was published on MACHINE at 20260305123015.250000+060. "hxahost schema" has the classes.
#pragma namespace("root/cimv2")

// Query 1 of 1.

instance of KVRSG_LogRecord_SoftEvent {
  SystemCreationClassName = "KVRSG_ComputerSystem";
  SystemName = "M";
  RecordID = "1";
  MessageTimestamp = "20260305123015.250000-060";
  HexSoftEvent = {
    4294967295,
    7
  };
};

instance of KVRSG_zxFirmwareVersion {
  SystemCreationClassName = "KVRSG_ComputerSystem";
  SystemName = "M";
  Name = "Zentraxis1 \"Firmware\"";
  SoftwareElementState = 3;
  Version = NULL;
};

instance of KVRSG_zxRawData {
  SystemCreationClassName = "KVRSG_ComputerSystem";
  SystemName = "M";
  RawResults = {
    "a\\",
    ""
  };
};
)");
}

TEST(MofView, DeclaresAnAliasBeforeTheReferenceThatUsesIt) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "no link names it");
  const TCIMReference group = repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "a");
  repository.Publish("KVRSG_zxStripeOrderForController", "Dependent", group);
  EXPECT_THAT(Mof(repository), HasSubstr(R"(
instance of KVRSG_zxDiskGroup {
  SystemCreationClassName = "KVRSG_ComputerSystem";
  SystemName = "M";
  CollectionID = "no link names it";
};

instance of KVRSG_zxDiskGroup as $Query1Instance1 {
  SystemCreationClassName = "KVRSG_ComputerSystem";
  SystemName = "M";
  CollectionID = "a";
};

instance of KVRSG_zxStripeOrderForController {
  Dependent = $Query1Instance1;
};
)"));
}

TEST(MofView, ShowsAReferenceToAnUnqueriedInstanceAsItsObjectPath) {
  FilledRepository repository;
  const TCIMReference group = FilledRepository().Publish("KVRSG_zxDiskGroup", "CollectionID", "a\"b\\c");
  repository.Publish("KVRSG_zxStripeOrderForController", "Dependent", group);
  EXPECT_THAT(Mof(repository), HasSubstr(R"(
  Dependent = "KVRSG_zxDiskGroup.CollectionID=\"a\\\"b\\\\c\",SystemCreationClassName=\"KVRSG_ComputerSystem\",)"
                                         R"(SystemName=\"M\"";
)"));
}

TEST(MofView, HasNoValueForATimeThatThereIsNoneOf) {
  FilledRepository repository;
  repository.Publish("KVRSG_LogRecord_RAIDMgrEvent", "MessageTimestamp", TCIMDateTime(12345, 0, 5, 1, 2, 3, 0, -60));
  EXPECT_THAT(Mof(repository), HasSubstr("\n  MessageTimestamp = NULL;  // published: 123450005010203.000000-060\n"));
}

TEST(MofView, NamesOmittedInstancesInComments) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "a\n};");
  QueryResult result;
  result.leftOut = {LeftOutText(*repository.Instances().front())};
  EXPECT_THAT(Mof({result}), HasSubstr("\n// Left out, as another instance has its path: "
                                       "KVRSG_zxDiskGroup.CollectionID=\"a\\n};\","));
}

TEST(MofView, DeclaresTheClassesBeforeTheInstancesWithSuperclasses) {
  QueryHeader header;
  header.withSuperclasses = true;
  std::ostringstream out;
  BeginMof(out, header);
  EXPECT_THAT(out.str(), HasSubstr("\nclass KVRSG_zxDiskDrive : CIM_DiskDrive {\n"));
}

TEST(MofView, KeepsAnEmptyArrayAndElementsWithoutAValue) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxRawData", "RawResults", Texts({}));
  repository.Publish("KVRSG_zxRawData", "RawResults", Nothings());
  EXPECT_THAT(Mof(repository), HasSubstr("  RawResults = { };\n"));
  EXPECT_THAT(Mof(repository), HasSubstr("  RawResults = {\n    NULL\n  };\n"));
}

TEST(MofView, KeepsNamesAsTheyWereSet) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskDrive", "CreationClassname", "KVRSG_zxDiskDrive");
  EXPECT_THAT(Mof(repository), HasSubstr("\n  CreationClassname = \"KVRSG_zxDiskDrive\";\n"));
}

TEST(MofView, HeadsEachQuery) {
  const std::string mof = Mof({
      QueryResult{1, {}, {}},
      QueryResult{2, {}, {}}
  });
  EXPECT_THAT(mof, HasSubstr("\n// Query 1 of 2.\n\n// Query 2 of 2.\n"));
}

}  // namespace
