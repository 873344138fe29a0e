#include "tools/qcmdrun/logical_drive_parser.h"

#include "collect/labelled_fields.h"
#include "collect/records.h"

namespace qcmdrun {

namespace {

// Two lines are printed only where there is something to say; all others are always there, and each counts as read
// whatever it holds.
constexpr LabelledField<ZenxLogicalDevice> kLogicalDrive[] = {
    {"Status of logical drive", &ZenxLogicalDevice::LogicalDriveStatus,    Miss::kTakesLine   },
    {"Additional information",  &ZenxLogicalDevice::AdditionalInformation, Miss::kCostsNothing},
    {"RAID level",              &ZenxLogicalDevice::RaidLevel,             Miss::kTakesLine   },
    {"Size (in MB)",            &ZenxLogicalDevice::Size,                  Miss::kTakesLine   },
    {"Write cache status",      &ZenxLogicalDevice::WriteCacheStatus,      Miss::kTakesLine   },
    {"Number of chunks",        &ZenxLogicalDevice::NumOfChunks,           Miss::kTakesLine   },
    {"Stripe-unit size",        &ZenxLogicalDevice::StripeUnitSize,        Miss::kTakesLine   },
    {"Access blocked",          &ZenxLogicalDevice::AccessBlocked,         Miss::kTakesLine   },
    {"Part of array",           &ZenxLogicalDevice::PartOfArray,           Miss::kTakesLine   },
    {"Part of merge group",     &ZenxLogicalDevice::PartOfMergeGroup,      Miss::kCostsNothing},
};

}  // namespace

void ParseLogicalDrive(ZenxLogicalDevice& drive, CollectedData& text, std::string_view driveNumber,
                       std::string_view controllerNumber) {
  drive.LogicalDriveNum = driveNumber;
  drive.ControllerNum = controllerNumber;
  ReadInOrder(text, drive, kLogicalDrive);
}

}  // namespace qcmdrun
