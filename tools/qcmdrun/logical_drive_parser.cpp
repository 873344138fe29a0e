#include "tools/qcmdrun/logical_drive_parser.h"

#include "collect/labelled_fields.h"
#include "collect/records.h"
#include "tools/qcmdrun/labels.h"

namespace qcmdrun {

void ParseLogicalDrive(ZenxLogicalDevice& drive, CollectedData& text, std::string_view controllerNumber,
                       std::string_view driveNumber) {
  drive.ControllerNum = controllerNumber;
  drive.LogicalDriveNum = driveNumber;
  ReadInOrder(text, drive, kLogicalDrive);
}

}  // namespace qcmdrun
