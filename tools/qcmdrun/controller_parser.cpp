#include "tools/qcmdrun/controller_parser.h"

#include <string>

#include "collect/ascii_text.h"
#include "collect/labelled_fields.h"
#include "collect/model_table.h"
#include "collect/records.h"
#include "collect/tool.h"
#include "tools/qcmdrun/labels.h"

namespace qcmdrun {

void ParseController(ZenxController& controller, std::string_view text, unsigned number) {
  controller.ControllerNum = std::to_string(number);
  if (!Contains(text, kControllerHeading)) return;
  for (const auto& row : kController) controller.*row.field = GetSectionValue(row.label, text);
  controller.ControllerType = std::string(NameOfModel(controller.ControllerType, kModels));
  controller.Parsed = true;
}

}  // namespace qcmdrun
