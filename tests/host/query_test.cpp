#include "plugin/query.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "plugin/host_interface/exception.h"
#include "tests/support/fake_namespace.h"
#include "tests/support/one_of_everything.h"
#include "tests/support/query_host.h"
#include "tests/support/raid_log_machine.h"
#include "tests/support/sample_text.h"

namespace {

using namespace NKVRHXA20;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;
using Names = std::vector<std::string>;

TEST(Query, PublishesInTheOrderOfTheHostsList) {
  const ScriptedServices services;
  QueryHost host;
  host.Hold({ControllerWithEverything(&host.log, "1")});
  const Names backwards = {"KVRSG_zxFirmwareVersion", "KVRSG_zxDiskDrive", "KVRSG_zxSCSIProtocolController",
                           "KVRSG_zxProtocolControllerForPhysicalDisk", "KVRSG_zxLogicalDisk"};
  host.Query(backwards);
  EXPECT_EQ(host.PublishedClasses(), backwards);
}

TEST(Query, AClassThatIsNamedTwiceIsPublishedTwice) {
  const ScriptedServices services;
  QueryHost host;
  host.Hold({ControllerWithEverything(&host.log, "1")});
  host.Query({"KVRSG_zxLogicalDisk", "KVRSG_zxLogicalDisk"});
  EXPECT_THAT(host.PublishedClasses(), SizeIs(2));
}

TEST(Query, TheThreeClassesThatAreLeftEmptyYieldNoInstanceAndNoMessage) {
  const ScriptedServices services;
  QueryHost host;
  host.Hold({ControllerWithEverything(&host.log, "1")});
  host.Query({"KVRSG_zxSCSIProtocolController", "KVRSG_zxDiskDrive", "KVRSG_zxDiskGroup"});
  host.log.entries.clear();
  host.Query({"KVRSG_DiskGroup", "KVRSG_zxDriveInDiskGroup", "KVRSG_zxExtenInDiskGroup"});
  EXPECT_THAT(host.PublishedClasses(), IsEmpty());
  EXPECT_THAT(host.log.entries, IsEmpty());
}

TEST(Query, AClassNameThatDiffersOnlyInCaseMatchesNothing) {
  const ScriptedServices services;
  QueryHost host;
  host.Hold({ControllerWithEverything(&host.log, "1")});
  FakeNamespace nameSpace;
  for (const char* const name : {"kvrsg_zxdiskdrive", "KVRSG_ZXDISKDRIVE", "KVRSG_zxDiskDriv", "KVRSG_Unknown", ""}) {
    RunQuery(host.state, &host.log, nameSpace, {nameSpace.GetClass(name, {})});
    EXPECT_THAT(nameSpace.Published(name), IsEmpty()) << name;
  }
  RunQuery(host.state, &host.log, nameSpace, {nameSpace.GetClass("KVRSG_zxDiskDrive", {})});
  EXPECT_THAT(nameSpace.Published("KVRSG_zxDiskDrive"), SizeIs(1));
  EXPECT_THAT(host.log.entries, IsEmpty());
}

TEST(Query, AnEmptyListPublishesNothingAndStillCollects) {
  ScriptedServices services;
  services.answers = AllAnswers();
  QueryHost host;
  host.Query({});
  EXPECT_THAT(host.PublishedClasses(), IsEmpty());
  EXPECT_THAT(services.runs, Not(IsEmpty()));
  EXPECT_FALSE(host.state.collectPending);
  EXPECT_EQ(host.state.callCounter, 1U);
}

TEST(Query, AnAssociationLinksInstancesOfAnEarlierQuery) {
  constexpr const char* kDisk = "KVRSG_zxLogicalDisk";
  constexpr const char* kLink = "KVRSG_zxProtocolControllerForUnit";
  const ScriptedServices services;
  QueryHost host;
  host.Hold({ControllerWithEverything(&host.log, "1"), ControllerWithEverything(&host.log, "2")});
  host.Query({kLink});
  EXPECT_THAT(host.PublishedClasses(), IsEmpty());
  host.Query({"KVRSG_zxSCSIProtocolController", kDisk});
  host.Query({kLink});
  EXPECT_THAT(host.PublishedClasses(), ElementsAre(kLink, kLink));
  // Querying an end again removes its instances until they are published again, here after the association.
  host.Query({kLink, kDisk});
  EXPECT_THAT(host.PublishedClasses(), ElementsAre(kDisk, kDisk));
  host.Query({kDisk, kLink});
  EXPECT_THAT(host.PublishedClasses(), ElementsAre(kDisk, kDisk, kLink, kLink));
  EXPECT_EQ(host.state.callCounter, 5U);
}

TEST(Query, ASecondQueryFindsTheRaidManagersLogReadAndItsRawRecordStillThere) {
  ScriptedServices services;
  const RaidLogMachine machine(services, "2007/03/05 11:02:03 PST\tINF\tSERVER\tText.\r\n");
  QueryHost host;
  host.Hold({});
  const Names names = {"KVRSG_LogRecord_RAIDMgrEvent", "KVRSG_zxManagerRawData"};
  host.Query(names);
  EXPECT_EQ(host.PublishedClasses(), names);
  EXPECT_THAT(host.log.entries, IsEmpty());
  const unsigned counter = ProcessWideEventCounter();

  host.Query(names);
  EXPECT_THAT(host.PublishedClasses(), ElementsAre("KVRSG_zxManagerRawData"));
  EXPECT_EQ(ProcessWideEventCounter(), counter + 1);
  EXPECT_THAT(host.log.entries, ElementsAre(LogEntry{3, "Unexpected end of file reached."}));
}

// Whether hrconf was run on a system of that type.
bool RunsHrconf(std::optional<std::uint16_t> osType) {
  ScriptedServices services;
  services.answers = AllAnswers();
  QueryHost host(osType);
  host.Query({});
  EXPECT_THAT(services.runs, Contains(StartsWith("qcmdrun ")));
  EXPECT_THAT(services.runs, Contains(StartsWith("arcconf ")));
  return std::ranges::any_of(services.runs, [](const std::string& run) { return run.starts_with("hrconf"); });
}

TEST(Query, OnlyAnOsTypeOf82SkipsHrconf) {
  EXPECT_FALSE(RunsHrconf(82));
  EXPECT_TRUE(RunsHrconf(83));
  EXPECT_TRUE(RunsHrconf(0));
}

TEST(Query, AHostWithoutAnOperatingSystemInstanceSkipsNothing) { EXPECT_TRUE(RunsHrconf(std::nullopt)); }

TEST(Query, AnOperatingSystemInstanceWithoutAnOsTypeSkipsNothing) {
  ScriptedServices services;
  services.answers = AllAnswers();
  FakeNamespace nameSpace;
  nameSpace.Add("KVRSG_OperatingSystem", {"Name", "System"});
  RecordingLog log;
  QueryState state;
  RunQuery(state, &log, nameSpace, {});
  EXPECT_THAT(services.runs, Contains(StartsWith("hrconf")));
}

TEST(Query, AFailedCollectionIsLoggedAndTheQueryContinuesWithItsRecords) {
  ScriptedServices services;
  const RaidLogSetting noLog(std::nullopt);
  services.answers = AllAnswers();
  services.answers["qcmdrun getevent 1 soft"] = "Controller Soft Event Log\r\n";  // cut off after its title
  QueryHost host;
  host.Query({"KVRSG_zxSCSIProtocolController", "KVRSG_LogRecord_RAIDMgrEvent", "KVRSG_zxRawData"});
  EXPECT_THAT(host.PublishedClasses(), IsEmpty());
  const auto& entries = host.log.entries;
  const auto aborted = std::ranges::find_if(
      entries, [](const LogEntry& entry) { return entry.text.starts_with("Collection aborted: "); });
  ASSERT_NE(aborted, entries.end());
  EXPECT_EQ(aborted->level, 3);
  EXPECT_GT(aborted->text.size(), std::string("Collection aborted: inside ZxPlugin").size());
  EXPECT_TRUE(aborted->text.ends_with("inside ZxPlugin")) << aborted->text;
  // The RAID manager's log is still searched for, and the classes are published.
  EXPECT_EQ(std::vector<LogEntry>(aborted + 1, entries.end()),
            (std::vector<LogEntry>{
                {3, "Enter CollectRaidMgrData::SetRaidMgrPath()"                         },
                {2, "There are no KVRSG_LogRecord_RAIDMgrEvent Log file or no path to it"},
                {3, "ZenxRawDataVector is empty: inside ZxPlugin"                        }
  }));
  EXPECT_FALSE(host.state.collectPending);
  const std::size_t runs = services.runs.size();
  host.Query({"KVRSG_zxSCSIProtocolController"});
  EXPECT_EQ(services.runs.size(), runs);
}

TEST(Query, RunsTheToolsOnceAlsoWhenTheLogCollectorCannotBeMade) {
  ScriptedServices services;
  const RaidLogMachine machine(services, "2007/03/05 11:02:03 PST\tINF\tSERVER\tText.\r\n");
  services.answers = AllAnswers();
  QueryHost host;
  const HostServices working = CurrentServices();
  HostServices failing = working;
  failing.localTime = [&] {
    if (host.log.entries.back().text.find("CollectRaidMgrData") != std::string::npos) throw THXAException("no clock");
    return working.localTime();
  };
  SetServices(failing);
  EXPECT_THROW(host.Query({"KVRSG_zxSCSIProtocolController"}), THXAException);
  SetServices(working);
  const std::size_t runs = services.runs.size();
  const auto controllers = host.state.collector->GetControllers();
  EXPECT_THAT(controllers, SizeIs(5));

  host.Query({"KVRSG_LogRecord_RAIDMgrEvent", "KVRSG_zxSCSIProtocolController"});
  EXPECT_EQ(services.runs.size(), runs);
  EXPECT_TRUE(host.state.collector->GetControllers() == controllers);
  EXPECT_THAT(host.PublishedClasses(), SizeIs(6));
}

// A host that refuses requests for classes.
class RefusingNamespace final : public ICIMNamespace {
 public:
  boost::shared_ptr<ICIMClass> GetClass(const std::string& name, const TPropertyMap&) override {
    throw THXAException(name + " is refused");
  }
};

TEST(Query, ExceptionsOfTheHostsOperationsPassToTheHost) {
  const ScriptedServices services;
  QueryHost host;
  RefusingNamespace refusing;
  QueryState fresh;
  EXPECT_THROW(RunQuery(fresh, &host.log, refusing, {}), THXAException);
  host.Hold({ControllerWithEverything(&host.log, "1")});
  EXPECT_THROW(RunQuery(host.state, &host.log, refusing, {host.repository->GetClass("KVRSG_zxBiosOnController", {})}),
               THXAException);
}

// Passes every operation on, and keeps the context of requests for classes.
class ListeningNamespace final : public ICIMNamespace {
 public:
  explicit ListeningNamespace(ICIMNamespace& nameSpace) : nameSpace_(nameSpace) {}
  boost::shared_ptr<ICIMClass> GetClass(const std::string& name, const TPropertyMap& context) override {
    asked.push_back(name);
    contexts.push_back(context);
    return nameSpace_.GetClass(name, context);
  }

  Names asked;
  std::vector<TPropertyMap> contexts;

 private:
  ICIMNamespace& nameSpace_;
};

TEST(Query, AsksForClassesInTheNameOfThePlugInNamespace) {
  ScriptedServices services;
  QueryHost host;
  ListeningNamespace listening(*host.repository);
  RunQuery(host.state, &host.log, listening,
           {host.repository->GetClass("KVRSG_zxBiosOnController", {}),
            host.repository->GetClass("KVRSG_ElementBadStripeData", {})});
  EXPECT_THAT(listening.asked,
              testing::UnorderedElementsAre("KVRSG_OperatingSystem", "KVRSG_zxSCSIProtocolController",
                                            "KVRSG_zxBiosVersion", "KVRSG_zxLogicalDisk", "KVRSG_BadStripeData"));
  for (const TPropertyMap& context : listening.contexts) {
    ASSERT_EQ(context.size(), 1U);
    EXPECT_EQ(context.begin()->first, TCIMSchemaHelper::kContextName);
    EXPECT_EQ(std::string(context.begin()->second), TCIMSchemaHelper::kPluginNSPName);
  }
}

}  // namespace
