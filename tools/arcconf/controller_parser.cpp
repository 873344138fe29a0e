#include "tools/arcconf/controller_parser.h"

#include "collect/ascii_text.h"
#include "collect/labelled_fields.h"
#include "collect/model_table.h"
#include "collect/tool.h"
#include "tools/arcconf/labels.h"

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

struct SectionLabels {
  Section section;
  LabelTable<ZenxController> labels;
};

constexpr SectionLabels kSections[] = {
    {{},                                                                  kController       },
    {{kControllerHeading, "Controller Version Information"},              kControllerSection},
    {{"Controller Battery Information", "Controller Vital Product Data"}, kBatterySection   },
};

// Onboard controllers have been seen that name neither.
std::string_view ControllerType(std::string_view config) {
  const std::string_view model = NameOfModel(GetSectionValue(kModel.label, config), kModels);
  if (!model.empty()) return model;
  const std::string_view type = GetSectionValue(kType.label, config);
  return type.empty() ? "Unnamed HostRAID" : type;
}

}  // namespace

void ParseController(ZenxController& controller, std::string_view config, unsigned controllerNumber) {
  controller.ControllerNum = std::to_string(controllerNumber);
  if (!Contains(config, kControllerHeading)) return;
  controller.ControllerType = ControllerType(config);
  for (const auto& [section, labels] : kSections) {
    for (const auto& row : labels) controller.*row.field = GetSectionValue(row.label, config, section);
  }
  controller.Parsed = true;
}

}  // namespace arcconf
