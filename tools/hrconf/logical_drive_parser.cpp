#include "tools/hrconf/logical_drive_parser.h"

#include "collect/end_of_text.h"
#include "collect/labelled_fields.h"

namespace hrconf {
namespace {

// In the order in which the tool prints them. Size and write cache status come as a pair: without the size, the line of
// the write cache status is used up in its place, and neither is read.
constexpr LabelledField<ZenxLogicalDevice> kLogicalDrive[] = {
    {"Logical drive name",        &ZenxLogicalDevice::LogicalDriveName,      Miss::kCostsNothing},
    {"RAID level",                &ZenxLogicalDevice::RaidLevel,             Miss::kCostsNothing},
    {"Status of logical drive",   &ZenxLogicalDevice::LogicalDriveStatus,    Miss::kCostsNothing},
    {"Additional information",    &ZenxLogicalDevice::AdditionalInformation, Miss::kCostsNothing},
    {"Size",                      &ZenxLogicalDevice::Size,                  Miss::kTakesLine   },
    {"Write cache status",        &ZenxLogicalDevice::WriteCacheStatus,      Miss::kCostsNothing},
    {"Number of chunks",          &ZenxLogicalDevice::NumOfChunks,           Miss::kCostsNothing},
    {"Stripe-unit size",          &ZenxLogicalDevice::StripeUnitSize,        Miss::kCostsNothing},
    {"Drive(s) (Channel,Device)", &ZenxLogicalDevice::DriveList,             Miss::kCostsNothing},
};

}  // namespace

void ParseLogicalDrive(ZenxLogicalDevice& drive, CollectedData& text, std::string_view controllerNumber,
                       std::string_view driveNumber) {
  drive.ControllerNum = controllerNumber;
  drive.LogicalDriveNum = driveNumber;
  UntilEndOfText([&] { ReadInOrder(text, drive, kLogicalDrive); });
}

}  // namespace hrconf
