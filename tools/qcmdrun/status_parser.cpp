#include "tools/qcmdrun/status_parser.h"

#include "collect/labelled_fields.h"
#include "tools/qcmdrun/labels.h"

namespace qcmdrun {

void ParseStatus(ZenxController& controller, CollectedData& text) { ReadAnywhere(text, controller, kStatus); }

}  // namespace qcmdrun
