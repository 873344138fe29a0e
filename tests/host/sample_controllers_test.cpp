#include <gtest/gtest.h>

#include <algorithm>

#include "plugin/host_interface/services.h"
#include "tests/support/controller_summary.h"
#include "tests/support/filled_fields.h"
#include "tests/support/sample_text.h"
#include "tests/support/scripted_services.h"
#include "tools/arcconf/arcconf_data.h"
#include "tools/hrconf/hrconf_data.h"

// What arcconf and hrconf say of the sample machine, fact by fact.
namespace {

using NKVRHXA20::TRootObject;
using Lines = std::vector<std::string>;

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \r\n");
  return first == text.npos ? "" : text.substr(first, text.find_last_not_of(" \r\n") + 1 - first);
}

// One line a record: the fields, trimmed, with bars between.
template <class Record>
Lines Table(const std::vector<std::shared_ptr<Record>>& records, const std::vector<std::string Record::*>& fields) {
  Lines lines;
  for (const auto& record : records) {
    std::string line;
    for (const auto field : fields) line += (line.empty() ? "" : "|") + Trimmed((*record).*field);
    lines.push_back(line);
  }
  return lines;
}

Lines Drives(const ZenxController& controller) {
  using Drive = ZenxLogicalDevice;
  return Table<Drive>(controller.LogicalDevices, {&Drive::LogicalDriveNum, &Drive::LogicalDriveName, &Drive::RaidLevel,
                                                  &Drive::LogicalDriveStatus, &Drive::Size, &Drive::DriveList});
}

Lines Devices(const ZenxController& controller) {
  using Device = ZenxPhysicalDevice;
  return Table<Device>(controller.PhysicalDevices,
                       {&Device::DeviceNumber, &Device::DeviceType, &Device::Channel, &Device::ScsiId, &Device::State,
                        &Device::Model, &Device::Firmware, &Device::DeviceSerialNum, &Device::PFA});
}

Lines StripeOrders(const ZenxController& controller) {
  return Table<ArrayStripeOrder>(controller.StripeOrders,
                                 {&ArrayStripeOrder::CollectionID, &ArrayStripeOrder::StripeOrder});
}

Lines Commands(const RawDataList& rawData) {
  Lines commands;
  for (const auto& raw : rawData) commands.push_back(raw->Command);
  return commands;
}

template <class Adapter>
struct Sample {
  explicit Sample(const std::string& tool) : adapter(TRootObject::GetCoreLogger()) {
    services.answers = AllAnswersOf(tool);
    adapter.Collect(0);
  }

  ScriptedServices services;
  Adapter adapter;
};

TEST(SampleControllers, OfArcconfAreTwo) {
  const Sample<ArcconfData> sample("arcconf");
  const ControllerList controllers = sample.adapter.GetControllers();
  ASSERT_EQ(controllers.size(), 2u);
  EXPECT_EQ(FilledFields(*controllers[0]), (std::set<std::string>{"ControllerNum=1",
                                                                  "ControllerType=Zentraxis C6-e",
                                                                  "ControllerStatus=Optimal",
                                                                  "ChannelDescription=SAS/SATA",
                                                                  "SerialNum=3E41A077",
                                                                  "ControllerSlotInfo=3",
                                                                  "ControllerTemp=46 C/ 114 F (Normal)",
                                                                  "InstalledMemory=256 MB",
                                                                  "CopyBackEnabled=Disabled",
                                                                  "DataScrubbing=Enabled",
                                                                  "DefunctDiskDriveCnt=1",
                                                                  "LogicalDriveStatusCnt=3/0/1",
                                                                  "BiosVersion=5.2-0 (15611)",
                                                                  "FirmwareVersion=5.2-0 (15611)",
                                                                  "DeviceDriverVersion=5.2-0 (15611)",
                                                                  "BootBlockVersion=5.1-0 (15204)",
                                                                  "ControllerBatteryStatus=Optimal",
                                                                  "ControllerBatteryOverTemp=No",
                                                                  "ControllerBatteryCapacity=98 percent",
                                                                  "BatteryTimeRemaining=3 days, 1 hours, 11 minutes",
                                                                  "VPD=ZX10466",
                                                                  "ECVersion=J85096",
                                                                  "ControllerFRU=ZX10471",
                                                                  "ControllerBatteryFRU=ZX10478"}));
  EXPECT_EQ(
      FilledFields(*controllers[1]),
      (std::set<std::string>{
          "ControllerNum=2", "ControllerType=Zentraxis C5", "ControllerStatus=Optimal", "ChannelDescription=SCSI",
          "SerialNum=BD9920", "ControllerSlotInfo=5", "InstalledMemory=64 MB", "CopyBackEnabled=Enabled",
          "DataScrubbing=Disabled", "DefunctDiskDriveCnt=0", "LogicalDriveStatusCnt=2/0/0", "BiosVersion=4.0-0 (7244)",
          "FirmwareVersion=4.0-0 (7244)", "DeviceDriverVersion=4.0-0 (5912)", "BootBlockVersion=4.0-0 (7101)",
          "VPD=ZX08813", "ECVersion=D76431", "ControllerFRU=ZX08820", "ControllerBatteryFRU=None"}));
}

TEST(SampleControllers, OfArcconfHaveFiveDrives) {
  const Sample<ArcconfData> sample("arcconf");
  const ControllerList controllers = sample.adapter.GetControllers();
  ASSERT_EQ(controllers.size(), 2u);
  EXPECT_EQ(Drives(*controllers[0]),
            (Lines{"1|System|1|Optimal|69889 MB|0,0 0,1", "2|Database|5EE|Optimal|209667 MB|0,2 0,3 0,4 0,5 0,6",
                   "3|Archive|5|Degraded|139778 MB|0,7 0,8 0,9"}));
  EXPECT_EQ(Drives(*controllers[1]),
            (Lines{"1|Boot|1|Optimal|34715 MB|0,0 0,1", "2|Mail|5|Optimal|69430 MB|0,2 0,3 0,4"}));
  EXPECT_EQ(FilledFields(*controllers[0]->LogicalDevices[1]),
            (std::set<std::string>{
                "ControllerNum=1", "LogicalDriveNum=2", "LogicalDriveName= Database\r\n", "RaidLevel= 5EE\r\n",
                "LogicalDriveStatus= Optimal\r\n", "Raid5EEStatus= Expanded\r\n", "Size= 209667 MB\r\n",
                "ReadCacheStatus= Enabled\r\n", "WriteCacheStatus= Enabled (write-back)\r\n",
                "WriteCacheSetting= Enabled (write-back) when protected by battery\r\n", "Partitioned= Yes\r\n",
                "NumOfSegments= 5\r\n", "StripeUnitSize= 256 KB\r\n", "DriveList= 0,2 0,3 0,4 0,5 0,6\r\n",
                "DefunctSegments= No\r\n", "DefunctStripes= No\r\n"}));
}

TEST(SampleControllers, OfArcconfHaveTheirStripeOrdersInTheDriveOrBehindIt) {
  const Sample<ArcconfData> sample("arcconf");
  const ControllerList controllers = sample.adapter.GetControllers();
  ASSERT_EQ(controllers.size(), 2u);
  EXPECT_EQ(StripeOrders(*controllers[0]), (Lines{"ZentraxisCntrlr1LogicalDrv2 0,2 0,3 0,4 0,5 0,6|0,2 0,3 0,4 0,5 0,6",
                                                  "ZentraxisCntrlr1LogicalDrv3 0,7 0,8 0,9|0,7 0,8 0,9"}));
  // The older controller prints the list among the drive's own lines.
  EXPECT_EQ(StripeOrders(*controllers[1]), Lines());
  EXPECT_EQ(controllers[1]->LogicalDevices[1]->StripeOrder, " 0,2 0,3 0,4\r\n");
}

TEST(SampleControllers, OfArcconfHaveNineteenDevices) {
  const Sample<ArcconfData> sample("arcconf");
  const ControllerList controllers = sample.adapter.GetControllers();
  ASSERT_EQ(controllers.size(), 2u);
  EXPECT_EQ(Devices(*controllers[0]),
            (Lines{"Device #0|Hard drive|0|0|Online|NV73-15SAS|BA31|NV3LB07Q2H|No",
                   "Device #1|Hard drive|0|1|Online|NV73-15SAS|BA31|NV3LB17Q2H|No",
                   "Device #2|Hard drive|0|2|Online|NV73-15SAS|BA31|NV3LC47Q2H|No",
                   "Device #3|Hard drive|0|3|Online|NV73-15SAS|BA31|NV3LC57Q2H|No",
                   "Device #4|Hard drive|0|4|Online|NV73-15SAS|BA31|NV3LC97Q2H|No",
                   "Device #5|Hard drive|0|5|Online|NV73-15SAS|BA31|NV3LD07Q2H|No",
                   "Device #6|Hard drive|0|6|Online|NV73-15SAS|BA31|NV3LD37Q2H|No",
                   "Device #7|Hard drive|0|7|Online|NV73-15SAS|BA31|NV3LE27Q2H|No",
                   "Device #8|Hard drive|0|8|Failed|NV73-15SAS|BA2C|NV3LE77Q2H|Yes",
                   "Device #9|Hard drive|0|9|Online|NV73-15SAS|BA31|NV3LF17Q2H|No",
                   "Device #10|Hard drive|0|10|Hot Spare for Logical drive 1|NV73-15SAS|BA31|NV3LF67Q2H|No",
                   "Device #11|Enclosure services device|2|0|Online|EXB-SAS-12|1.06||",
                   "Device #12|Unknown device|||Available|HB-400|0.9a||"}));
  EXPECT_EQ(Devices(*controllers[1]),
            (Lines{"Device #0|Hard drive|0|0|Online|HU36-10U320|S9FA|HA0151K3|No",
                   "Device #1|Hard drive|0|1|Online|HU36-10U320|S9FA|HA0451K3|No",
                   "Device #2|Hard drive|0|2|Online|HU36-10U320|S9F2|HA0751K3|No",
                   "Device #3|Hard drive|0|3|Online|HU36-10U320|S9F2|HA01051K3|No",
                   "Device #4|Hard drive|0|4|Online|HU36-10U320|S9F2|HA01351K3|No", "Device #5|Tape drive|||||||"}));
}

TEST(SampleControllers, OfArcconfTellAllOfADriveAnEnclosureAndAnUnknownDevice) {
  const Sample<ArcconfData> sample("arcconf");
  const auto& devices = sample.adapter.GetControllers().at(0)->PhysicalDevices;
  ASSERT_EQ(devices.size(), 13u);
  EXPECT_EQ(FilledFields(*devices[10]), (std::set<std::string>{"ControllerNum=1",
                                                               "Channel=0",
                                                               "ScsiId=10\r",
                                                               "DeviceNumber=Device #10\r\n",
                                                               "DeviceType=Hard drive",
                                                               "State= Hot Spare for Logical drive 1\r\n",
                                                               "DeviceSerialNum= NV3LF67Q2H\r\n",
                                                               "Firmware= BA31\r\n",
                                                               "Vendor= NORDVIK\r\n",
                                                               "Model= NV73-15SAS\r\n",
                                                               "Size= 70007 MB\r\n",
                                                               "TransferSpeed= SAS 3.0 Gb/s\r\n",
                                                               "ReportedChannel= 0,10\r\n",
                                                               "WorldWideName= 5000F0A0001B8600\r\n",
                                                               "WriteCache= Disabled (write-through)\r\n",
                                                               "Enclosure= 0\r\n",
                                                               "ReportedESD= 2,0\r\n",
                                                               "ReportedLocation= Enclosure 0, Slot 10\r\n",
                                                               "Supported= Yes\r\n",
                                                               "PFA= No\r\n",
                                                               "FRU= ZX20912\r\n",
                                                               "DeviceIdSuffix=Controller: Device #10\r\n"}));
  EXPECT_EQ(FilledFields(*devices[11]),
            (std::set<std::string>{"ControllerNum=1", "Channel=2", "ScsiId=0\r", "DeviceNumber=Device #11\r\n",
                                   "DeviceType=Enclosure services device", "State= Online\r\n", "Firmware= 1.06\r\n",
                                   "Vendor= KVR\r\n", "Model= EXB-SAS-12\r\n", "TransferSpeed= Not Supported\r\n",
                                   "ReportedChannel= 2,0\r\n", "EnclosureId= 0\r\n", "Type= SES2\r\n",
                                   "Temperature= Normal\r\n", "DeviceIdSuffix=Controller: Device #11\r\n"}));
  EXPECT_EQ(
      FilledFields(*devices[12]),
      (std::set<std::string>{"ControllerNum=1", "DeviceNumber=Device #12\r\n", "DeviceType=Unknown device",
                             "State= Available\r\n", "Firmware= 0.9a\r\n", "Vendor= HALDEN\r\n", "Model= HB-400\r\n",
                             "ReportedChannel= 0,11\r\n", "DeviceIdSuffix=Controller: Device #12\r\n"}));
}

TEST(SampleControllers, OfArcconfKeepFiveOutputsEach) {
  const Sample<ArcconfData> sample("arcconf");
  const RawDataList rawData = sample.adapter.GetRawData();
  EXPECT_EQ(Commands(rawData), (Lines{"zenx//arcconf.exe getconfig 1 al", "zenx//arcconf.exe getlogs 1 device",
                                      "zenx//arcconf.exe getlogs 1 dead", "zenx//arcconf.exe getlogs 1 event",
                                      "zenx//arcconf.exe getlogs 1 uart", "zenx//arcconf.exe getconfig 2 al",
                                      "zenx//arcconf.exe getlogs 2 device", "zenx//arcconf.exe getlogs 2 dead",
                                      "zenx//arcconf.exe getlogs 2 event", "zenx//arcconf.exe getlogs 2 uart"}));
  for (const auto& raw : rawData) {
    EXPECT_EQ(raw->RawResults.back(), "Command completed successfully.") << std::string_view(raw->Command);
  }
}

TEST(SampleControllers, OfHrconfIsOneWithTwoDrivesAndSixDevices) {
  const Sample<HrconfData> sample("hrconf_64");
  const ControllerList controllers = sample.adapter.GetControllers();
  ASSERT_EQ(controllers.size(), 1u);
  EXPECT_EQ(FilledFields(*controllers[0]),
            (std::set<std::string>{"ControllerNum=1", "ControllerStatus= Okay\r\n", "ChannelDescription= SATA\r\n",
                                   "BootBlockVersion= 4.2-1 (8710)\r\n", "BiosVersion= 4.2-1 (8710)\r\n",
                                   "DeviceDriverVersion= 4.2-1 (8722)\r\n", "DefunctDiskDriveCnt= 0\r\n",
                                   "LogicalDriveStatusCnt= 2/0/0\r\n"}));
  EXPECT_EQ(Drives(*controllers[0]),
            (Lines{"1|Spool|1|Okay|76190 MB|0,0 1,0", "2|Capture|10|Okay|152380 MB|0,1 1,1 0,2 1,2"}));
  EXPECT_EQ(StripeOrders(*controllers[0]), (Lines{"ZentraxisCntrlr1LogicalDrv2 0,1 1,1 0,2 1,2|0,1 1,1 0,2 1,2"}));
  EXPECT_EQ(Devices(*controllers[0]), (Lines{"0|Hard drive|0||Online|HS80-7SATA|3.04|HS800T4C9|No",
                                             "1|Hard drive|0||Online|HS80-7SATA|3.04|HS801T4C9|No",
                                             "2|Hard drive|0||Online|HS80-7SATA|3.04|HS802T4C9|No",
                                             "3|Hard drive|1||Online|HS80-7SATA|3.04|HS810T4C9|No",
                                             "4|Hard drive|1||Online|HS80-7SATA|3.04|HS811T4C9|No",
                                             "5|Hard drive|1||Online|HS80-7SATA|3.04|HS812T4C9|No"}));
}

TEST(SampleControllers, AreTheSameWithLineFeedsAlone) {
  for (const std::string tool : {"arcconf", "hrconf_64"}) {
    const auto collect = [&](bool hasCarriageReturns) {
      ScriptedServices services;
      services.answers = AllAnswersOf(tool);
      for (auto& [command, text] : services.answers) {
        if (!hasCarriageReturns) std::erase(text, '\r');
      }
      ControllerList controllers;
      if (tool == "arcconf") {
        ArcconfData arcconf(TRootObject::GetCoreLogger());
        arcconf.Collect(0);
        controllers = arcconf.GetControllers();
        // The last letter of a controller's own values takes the place of the carriage return and is cut.
        for (const auto& controller : controllers) controller->SerialNum = "";
      } else {
        HrconfData hrconf(TRootObject::GetCoreLogger());
        hrconf.Collect(0);
        controllers = hrconf.GetControllers();
      }
      return Summary(controllers);
    };
    EXPECT_EQ(collect(false), collect(true));
    EXPECT_NE(collect(true), "");
  }
}

}  // namespace
