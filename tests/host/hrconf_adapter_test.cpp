#include "tools/hrconf/hrconf_adapter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "plugin/host_interface/services.h"
#include "tests/support/adapter_test.h"
#include "tests/support/filled_fields.h"

namespace {

using NKVRHXA20::TRootObject;

const std::string kNoControllers = CrLf("Controllers found: 0\n");
const std::string kVersions = CrLf("1\n2\n3\n4\nBIOS : 4.2\nDriver : 4.3\n");

OsVersion Version52() { return {true, 5, 2}; }
OsVersion Version60() { return {true, 6, 0}; }

std::string Config(const std::string& status) {
  return CrLf("Controller information\n   Controller Status : " + status +
              "\n"
              "Logical drive information\n----\n"
              "Logical drive number 1\n   Size : 100 MB\n\n\n"
              "Physical drive information\n----\n"
              "   Device #0\n   Device is a Hard drive\n   State : Online\n"
              "Command completed successfully.\n");
}

std::string GetStatus(unsigned number) { return "hrconf_64 getstatus " + std::to_string(number); }
std::string GetVersion(unsigned number) { return "hrconf_64 getversion " + std::to_string(number); }

// The expected summary of a controller made from Config.
std::string Found(unsigned number) {
  return std::to_string(number) + " \n drive 1| 100 MB\n device Controller: 0Device #0|Hard drive| Online\n";
}

// The devices' channels and numbers: "0/0 0/1 ".
std::string Places(const ControllerList& controllers) {
  std::string places;
  for (const auto& controller : controllers) {
    for (const auto& device : controller->PhysicalDevices) {
      const std::string name = device->DeviceNumber;
      const std::string number = name.substr(0, name.find_first_of("\r\n"));
      places += device->Channel + "/" + number + " ";
    }
  }
  return places;
}

class HrconfDataTest : public AdapterTest {
 protected:
  HrconfDataTest() : AdapterTest("hrconf_64", kNoControllers) {}

  void AddController(unsigned number, const std::string& status = "Okay") {
    services_.answers[GetConfig(number)] = Config(status);
    services_.answers[GetStatus(number)] = "status " + std::to_string(number) + "\r\n";
    services_.answers[GetVersion(number)] = kVersions;
  }

  void Collect(unsigned firstControllerNumber = 0, OsVersion (*version)() = Version52) {
    CollectBy(HrconfData(TRootObject::GetCoreLogger(), version), firstControllerNumber);
  }

  std::string CollectOne(const std::string& config) override {
    AddController(1);
    services_.answers[GetConfig(1)] = config;
    Collect();
    return Summary(controllers_);
  }

  void ExpectPlaces(const char* name, const std::string& section, const std::string& found) {
    for (const std::string head : {"Physical drive information", "Physical Device information"}) {
      CollectOne(CrLf("Controller information\n" + head + "\n----\n" + section +
                      "Command completed successfully.\nDevice #9\n type\n"));
      EXPECT_EQ(Places(controllers_), found) << name;
    }
  }
};

TEST_F(HrconfDataTest, RequestsTwiceAndFindsNothingOnAMachineWithoutControllers) {
  Collect();
  EXPECT_EQ(services_.runs, (std::vector<std::string>{GetConfig(1), GetConfig(1)}));
  EXPECT_TRUE(controllers_.empty());
  EXPECT_TRUE(rawData_.empty());
}

TEST_F(HrconfDataTest, AsksThreeControllersByTheirNumbersAndStopsAtTheFourth) {
  for (unsigned number = 1; number <= 3; ++number) AddController(number);
  Collect();
  std::vector<std::string> runs;
  for (unsigned number = 1; number <= 3; ++number) {
    for (const auto& run : {GetConfig(number), GetConfig(number), GetStatus(number), GetVersion(number)}) {
      runs.push_back(run);
    }
  }
  runs.push_back(GetConfig(4));
  for (unsigned number = 1; number <= 3; ++number) {
    for (const auto& run : {GetConfig(number), GetVersion(number)}) runs.push_back(run);
  }
  runs.push_back(GetConfig(4));
  EXPECT_EQ(services_.runs, runs);
  EXPECT_EQ(controllers_.size(), 3u);
}

TEST_F(HrconfDataTest, AsksForNoVersionOnASystemOfVersionSixPointNought) {
  AddController(1);
  Collect(0, Version60);
  EXPECT_EQ(services_.runs, (std::vector<std::string>{GetConfig(1), GetConfig(1), GetStatus(1), GetConfig(2),
                                                      GetConfig(1), GetConfig(2)}));
  EXPECT_EQ(rawData_.size(), 2u);
  ASSERT_EQ(controllers_.size(), 1u);
  EXPECT_EQ(controllers_[0]->BiosVersion, "");
  EXPECT_EQ(controllers_[0]->DeviceDriverVersion, "");
  // The answer that replaces the missing one is valid, so no error is logged.
  EXPECT_THAT(services_.LogTexts(), testing::Not(testing::Contains(testing::HasSubstr("Bad Data"))));
}

TEST_F(HrconfDataTest, AsksForTheSystemsVersionOnceForEachControllerInEachPass) {
  AddController(1);
  AddController(2);
  static int asked = 0;
  asked = 0;
  Collect(0, [] {
    ++asked;
    return OsVersion{true, 5, 2};
  });
  // Numbers 1 to 3 in the first pass, controllers 1 and 2 in the second.
  EXPECT_EQ(asked, 5);
}

TEST_F(HrconfDataTest, ContinuesIfTheSystemReportsNoVersion) {
  AddController(1);
  Collect(0, []() -> OsVersion { throw std::runtime_error("no version"); });
  EXPECT_EQ(Summary(controllers_), Found(1));
  EXPECT_EQ(rawData_.size(), 3u);
  EXPECT_EQ(services_.log[0].level, 0);
}

TEST_F(HrconfDataTest, HangsTheVersionsOnTheController) {
  AddController(1);
  Collect(4);
  ASSERT_EQ(controllers_.size(), 1u);
  EXPECT_EQ(FilledFields(*controllers_[0]),
            (std::set<std::string>{"ControllerNum=5", "ControllerStatus= Okay\r\n", "BiosVersion= 4.2\r\n",
                                   "DeviceDriverVersion= 4.3\r\n"}));
  ASSERT_EQ(controllers_[0]->HrConfVersions.size(), 1u);
  EXPECT_EQ(controllers_[0]->HrConfVersions[0]->ControllerNum, "5");
  EXPECT_EQ(controllers_[0]->HrConfVersions[0]->BIOS, " 4.2\r\n");
  EXPECT_EQ(controllers_[0]->HrConfVersions[0]->Driver, " 4.3\r\n");
}

TEST_F(HrconfDataTest, KeepsAControllerWhoseVersionAnswerIsCutOff) {
  AddController(1);
  services_.answers[GetVersion(1)] = CrLf("1\n2\n3\n4\nBIOS : 4.2\n") + "Driv";
  Collect();
  EXPECT_EQ(Summary(controllers_), Found(1));
  EXPECT_EQ(controllers_[0]->BiosVersion, " 4.2\r\n");
  EXPECT_THAT(services_.LogTexts(), testing::Contains(testing::StartsWith("Bad Data From Getversion output: ")));
}

TEST_F(HrconfDataTest, ContinuesAfterAnAnswerThatIsNotAReport) {
  AddController(2);
  for (const std::string& answer :
       {std::string(), std::string("nonsense\r\n"), std::string("Controller information")}) {
    services_.answers[GetConfig(1)] = answer;
    services_.runs.clear();
    Collect();
    EXPECT_EQ(Summary(controllers_), Found(2)) << answer;
    // The first pass always requests the version, the second only if there is a report.
    EXPECT_THAT(services_.runs, testing::Contains(GetVersion(1)).Times(1)) << answer;
  }
}

TEST_F(HrconfDataTest, ReadsLogicalDrivesThatFollowEachOther) {
  ExpectDrives("a line between", "LD number 1\n Size : 1\n\nLD number 2\n Size : 2\n\n\n",
               " drive 1| 1\n drive 2| 2\n");
  ExpectDrives("no line between", "LD number 1\n Size : 1\nLD number 2\n Size : 2\n\n", " drive 1| 1\n");
  ExpectDrives("two lines between", "LD number 1\n Size : 1\n\n\nLD number 2\n\n", " drive 1| 1\n");
  ExpectDrives("a stripe order",
               "LD number 1\n Size : 1\n Stripe order (Channel,Device) : 0,0\nLD number 2\n Size : 2\n\n\n",
               " drive 1| 1\n drive 2| 2\n order 1LogicalDrv1 0,0\n");
  ExpectDrives("of three lines",
               "LD number 1\n Size : 1\n Stripe order (Channel,Device) : 0,0\n 0,1\n 0,2\nLD number 2\n Size : 2\n\n\n",
               " drive 1| 1\n drive 2| 2\n order 1LogicalDrv1 0,0 0,1 0,2\n");
  ExpectDrives(
      "a size out of order",
      "LD number 1\n Size : 1\n Segment size : 8\n Stripe order (Channel,Device) : 0,0\nLD number 2\n Size : 2\n\n\n",
      " drive 1| 1\n drive 2| 2\n order 1LogicalDrv1 0,0\n");
  ExpectDrives("a size and nothing else", "LD number 1\n Size : 1\n Segment size : 8\n\nLD number 2\n Size : 2\n\n\n",
               " drive 1| 1\n drive 2| 2\n");
  ExpectDrives("another list", "LD number 1\n Size : 1\n Stripe order : 0,0\n 0,1\nLD number 2\n Size : 2\n\n\n",
               " drive 1| 1\n drive 2| 2\n order 1LogicalDrv1 0,1\n");
  ExpectDrives("a long number", "LD number 12 (12)\n Size : 1\n\n\n", " drive 12 (12)| 1\n");
  ExpectDrives("no number", "LD number\n Size : 1\n\n\n", " drive | 1\n");
  ExpectDrives("no drive", "No logical drives\n\n", "");
}

TEST_F(HrconfDataTest, WalksDevicesWithAndWithoutChannels) {
  ExpectPlaces("channel 0 without headings", "Device #0\n type\nDevice #1\n type\n", "0/0 0/1 ");
  ExpectPlaces("a heading that comes late", "Device #0\n type\nChannel #1:\nDevice #1\n type\n", "0/0 0/1 ");
  ExpectPlaces("two channels", "Channel #0:\nDevice #0\n type\n\nChannel #1:\nDevice #1\n type\n", "0/0 1/1 ");
  ExpectPlaces("gaps between devices", "Channel #0:\n\n\nDevice #0\n type\n\n\n\nDevice #1\n type\n", "0/0 0/1 ");
  ExpectPlaces("an initiator", "Channel #2:\n Initiator at SCSI ID 7\nDevice #0\n type\n", "2/0 ");
  ExpectPlaces("a heading of another kind", "Channel list\nBus #4 of 5: fast\nDevice #0\n type\n", "4 of 5/0 ");
  ExpectPlaces("no heading after the line", "Channel list\nDevice #0\n type\n", "/0 ");
  ExpectPlaces("no colon after the sign", "Channel #3\nDevice #0\n type\n", "/0 ");
  ExpectPlaces("a colon before the sign", "Channel: #3\nDevice #0\n type\n", "/0 ");
  ExpectPlaces("a device line with a colon", "Channel #1:\nDevice #7: here\n type\n", "1/7: here ");
  ExpectPlaces("a long number", "Channel #1:\nDevice #1234567\n type\n", "1/1234567 ");
  ExpectPlaces("the line after is used up", "Device #0\nDevice #1\nDevice #2\n type\n", "0/0 0/2 ");
  ExpectPlaces("no number", "Device #\n type\n", "0/ ");
  ExpectPlaces("no device", "Channel #1:\n", "");
}

TEST_F(HrconfDataTest, TakesThePhysicalDrivesIfBothHeadsOccur) {
  CollectOne(
      CrLf("Controller information\nPhysical Device information\n----\nDevice #1\n type\nend\n"
           "Physical drive information\n----\nDevice #2\n type\nend\n"));
  EXPECT_EQ(Places(controllers_), "0/2 ");
}

TEST_F(HrconfDataTest, SetsTheNumberAndTheIdentifierOfADevice) {
  CollectOne(
      CrLf("Controller information\nPhysical drive information\n----\nChannel #1:\nDevice #0\n type\n"
           "Device #12 front\n type\n"));
  ASSERT_EQ(controllers_[0]->PhysicalDevices.size(), 2u);
  EXPECT_EQ(FilledFields(*controllers_[0]->PhysicalDevices[0]),
            (std::set<std::string>{"ControllerNum=1", "Channel=1", "DeviceNumber=0\r\n",
                                   "DeviceIdSuffix=Controller: 1Device #0\r\n"}));
  EXPECT_EQ(FilledFields(*controllers_[0]->PhysicalDevices[1]),
            (std::set<std::string>{"ControllerNum=1", "Channel=1", "DeviceNumber=12 front\r\n",
                                   "DeviceIdSuffix=Controller: 1Device #12 f"}));
}

TEST_F(HrconfDataTest, EndsABlockQuietlyAtTheEndOfTheTextAndReadsTheBlocksAfterIt) {
  const std::string devices =
      "Physical drive information\n----\n   Device #0\n   Device is a Hard drive\n   State : Online\n";
  const std::string drives = "Logical drive information\n----\nLogical drive number 1\n   Size : 100 MB\n";
  EXPECT_EQ(CollectOne(CrLf("Controller information\n" + devices + drives)), Found(1));
  EXPECT_EQ(CollectOne(CrLf("Controller information\nLogical drive information\n")), "1 \n");
  EXPECT_EQ(CollectOne(CrLf("Controller information\nPhysical drive information\n")), "1 \n");
  EXPECT_EQ(CollectOne(CrLf("Controller information\n")), "1 \n");
}

TEST_F(HrconfDataTest, CompletesADeviceThatTheEndOfTheTextCutsOff) {
  CollectOne(CrLf("Controller information\nPhysical drive information\n----\nDevice #0\n"));
  ASSERT_EQ(controllers_[0]->PhysicalDevices.size(), 1u);
  EXPECT_EQ(FilledFields(*controllers_[0]->PhysicalDevices[0]),
            (std::set<std::string>{"ControllerNum=1", "Channel=0", "DeviceNumber=0\r\n",
                                   "DeviceIdSuffix=Controller: 0Device #0\r\n"}));
}

}  // namespace
