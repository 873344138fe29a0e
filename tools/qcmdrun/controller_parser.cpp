#include "tools/qcmdrun/controller_parser.h"

#include <string>

#include "collect/ascii_text.h"
#include "collect/labelled_fields.h"
#include "collect/model_table.h"
#include "collect/records.h"
#include "collect/tool.h"
#include "tools/qcmdrun/labels.h"

namespace qcmdrun {

namespace {

// The first hit wins: "C6-e" comes before "C6", which it contains. The two oldest models are written with a hyphen.
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
  if (!Contains(text, kControllerHeading)) return;
  for (const auto& row : kController) controller.*row.field = GetSectionValue(row.label, text);
  controller.ControllerType = std::string(NameOfModel(controller.ControllerType, kModels));
  controller.Parsed = true;
}

}  // namespace qcmdrun
