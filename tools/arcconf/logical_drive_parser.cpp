#include "tools/arcconf/logical_drive_parser.h"

#include "collect/end_of_text.h"
#include "collect/labelled_fields.h"

namespace arcconf {
namespace {

// In the order in which the tool prints them. A stripe order printed behind the defunct segments is no field of the
// drive: it is left to the reader of stripe orders.
constexpr LabelledField<ZenxLogicalDevice> kLogicalDrive[] = {
    {"Logical drive name",      &ZenxLogicalDevice::LogicalDriveName  },
    {"RAID level",              &ZenxLogicalDevice::RaidLevel         },
    {"Status of logical drive", &ZenxLogicalDevice::LogicalDriveStatus},
    {"Status of RAID 5EE",      &ZenxLogicalDevice::Raid5EEStatus     },
    {"Size",                    &ZenxLogicalDevice::Size              },
    {"Read-cache mode",         &ZenxLogicalDevice::ReadCacheStatus   },
    {"Write-cache mode",        &ZenxLogicalDevice::WriteCacheStatus  },
    {"Write-cache setting",     &ZenxLogicalDevice::WriteCacheSetting },
    {"Partitioned",             &ZenxLogicalDevice::Partitioned       },
    {"Number of segments",      &ZenxLogicalDevice::NumOfSegments     },
    {"Stripe-unit size",        &ZenxLogicalDevice::StripeUnitSize    },
    {"Drive(s)",                &ZenxLogicalDevice::DriveList         },
    {"Stripe order",            &ZenxLogicalDevice::StripeOrder       },
    {"Defunct segments",        &ZenxLogicalDevice::DefunctSegments   },
    {"Defunct stripes",         &ZenxLogicalDevice::DefunctStripes    },
};

}  // namespace

void ParseLogicalDrive(ZenxLogicalDevice& drive, CollectedData& text, std::string_view controllerNumber,
                       std::string_view driveNumber) {
  drive.ControllerNum = controllerNumber;
  drive.LogicalDriveNum = driveNumber;
  UntilEndOfText([&] { ReadInOrder(text, drive, kLogicalDrive); });
}

}  // namespace arcconf
