#include "host/hxahost/views/cim/mof_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "host/hxacore/value_reader.h"
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

// Query 1 of 1.

instance of KVRSG_LogRecord_SoftEvent {
  RecordID = "1";
  MessageTimestamp = "20260305123015.250000-060";
  HexSoftEvent = {
    4294967295,
    7
  };
};

instance of KVRSG_zxFirmwareVersion {
  Name = "Zentraxis1 \"Firmware\"";
  SoftwareElementState = 3;
  Version = NULL;
};

instance of KVRSG_zxRawData {
  RawResults = {
    "a\\",
    ""
  };
};
)");
}

TEST(MofView, ShowsAReferenceAsTheObjectPathOfWhatItRefersTo) {
  FilledRepository repository;
  const TCIMReference group = repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "a\"b\\c");
  repository.Publish("KVRSG_zxStripeOrderForController", "Dependent", group);
  EXPECT_THAT(Mof(repository), HasSubstr(R"(
  Dependent = "KVRSG_zxDiskGroup.CollectionID=\"a\\\"b\\\\c\"";
)"));
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
