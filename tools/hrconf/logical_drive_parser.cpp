#include "tools/hrconf/logical_drive_parser.h"

#include "collect/end_of_text.h"
#include "collect/labelled_fields.h"
#include "tools/hrconf/labels.h"

namespace hrconf {

void ParseLogicalDrive(ZenxLogicalDevice& drive, CollectedData& text, std::string_view controllerNumber,
                       std::string_view driveNumber) {
  drive.ControllerNum = controllerNumber;
  drive.LogicalDriveNum = driveNumber;
  UntilEndOfText([&] { ReadInOrder(text, drive, kLogicalDrive); });
}

}  // namespace hrconf
