#include "tools/qcmdrun/controller_parser.h"

#include <string>

#include "collect/ascii_text.h"
#include "collect/labelled_fields.h"
#include "collect/model_table.h"
#include "collect/records.h"

namespace qcmdrun {

namespace {

// A label's first occurrence anywhere in the answer counts, also one in a later section: a utility that leaves a line
// out of the controller's section so has the value taken from there.
constexpr LabelledField<ZenxController> kController[] = {
    {"Controller type",                 &ZenxController::ControllerType             },
    {"Controller FRU",                  &ZenxController::ControllerFRU              },
    {"Controller Serial Number",        &ZenxController::SerialNum                  },
    {"Part number",                     &ZenxController::PartNum                    },
    {"Actual BIOS version",             &ZenxController::BiosVersion                },
    {"Firmware version",                &ZenxController::FirmwareVersion            },
    {"Boot block version",              &ZenxController::BootBlockVersion           },
    {"Device driver version",           &ZenxController::DeviceDriverVersion        },
    {"Cluster solution",                &ZenxController::ClusterSolutionVersion     },
    {"Controller slot information",     &ZenxController::ControllerSlotInfo         },
    {"Controller name",                 &ZenxController::ControllerName             },
    {"SCSI channel description",        &ZenxController::ScsiChannelDescr           },
 // Without its closing parenthesis, so that a line that has more inside the parentheses is found too.
    {"Initiator IDs (Channel/SCSI ID",  &ZenxController::InitiatorChannelScsiId     },
    {"Maximum physical devices",        &ZenxController::MaxPhysicalDevices         },
    {"Defunct disk drive count",        &ZenxController::DefunctDiskDriveCnt        },
    {"Logical drives/Offline/Critical", &ZenxController::LogicalDriveStatusCnt      },
    {"Readahead cache setting",         &ZenxController::ReadAhead                  },
    {"Stripe-unit size",                &ZenxController::StripeUnitSize             },
    {"Rebuild rate (Low/Medium/High)",  &ZenxController::RebuildRate                },
    {"Hot-swap rebuild",                &ZenxController::HotSwapRebuild             },
    {"Data scrubbing",                  &ZenxController::DataScrubbing              },
    {"Hot-spare",                       &ZenxController::HotSpareCopyBack           },
    {"Part of cluster (Yes/No)",        &ZenxController::PartOfCluster              },
    {"Unattended mode (Yes/No)",        &ZenxController::UnattendedMode             },
    {"Concurrent commands supported",   &ZenxController::ConcurrentCommandsSupported},
    {"Configuration update count",      &ZenxController::ConfigurationUpdateCount   },
};

// The first hit wins: "C6-e" stands before "C6", which it contains. The two oldest models are written with a hyphen.
constexpr ModelName kModels[] = {
    {"C4",   "Zentraxis C4"  },
    {"C6-e", "Zentraxis C6-e"},
    {"C6",   "Zentraxis C6"  },
    {"C5",   "Zentraxis C5"  },
    {"B3",   "Zentraxis-B3"  },
    {"A2",   "Zentraxis-A2"  },
};

}  // namespace

void ParseController(ZenxController& controller, std::string_view text, unsigned number) {
  controller.ControllerNum = std::to_string(number);
  if (!Contains(text, "Controller information")) return;
  for (const auto& row : kController) controller.*row.field = GetSectionValue(row.label, text);
  controller.ControllerType = std::string(NameOfModel(controller.ControllerType, kModels));
  controller.Parsed = true;
}

}  // namespace qcmdrun
