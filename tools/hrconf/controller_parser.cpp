#include "tools/hrconf/controller_parser.h"

#include "collect/labelled_fields.h"
#include "collect/tool.h"
#include "tools/hrconf/labels.h"

namespace hrconf {

void ParseController(ZenxController& controller, CollectedData& text, unsigned controllerNumber,
                     const ZenxHrConfBios& versions) {
  controller.ControllerNum = std::to_string(controllerNumber);
  if (text.FindLine(kControllerHeading).empty()) return;
  controller.BiosVersion = versions.BIOS;
  controller.DeviceDriverVersion = versions.Driver;
  ReadAnywhere(text, controller, kController);
  controller.Parsed = true;
}

}  // namespace hrconf
