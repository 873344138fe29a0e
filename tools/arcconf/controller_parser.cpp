#include "tools/arcconf/controller_parser.h"

#include "collect/ascii_text.h"
#include "collect/labelled_fields.h"
#include "collect/model_table.h"

namespace arcconf {
namespace {

// The tool prints the maker's names of older models; the C models are written with a blank, the others with a hyphen.
constexpr ModelName kModels[] = {
    {"C4",                "Zentraxis C4"  },
    {"C6-e",              "Zentraxis C6-e"}, // before "C6", which it contains
    {"C6",                "Zentraxis C6"  },
    {"KVR Tolvar NEBULA", "Zentraxis C6"  },
    {"C5",                "Zentraxis C5"  },
    {"Tolvar 4800X",      "Zentraxis C5"  },
    {"B3",                "Zentraxis-B3"  },
    {"Tolvar 2400T",      "Zentraxis-B3"  },
    {"A2",                "Zentraxis-A2"  },
};

// A label that counts anywhere is taken from the first line of the report that contains it.
constexpr Section kAnywhere = {};
// Temperature and status are printed of other things too: drives, enclosures, batteries.
constexpr Section kController = {"Controller information", "Controller Version Information"};
constexpr Section kBattery = {"Controller Battery Information", "Controller Vital Product Data"};

struct SectionField {
  std::string_view label;
  std::string ZenxController::*field;
  Section section;
};

constexpr SectionField kFields[] = {
    {"Controller Status",               &ZenxController::ControllerStatus,          kAnywhere  },
    {"Channel description",             &ZenxController::ChannelDescription,        kAnywhere  },
    {"Controller Serial Number",        &ZenxController::SerialNum,                 kAnywhere  },
    {"Physical Slot",                   &ZenxController::ControllerSlotInfo,        kAnywhere  },
    {"Temperature",                     &ZenxController::ControllerTemp,            kController},
    {"Installed memory",                &ZenxController::InstalledMemory,           kAnywhere  },
    {"Copyback",                        &ZenxController::CopyBackEnabled,           kAnywhere  },
    {"Data scrubbing",                  &ZenxController::DataScrubbing,             kAnywhere  },
    {"Defunct disk drive count",        &ZenxController::DefunctDiskDriveCnt,       kAnywhere  },
    {"Logical drives/Offline/Critical", &ZenxController::LogicalDriveStatusCnt,     kAnywhere  },
    {"BIOS",                            &ZenxController::BiosVersion,               kAnywhere  },
    {"Firmware",                        &ZenxController::FirmwareVersion,           kAnywhere  },
    {"Driver",                          &ZenxController::DeviceDriverVersion,       kAnywhere  },
    {"Boot",                            &ZenxController::BootBlockVersion,          kAnywhere  },
    {"Status",                          &ZenxController::ControllerBatteryStatus,   kBattery   },
    {"Over temperature",                &ZenxController::ControllerBatteryOverTemp, kAnywhere  },
    {"Capacity",                        &ZenxController::ControllerBatteryCapacity, kAnywhere  },
    {"Time remaining",                  &ZenxController::BatteryTimeRemaining,      kAnywhere  },
    {"VPD Assigned#",                   &ZenxController::VPD,                       kAnywhere  },
    {"EC Version#",                     &ZenxController::ECVersion,                 kAnywhere  },
    {"Controller FRU#",                 &ZenxController::ControllerFRU,             kAnywhere  },
    {"Battery FRU#",                    &ZenxController::ControllerBatteryFRU,      kAnywhere  },
};

// A model wins over a type; onboard controllers have been seen that name neither.
std::string_view ControllerType(std::string_view config) {
  const std::string_view model = NameOfModel(GetSectionValue("Controller Model", config), kModels);
  if (!model.empty()) return model;
  const std::string_view type = GetSectionValue("Controller type", config);
  return type.empty() ? "Unnamed HostRAID" : type;
}

}  // namespace

void ParseController(ZenxController& controller, std::string_view config, unsigned controllerNumber) {
  controller.ControllerNum = std::to_string(controllerNumber);
  if (!Contains(config, "Controller information")) return;
  controller.ControllerType = ControllerType(config);
  for (const auto& [label, field, section] : kFields) controller.*field = GetSectionValue(label, config, section);
  controller.Parsed = true;
}

}  // namespace arcconf
