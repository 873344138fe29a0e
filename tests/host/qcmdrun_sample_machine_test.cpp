#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "logs/event_records.h"
#include "logs/statistics_records.h"
#include "plugin/host_interface/services.h"
#include "tests/support/qcmdrun_answers.h"
#include "tools/qcmdrun/qcmdrun_data.h"

namespace {

using Texts = std::vector<std::string>;

// The text without blanks and line end around it.
std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  return first == text.npos ? "" : text.substr(first, text.find_last_not_of(" \t\r\n") + 1 - first);
}

// The texts, each trimmed, with a bar between them.
std::string Row(const Texts& texts) {
  std::string row;
  for (const std::string& text : texts) row += (row.empty() ? "" : "|") + Trimmed(text);
  return row;
}

// The two legacy controllers of the sample machine, as they are collected.
class QcmdrunSampleMachine : public testing::Test {
 protected:
  QcmdrunSampleMachine() {
    AnswerAsSampleQcmdrun(services_);
    QcmdrunData data(NKVRHXA20::TRootObject::GetCoreLogger());
    data.Collect(0);
    controllers_ = data.GetControllers();
    rawData_ = data.GetRawData();
  }

  void SetUp() override { ASSERT_EQ(controllers_.size(), 2u); }

  const ZenxController& First() const { return *controllers_[0]; }
  const ZenxController& Second() const { return *controllers_[1]; }

  ScriptedServices services_;
  ControllerList controllers_;
  RawDataList rawData_;
};

std::string Controller(const ZenxController& c) {
  return Row({c.ControllerNum, c.ControllerType, c.ControllerName, c.ControllerFRU, c.SerialNum, c.PartNum,
              c.ControllerSlotInfo});
}

std::string Versions(const ZenxController& c) {
  return Row({c.BiosVersion, c.FirmwareVersion, c.BootBlockVersion, c.DeviceDriverVersion, c.ClusterSolutionVersion});
}

std::string Settings(const ZenxController& c) {
  return Row({c.ScsiChannelDescr, c.InitiatorChannelScsiId, c.MaxPhysicalDevices, c.DefunctDiskDriveCnt,
              c.LogicalDriveStatusCnt, c.ReadAhead, c.StripeUnitSize, c.RebuildRate, c.HotSwapRebuild, c.DataScrubbing,
              c.HotSpareCopyBack, c.PartOfCluster, c.UnattendedMode, c.ConcurrentCommandsSupported,
              c.ConfigurationUpdateCount});
}

std::string Status(const ZenxController& c) {
  return Row({c.Current_MostRecentOperation, c.Logical_Drive, c.BackgroundOperationActive, c.LastCmdStatus,
              c.LogicalDriveSizeInStripes, c.NumberOfRemainingStripes});
}

Texts LogicalDrives(const ZenxController& c) {
  Texts rows;
  for (const auto& d : c.LogicalDevices) {
    rows.push_back(Row({d->ControllerNum, d->LogicalDriveNum, d->LogicalDriveStatus, d->AdditionalInformation,
                        d->RaidLevel, d->Size, d->WriteCacheStatus, d->NumOfChunks, d->StripeUnitSize, d->AccessBlocked,
                        d->PartOfArray, d->PartOfMergeGroup}));
  }
  return rows;
}

Texts StripeOrders(const ZenxController& c) {
  Texts rows;
  for (const auto& o : c.StripeOrders)
    rows.push_back(Row({o->ControllerNum, o->CollectionID, o->Array, o->StripeOrder}));
  return rows;
}

Texts Devices(const ZenxController& c) {
  Texts rows;
  for (const auto& d : c.PhysicalDevices) {
    rows.push_back(Row({d->ControllerNum, d->Channel, d->ScsiId, d->DeviceType, d->PFA, d->State, d->Size, d->Model,
                        d->DeviceCode, d->Firmware, d->DeviceSerialNum, d->FRU}));
  }
  return rows;
}

Texts BadStripes(const ZenxController& c) {
  Texts rows;
  for (const auto& b : c.BadStripes) rows.push_back(Row({b->ControllerNum, b->LogicalDrive, b->NumBadStripes}));
  return rows;
}

Texts DeviceEvents(const ZenxController& c) {
  Texts rows;
  for (const auto& e : c.DeviceEvents) {
    rows.push_back(Row({e->ControllerNum, e->Channel, e->ScsiId, e->NumParityErrors, e->NumSoftErrors, e->NumHardErrors,
                        e->PFA, e->Misc}));
  }
  return rows;
}

Texts DddEvents(const ZenxController& c) {
  Texts rows;
  for (const auto& e : c.DddEvents) {
    rows.push_back(
        Row({e->Controller, e->RecordID, e->MessageTimestamp.ToString(), e->Channel, e->ID, e->Reason, e->Descrip}));
  }
  return rows;
}

Texts SubStats(const ZenxController& c) {
  Texts rows;
  for (const auto& s : c.SubStats) {
    rows.push_back(Row({s->InstanceID, s->Params, s->Req_Off, s->Max_Txer_P, s->Cur_Txer_p}));
  }
  return rows;
}

TEST_F(QcmdrunSampleMachine, HasTwoControllersOfDifferentModels) {
  EXPECT_EQ(Controller(First()), "1|Zentraxis C6-e|DBSERVER|61K4417|K6E0412277|61K4402|3");
  EXPECT_EQ(Versions(First()), "7.10.18 (0398)|7.12.05 (0412)|7.10.02 (0377)|7.12.04|None");
  EXPECT_EQ(
      Settings(First()),
      "2 channels - 1 internal, 2 external|1/7 2/7|30|1|3/0/1|Adaptive|8 KB|High|Enabled|Enabled|Enabled|No|No|64|"
      "17");
  EXPECT_EQ(Controller(Second()), "3|Zentraxis-B3|ARCHIVE||KB30097714|37K0918|5");
  EXPECT_EQ(Versions(Second()), "4.80.26|4.84.01|4.80.10|4.84.03|4.80.00 (0112)");
  EXPECT_EQ(Settings(Second()),
            "1 channel - 1 internal|1/7|15|1|2/1/0|Enabled|16 KB|Medium|Enabled|Disabled|Disabled|Yes|Yes|32|204");
}

TEST_F(QcmdrunSampleMachine, RebuildsOneDriveAndRestsOnTheOtherController) {
  EXPECT_EQ(Status(First()), "Rebuild|3|Yes|In progress|4442880|1466150");
  EXPECT_EQ(Status(Second()), "None|None|No|No operation since power on|0|0");
}

TEST_F(QcmdrunSampleMachine, HasACriticalAndAnOfflineDrive) {
  EXPECT_EQ(LogicalDrives(First()),
            (Texts{
                "1|1|Okay (OKY)||5|40960|Write back (WB)|8|8 KB|No|A|",
                "1|2|Okay (OKY)||5|202040|Write back (WB)|8|8 KB|No|A|",
                "1|3|Critical (CRT)|Rebuild in progress|1|34710|Write through (WT)|2|8 KB|No|B|",
            }));
  EXPECT_EQ(LogicalDrives(Second()),
            (Texts{
                "3|1|Okay (OKY)||5|17356|Write through (WT)|3|16 KB|No|A|1",
                "3|2|Offline (OFL)|Offline since 10/28/2005|0|17356|Write through (WT)|2|16 KB|No|B|201",
            }));
}

TEST_F(QcmdrunSampleMachine, HasAStripeOrderThatTakesTwoLines) {
  EXPECT_EQ(StripeOrders(First()), (Texts{
                                       "1|Zentraxis1ArrayA|A|1,0 1,1 1,2 1,3 1,4 1,5 2,0 2,1",
                                       "1|Zentraxis1ArrayB|B|2,2 2,4",
                                   }));
  EXPECT_EQ(StripeOrders(Second()), (Texts{
                                        "3|Zentraxis3ArrayA|A|1,0 1,1 1,2",
                                        "3|Zentraxis3ArrayB|B|1,3 1,4",
                                    }));
}

TEST_F(QcmdrunSampleMachine, HasDisksATapeAndProcessorsOnItsChannels) {
  const std::string online = "|No|Online (ONL)|34715/71096320|TALVERA T36LW10|T36LW10|S96H|";
  EXPECT_EQ(
      Devices(First()),
      (Texts{
          "1|1|0|Hard disk" + online + "H8B01234|61K4431",
          "1|1|1|Hard disk" + online + "H8B01241|61K4431",
          "1|1|2|Hard disk" + online + "H8B01187|61K4431",
          "1|1|3|Hard disk" + online + "H8B01302|61K4431",
          "1|1|4|Hard disk|Yes|Online (ONL)|34715/71096320|TALVERA T36LW10|T36LW10|S96H|H8A90077|61K4431",
          "1|1|5|Hard disk" + online + "H8B01290|61K4431",
          "1|2|0|Hard disk" + online + "H8B01255|61K4431",
          "1|2|1|Hard disk" + online + "H8B01260|61K4431",
          "1|2|2|Hard disk" + online + "H8B01219|61K4431",
          "1|2|3|Hard disk|No|Defunct hot-spare (DHS)|34715/71096320|TALVERA T36LW10|T36LW10|S96H|H8A90102|61K4431",
          "1|2|4|Hard disk|No|Rebuild (RBL)|34715/71096320|TALVERA T36LW10|T36LW10|S96H|H8C22416|61K4431",
          "1|2|6|Tape||Standby (SBY)||ORBITEK DAT72LP         A119||A119||",
          "1|2|8|Processor device||Standby (SBY)||||||",
      }));
  EXPECT_EQ(Devices(Second()),
            (Texts{
                "3|1|0|Hard disk|No|Online (ONL)|8678/17772544|MERIDEX M9ULTRA|M9ULTRA|0117|70042118|37K0955",
                "3|1|1|Hard disk|No|Online (ONL)|8678/17772544|MERIDEX M9ULTRA|M9ULTRA|0117|70042120|37K0955",
                "3|1|2|Hard disk|No|Online (ONL)|8678/17772544|MERIDEX M9ULTRA|M9ULTRA|0117|70042137|37K0955",
                "3|1|3|Hard disk|No|Online (ONL)|8678/17772544|MERIDEX M9LVD||||37K0955",
                "3|1|4|Hard disk|No|Defunct (DDD)|8678/17772544|MERIDEX M9ULTRA|M9ULTRA|0117|70042155|37K0955",
                "3|1|8|Processor device||Standby (SBY)||||||",
            }));
}

TEST_F(QcmdrunSampleMachine, HasBadStripesOnOneDrive) {
  EXPECT_EQ(BadStripes(First()), (Texts{"1|1|0", "1|2|3", "1|3|0"}));
  EXPECT_EQ(BadStripes(Second()), Texts{});
}

TEST_F(QcmdrunSampleMachine, CountsTheErrorsOfEveryDevice) {
  EXPECT_EQ(DeviceEvents(First()), (Texts{
                                       "1|1|0|0|0|0|0|0",
                                       "1|1|1|0|0|0|0|0",
                                       "1|1|2|0|0|0|0|0",
                                       "1|1|3|0|0|0|0|0",
                                       "1|1|4|0|17|0|1|0",
                                       "1|1|5|0|0|0|0|0",
                                       "1|2|0|0|0|0|0|0",
                                       "1|2|1|2|0|0|0|0",
                                       "1|2|2|0|0|0|0|0",
                                       "1|2|3|0|6|4|0|2",
                                       "1|2|4|0|0|0|0|0",
                                       "1|2|6|0|0|0|0|0",
                                       "1|2|8|0|0|0|0|0",
                                   }));
  EXPECT_EQ(DeviceEvents(Second()), (Texts{
                                        "3|1|0|0|0|0|0|0",
                                        "3|1|1|0|0|0|0|0",
                                        "3|1|2|0|1|0|0|0",
                                        "3|1|3|0|0|0|0|0",
                                        "3|1|4|12|3|9|0|1",
                                        "3|1|8|0|0|0|0|0",
                                    }));
}

TEST_F(QcmdrunSampleMachine, TellsWhichDisksWentDefunctAndWhen) {
  EXPECT_EQ(DddEvents(First()), (Texts{
                                    "1|0001|20050614091205.000000+000|1|4|0x07|Removed by the operator",
                                    "1|0002|20051102031742.000000+000|2|3|0x04|No answer to selection",
                                    "1|0003|20051102031749.000000+000|2|3|0x0b|Replaced by hot spare at 2,4",
                                }));
  EXPECT_EQ(DddEvents(Second()), (Texts{"3|0001|20051028224011.000000+000|1|4|0x0e|Too many hard errors"}));
}

TEST_F(QcmdrunSampleMachine, KeepsTheCodesOfBothEventLogs) {
  EXPECT_EQ(First().SoftEvents->Codes, (std::vector<std::uint32_t>{0x120c, 0x120c, 0x1a30, 0x3001}));
  EXPECT_EQ(First().HardEvents->Codes, (std::vector<std::uint32_t>{0xb04, 0xa000203}));
  EXPECT_EQ(Second().SoftEvents->Codes, (std::vector<std::uint32_t>{0x10e}));
  EXPECT_EQ(Second().HardEvents->Codes, (std::vector<std::uint32_t>{}));
  EXPECT_EQ(First().SoftEvents->LogTitle, "Controller Soft Event Log\r\n");
  EXPECT_EQ(First().HardEvents->LogTitle, "Controller Hard Event Log\r\n");
}

TEST_F(QcmdrunSampleMachine, TellsTheTransferSettingsOfEveryDevice) {
  EXPECT_EQ(SubStats(First()), (Texts{
                                   "Zentraxis:1C1S0|0x1f|127|8|8",
                                   "Zentraxis:1C1S1|0x1f|127|8|8",
                                   "Zentraxis:1C1S2|0x1f|127|8|8",
                                   "Zentraxis:1C1S3|0x1f|127|8|8",
                                   "Zentraxis:1C1S4|0x1f|127|8|8",
                                   "Zentraxis:1C1S5|0x1f|127|8|8",
                                   "Zentraxis:1C2S0|0x1f|127|8|8",
                                   "Zentraxis:1C2S1|0x1f|127|8|8",
                                   "Zentraxis:1C2S2|0x1f|127|8|8",
                                   "Zentraxis:1C2S3|0x1f|127|8|10",
                                   "Zentraxis:1C2S4|0x1f|127|8|8",
                                   "Zentraxis:1C2S6|0x0b|32|10|10",
                                   "Zentraxis:1C2S8|0x02|0|50|50",
                               }));
  EXPECT_EQ(SubStats(Second()), (Texts{
                                    "Zentraxis:3C1S0|0x0b|31|10|10",
                                    "Zentraxis:3C1S1|0x0b|31|10|10",
                                    "Zentraxis:3C1S2|0x0b|31|10|10",
                                    "Zentraxis:3C1S3|0x0b|31|10|10",
                                    "Zentraxis:3C1S4|0x0b|31|10|25",
                                    "Zentraxis:3C1S8|0x02|0|50|50",
                                }));
}

TEST_F(QcmdrunSampleMachine, KeepsEveryLineOfEveryAnswer) {
  EXPECT_EQ(rawData_.size(), 16u);
  for (const auto& raw : rawData_) {
    EXPECT_EQ(raw->RawResults.front(), "Found 2 KVR Zentraxis controller(s)") << std::string_view(raw->Command);
    EXPECT_EQ(raw->RawResults.back(), "Command completed successfully.") << std::string_view(raw->Command);
  }
}

TEST_F(QcmdrunSampleMachine, AnswersUnderNoOtherNumber) {
  for (const int number : {2, 4, 8}) {
    EXPECT_TRUE(services_.answers[QcmdrunRun("getconfig", number, "al")].find("Command aborted") != std::string::npos)
        << number;
  }
}

}  // namespace
