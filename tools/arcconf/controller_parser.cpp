#include "tools/arcconf/controller_parser.h"

#include "collect/ascii_text.h"
#include "collect/labelled_fields.h"
#include "collect/model_table.h"
#include "collect/tool.h"
#include "tools/arcconf/labels.h"

namespace arcconf {
namespace {

struct SectionLabels {
  Section section;
  LabelTable<ZenxController> labels;
};

constexpr SectionLabels kSections[] = {
    {{},               kController       },
    {kControllerPlace, kControllerSection},
    {kBatteryPlace,    kBatterySection   },
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
