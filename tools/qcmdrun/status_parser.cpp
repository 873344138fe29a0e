#include "tools/qcmdrun/status_parser.h"

#include "collect/labelled_fields.h"
#include "collect/records.h"

namespace qcmdrun {

namespace {

// "Logical drive" and "Status" are parts of other labels too: the first line that contains them counts, whichever it
// is. The utility prints the short labels first.
constexpr LabelledField<ZenxController> kStatus[] = {
    {"Current/most recent operation",   &ZenxController::Current_MostRecentOperation},
    {"Logical drive",                   &ZenxController::Logical_Drive              },
    {"Background operation active",     &ZenxController::BackgroundOperationActive  },
    {"Status",                          &ZenxController::LastCmdStatus              },
    {"Logical drive size (in stripes)", &ZenxController::LogicalDriveSizeInStripes  },
    {"Number of remaining stripes",     &ZenxController::NumberOfRemainingStripes   },
};

}  // namespace

void ParseStatus(ZenxController& controller, CollectedData& text) {
  ReadAnywhere<ZenxController>(text, controller, kStatus);
}

}  // namespace qcmdrun
