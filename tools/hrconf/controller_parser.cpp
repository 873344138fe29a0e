#include "tools/hrconf/controller_parser.h"

#include "collect/labelled_fields.h"

namespace hrconf {
namespace {

constexpr LabelledField<ZenxController> kController[] = {
    {"Boot",                            &ZenxController::BootBlockVersion     },
    {"Controller Status",               &ZenxController::ControllerStatus     },
    {"Channel description",             &ZenxController::ChannelDescription   },
    {"Defunct disk drive count",        &ZenxController::DefunctDiskDriveCnt  },
    {"Logical drives/Offline/Critical", &ZenxController::LogicalDriveStatusCnt},
};

}  // namespace

void ParseController(ZenxController& controller, CollectedData& text, unsigned controllerNumber,
                     const ZenxHrConfBios& versions) {
  controller.ControllerNum = std::to_string(controllerNumber);
  if (text.FindLine("Controller information").empty()) return;
  controller.BiosVersion = versions.BIOS;
  controller.DeviceDriverVersion = versions.Driver;
  ReadAnywhere(text, controller, kController);
  controller.Parsed = true;
}

}  // namespace hrconf
