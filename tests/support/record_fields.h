#pragma once

#include <iterator>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include <boost/preprocessor/seq/for_each.hpp>
#include <boost/preprocessor/stringize.hpp>
#include <boost/preprocessor/variadic/to_seq.hpp>

#include "collect/records.h"
#include "logs/event_records.h"
#include "logs/statistics_records.h"

// One text of a record, with its own name.
template <class Record>
struct NamedField {
  const char* name;
  std::string Record::*field;
};

// All texts of a record, in order.
template <class Record>
struct Fields;

template <class Record>
constexpr std::span<const NamedField<Record>> FieldsOf(const Record&) {
  return Fields<Record>::kAll;
}

constexpr std::size_t InWholeWords(std::size_t size) {
  return (size + sizeof(void*) - 1) / sizeof(void*) * sizeof(void*);
}

// The members of every record.
struct EachRecord {
  virtual ~EachRecord() = default;
  HostHandle host;
};

// Whether these are all texts: a record is as large as they and its other members, which are given.
template <class Record, class... Others>
constexpr bool ListsAllBeside() {
  return sizeof(Record) == sizeof(EachRecord) + (InWholeWords(sizeof(Others)) + ... + 0) +
                               std::size(Fields<Record>::kAll) * sizeof(std::string);
}

#define ZENX_NAMED_FIELD(unused, Record, Field) {BOOST_PP_STRINGIZE(Field), &Record::Field},
#define ZENX_FIELDS(Record, ...)                                                                 \
  template <>                                                                                    \
  struct Fields<Record> {                                                                        \
    static constexpr NamedField<Record> kAll[] = {                                               \
        BOOST_PP_SEQ_FOR_EACH(ZENX_NAMED_FIELD, Record, BOOST_PP_VARIADIC_TO_SEQ(__VA_ARGS__))}; \
  };
#define ZENX_LISTS_ALL_BESIDE(...) \
  static_assert(ListsAllBeside<__VA_ARGS__>(), "add the new text of the record to its ZENX_FIELDS");

ZENX_FIELDS(ZenxController, ControllerNum, DeviceID, OtherIdentifyingInfo, ControllerName, ControllerType, SerialNum,
            PartNum, ControllerSlotInfo, ControllerFRU, VPD, ControllerStatus, ChannelDescription, ScsiChannelDescr,
            InitiatorChannelScsiId, InstalledMemory, MaxPhysicalDevices, DefunctDiskDriveCnt, LogicalDriveStatusCnt,
            ReadAhead, StripeUnitSize, RebuildRate, HotSwapRebuild, DataScrubbing, HotSpareCopyBack, CopyBackEnabled,
            PartOfCluster, UnattendedMode, ConcurrentCommandsSupported, ConfigurationUpdateCount,
            ClusterSolutionVersion, Current_MostRecentOperation, Logical_Drive, BackgroundOperationActive,
            LastCmdStatus, LogicalDriveSizeInStripes, NumberOfRemainingStripes, ECVersion, ControllerTemp,
            ControllerBatteryStatus, ControllerBatteryOverTemp, ControllerBatteryCapacity, ControllerBatteryFRU,
            BatteryTimeRemaining, DeviceDriverVersion, FirmwareVersion, BootBlockVersion, BiosVersion, SlotDeviceId)
ZENX_LISTS_ALL_BESIDE(ZenxController, bool, std::vector<std::string>[9], std::shared_ptr<void>[2])

ZENX_FIELDS(ZenxLogicalDevice, ControllerNum, LogicalDriveNum, LogicalDriveName, LogicalDriveStatus, RaidLevel, Size,
            StripeUnitSize, StripeOrder, AccessBlocked, NumOfChunks, NumOfSegments, PartOfArray, PartOfMergeGroup,
            WriteCacheStatus, WriteCacheSetting, ReadCacheStatus, Partitioned, DriveList, DefunctSegments,
            AdditionalInformation, Raid5EEStatus, DefunctStripes)
ZENX_LISTS_ALL_BESIDE(ZenxLogicalDevice, std::vector<std::string>)

ZENX_FIELDS(ZenxPhysicalDevice, ControllerNum, Channel, ScsiId, DeviceNumber, DeviceType, Type, State, DeviceCode,
            DeviceSerialNum, Firmware, Vendor, Model, Size, TransferSpeed, ReportedChannel, WorldWideName, WriteCache,
            Enclosure, EnclosureId, ReportedESD, ReportedLocation, Supported, PFA, FRU, Temperature, DeviceIdSuffix)
ZENX_LISTS_ALL_BESIDE(ZenxPhysicalDevice)

ZENX_FIELDS(ArrayStripeOrder, ControllerNum, CollectionID, Array, StripeOrder)
ZENX_LISTS_ALL_BESIDE(ArrayStripeOrder, std::vector<std::string>)

ZENX_FIELDS(ZenxEventDddData, Controller, Date, Time, Channel, ID, Reason, Descrip, RecordID)
ZENX_LISTS_ALL_BESIDE(ZenxEventDddData, NKVRHXA20::TCIMDateTime)

ZENX_FIELDS(ZenxEventSoftData, Controller, LogTitle, RecordID)
ZENX_LISTS_ALL_BESIDE(ZenxEventSoftData, std::vector<std::uint32_t>, NKVRHXA20::TCIMDateTime)

ZENX_FIELDS(ZenxEventHardData, Controller, LogTitle, RecordID)
ZENX_LISTS_ALL_BESIDE(ZenxEventHardData, std::vector<std::uint32_t>, NKVRHXA20::TCIMDateTime)

ZENX_FIELDS(ZenxBstData, ControllerNum, LogicalDrive, NumBadStripes)
ZENX_LISTS_ALL_BESIDE(ZenxBstData)

ZENX_FIELDS(ZenxEventData, ControllerNum, Channel, ScsiId, NumParityErrors, NumSoftErrors, NumHardErrors, PFA, Misc)
ZENX_LISTS_ALL_BESIDE(ZenxEventData, NKVRHXA20::TCIMDateTime)

ZENX_FIELDS(ZenxSubStatData, ControllerNum, Channel, ScsiId, InstanceID, Params, Req_Off, Max_Txer_P, Cur_Txer_p)
ZENX_LISTS_ALL_BESIDE(ZenxSubStatData, NKVRHXA20::TCIMDateTime)
