#include "tools/arcconf/arcconf_adapter.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "plugin/host_interface/services.h"
#include "tests/support/adapter_test.h"
#include "tests/support/filled_fields.h"

namespace {

using namespace NKVRHXA20;

const std::string kNoControllers = CrLf("Controllers found: 0\nCommand completed successfully.\n");
const std::string kInvalidNumber = CrLf("Controllers found: 2\nInvalid controller number.\n");

// One drive and one device, in as few lines as possible.
std::string Config(const std::string& serial) {
  return CrLf("Controller information\n   Controller Serial Number : " + serial +
              "\n"
              "Logical drive information\n----\n"
              "Logical drive number 1\n   Size : 100 MB\n\n"
              "Physical Device information\n----\n"
              "   Device #0\n   Device is a Hard drive\n   State : Online\n"
              "Command completed successfully.\n");
}

class ArcconfDataTest : public AdapterTest {
 protected:
  ArcconfDataTest() : AdapterTest("arcconf", kNoControllers) {}

  // The five commands whose output is kept.
  std::vector<std::string> RecordedRuns(unsigned number) const {
    const std::string logs = "arcconf getlogs " + std::to_string(number);
    return {GetConfig(number), logs + " device", logs + " dead", logs + " event", logs + " uart"};
  }

  void AddController(unsigned number, const std::string& serial) {
    for (const std::string& run : RecordedRuns(number)) services_.answers[run] = "output of " + run + "\r\n";
    services_.answers[GetConfig(number)] = Config(serial);
  }

  void Collect(unsigned firstControllerNumber = 0) {
    CollectBy(ArcconfData(TRootObject::GetCoreLogger()), firstControllerNumber);
  }

  std::string CollectOne(const std::string& config) override {
    services_.answers[GetConfig(1)] = config;
    for (const std::string& run : RecordedRuns(1)) services_.answers.emplace(run, "");
    Collect();
    return Summary(controllers_);
  }

  // D is replaced by "Device"; found lists the numbers of the devices.
  void ExpectDevices(const char* name, const std::string& section, const std::string& found) {
    CollectOne(CrLf("Controller information\nPhysical Device information\n----\n" + Replaced(section, "D ", "Device ") +
                    "Command completed successfully.\nDevice #9\n Device is a Hard drive\n"));
    std::string numbers;
    ASSERT_EQ(controllers_.size(), 1u) << name;
    for (const auto& each : controllers_[0]->PhysicalDevices) numbers += each->DeviceNumber.at(8);
    EXPECT_EQ(numbers, found) << name;
  }
};

TEST_F(ArcconfDataTest, RequestsTwiceAndFindsNothingOnAMachineWithoutControllers) {
  Collect();
  EXPECT_EQ(services_.runs, (std::vector<std::string>{GetConfig(1), GetConfig(1)}));
  EXPECT_TRUE(controllers_.empty());
  EXPECT_TRUE(rawData_.empty());
}

TEST_F(ArcconfDataTest, EndsAtTheFirstNumberWithTheAnswerThatThereAreNoControllers) {
  AddController(1, "A");
  AddController(3, "C");
  Collect();
  EXPECT_EQ(controllers_.size(), 1u);
  EXPECT_EQ(rawData_.size(), 5u);
}

TEST_F(ArcconfDataTest, EndsParsingAtADriverMismatchAndKeepsTheRecord) {
  AddController(1, "A");
  AddController(2, "B");
  services_.answers[GetConfig(2)] = Config("B") + "Driver Update Required\r\n";
  AddController(3, "C");
  Collect();
  EXPECT_EQ(Summary(controllers_), "1 A\n drive 1| 100 MB\n device Controller: Device #0|Hard drive| Online\n");
  EXPECT_EQ(rawData_.size(), 15u);
  EXPECT_EQ(services_.runs.back(), GetConfig(2));
  ASSERT_GE(services_.log.size(), 2u);
  EXPECT_EQ(services_.log[services_.log.size() - 2].level, 100);
  EXPECT_EQ(services_.log.back().level, 101);
  const auto isMismatch = [](const LogEntry& entry) { return entry.level >= 100; };
  EXPECT_EQ(std::count_if(services_.log.begin(), services_.log.end(), isMismatch), 2);
}

TEST_F(ArcconfDataTest, PrefersNoControllersToADriverMismatchAndThatToAnInvalidNumber) {
  services_.answers[GetConfig(1)] = "Driver Update Required\r\n" + kNoControllers;
  Collect();
  EXPECT_EQ(services_.log.back().level, 3);
  services_.answers[GetConfig(1)] = "Driver Update Required\r\n" + kInvalidNumber;
  Collect();
  EXPECT_EQ(services_.log.back().level, 101);
}

TEST_F(ArcconfDataTest, ContinuesAfterAnAnswerThatIsNotAReport) {
  AddController(2, "B");
  for (const std::string& answer :
       {std::string(), std::string("nonsense\r\n"), std::string("Controller information")}) {
    services_.answers[GetConfig(1)] = answer;
    Collect();
    EXPECT_EQ(Summary(controllers_), "2 B\n drive 1| 100 MB\n device Controller: Device #0|Hard drive| Online\n")
        << answer;
  }
}

TEST_F(ArcconfDataTest, LetsFailuresThatAreNotTheHostsPass) {
  HostServices services = CurrentServices();
  services.spawn = [](const std::string&, const std::vector<std::string>&, int) -> std::string {
    throw std::bad_alloc();
  };
  SetServices(services);
  EXPECT_THROW(Collect(), std::bad_alloc);
}

TEST_F(ArcconfDataTest, ReadsLogicalDrivesThatFollowEachOther) {
  ExpectDrives("a line between", "LD number 1\n  Size : 1\n\nLD number 2\n  Size : 2\n\n",
               " drive 1| 1\n drive 2| 2\n");
  ExpectDrives("no line between", "LD number 1\n  Size : 1\nLD number 2\n  Size : 2\n\n", " drive 1| 1\n drive 2| 2\n");
  ExpectDrives("two lines between", "LD number 1\n  Size : 1\n\n\nLD number 2\n\n", " drive 1| 1\n");
  ExpectDrives("no number", "LD number\n  Size : 1\n\n", " drive | 1\n");
  ExpectDrives("a long number", "LD number 12 (12)\n  Size : 1\n\n", " drive 12 (12)| 1\n");
  ExpectDrives("indented", "   LD number 1\n\n\n", " drive 1|\n");
  ExpectDrives("a stripe order",
               "LD number 1\n  Defunct segments : No\n  Stripe order (Channel,Device) : 0,0\n\nLD number 2\n\n",
               " drive 1|\n drive 2|\n order 1LogicalDrv1 0,0\n");
  ExpectDrives("a stripe order of two lines",
               "LD number 1\n  Defunct segments : No\n  Stripe order (Channel,Device) : 0,0\n 0,1\n\nLD number 2\n\n",
               " drive 1|\n drive 2|\n order 1LogicalDrv1 0,0 0,1\n");
  ExpectDrives(
      "of three lines",
      "LD number 1\n  Defunct segments : No\n  Stripe order (Channel,Device) : 0,0\n 0,1\n 0,2\nLD number 2\n\n",
      " drive 1|\n drive 2|\n order 1LogicalDrv1 0,0 0,1\n");
  ExpectDrives("directly followed",
               "LD number 1\n  Defunct segments : No\n  Stripe order (Channel,Device) : 0,0\nLD number 2\n\n\n",
               " drive 1|\n order 1LogicalDrv1 0,0\n");
  ExpectDrives("a stripe order of the drive",
               "LD number 1\n  Stripe order (Channel,Device) : 0,0\n  Defunct segments : No\n\nLD number 2\n\n",
               " drive 1|\n drive 2|\n");
  ExpectDrives("no drive", "No logical drives\n\n", "");
}

TEST_F(ArcconfDataTest, AttachesAStripeOrderWithoutAListEmpty) {
  CollectOne(
      CrLf("Controller information\nLogical drive information\n----\n"
           "Logical drive number 1\n  Defunct segments : No\n  Stripe order : 0,0\n\n\n"));
  ASSERT_EQ(controllers_.size(), 1u);
  ASSERT_EQ(controllers_[0]->StripeOrders.size(), 1u);
  EXPECT_EQ(FilledFields(*controllers_[0]->StripeOrders[0]), (std::set<std::string>{"ControllerNum=1"}));
}

TEST_F(ArcconfDataTest, WalksTheDevicesThatFollowEachOther) {
  ExpectDevices("one after the other", "D #0\n D is a Hard drive\n State : 0\nD #1\n D is a Hard drive\n State : 1\n",
                "01");
  ExpectDevices("passed over after a gap",
                "D #0\n D is a Hard drive\n State : 0\n\nD #1\n D is a Hard drive\n State : 1\n", "0");
  ExpectDevices("the next is passed over too",
                "D #0\n D is a Hard drive\n\nD #1\n D is a Hard drive\n State : 1\nD #2\n", "0");
  ExpectDevices("read after a line of a device", "D #0\n D is a Hard drive\n\nD list\nD #1\n D is a Hard drive\n\n",
                "01");
  ExpectDevices("after a gap of two lines", "D #0\n D is a Hard drive\n\n\nD #1\n D is a Hard drive\n\n", "0");
  ExpectDevices("a heading of a channel", "Channel #0:\n speed\nD #0\n D is a Hard drive\nD #1\n D is a Hard drive\n",
                "01");
  ExpectDevices("a line before the first", "\nD #0\n D is a Hard drive\n\n", "");
  ExpectDevices("a device line before it", "D list\nD #0\n D is a Hard drive\n\n", "0");
  ExpectDevices("a channel in between", "D #0\n D is a Hard drive\nChannel #1:\nD #1\n D is a Hard drive\n", "0");
  ExpectDevices("a type without labels", "D #0\n D is a Tape drive\nD #1\n D is a Tape drive\n", "01");
  ExpectDevices("no type", "D #0\nD #1\nD #2\n\n", "02");
  ExpectDevices("no device", "", "");
}

TEST_F(ArcconfDataTest, TakesTwelveCharactersAsTheDevicesName) {
  CollectOne(
      CrLf("Controller information\nPhysical Device information\n----\n"
           "Device #0\n Device is a Hard drive\nDevice #123 at the front\n Device is a Hard drive\n"));
  ASSERT_EQ(controllers_.size(), 1u);
  ASSERT_EQ(controllers_[0]->PhysicalDevices.size(), 2u);
  EXPECT_EQ(controllers_[0]->PhysicalDevices[0]->DeviceNumber, "Device #0\r\n");
  EXPECT_EQ(controllers_[0]->PhysicalDevices[1]->DeviceNumber, "Device #123 ");
  EXPECT_EQ(controllers_[0]->PhysicalDevices[1]->DeviceIdSuffix, "Controller: Device #123 ");
}

TEST_F(ArcconfDataTest, EndsABlockQuietlyAtTheEndOfTheTextAndReadsTheBlocksAfterIt) {
  const std::string devices =
      "Physical Device information\n----\n   Device #0\n   Device is a Hard drive\n   State : Online\n";
  const std::string drives = "Logical drive information\n----\nLogical drive number 1\n   Size : 100 MB\n";
  EXPECT_EQ(CollectOne(CrLf("Controller information\n" + devices + drives)),
            "1 \n drive 1| 100 MB\n device Controller: Device #0|Hard drive| Online\n");
  EXPECT_EQ(CollectOne(CrLf("Controller information\nLogical drive information\n")), "1 \n");
  EXPECT_EQ(CollectOne(CrLf("Controller information\nPhysical Device information\n")), "1 \n");
  EXPECT_EQ(CollectOne(CrLf("Controller information\n")), "1 \n");
  for (const LogEntry& entry : services_.log) EXPECT_EQ(entry.text.find(" ARCCONF  using"), 0u) << entry;
}

}  // namespace
