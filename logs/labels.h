#pragma once

#include "collect/label_table.h"
#include "logs/event_records.h"
#include "logs/statistics_records.h"

// What the logs and counters of a controller print, and the fields that it feeds.

constexpr LabelledField<ZenxBstData> kBadStripeLabels[] = {
    {"Logical drive ", &ZenxBstData::LogicalDrive},
};

// In the order of the line.
constexpr LabelledField<ZenxSubStatData> kSubStatLabels[] = {
    {"A:",          &ZenxSubStatData::ControllerNum},
    {"C:",          &ZenxSubStatData::Channel      },
    {"I:",          &ZenxSubStatData::ScsiId       },
    {"PARAMS:",     &ZenxSubStatData::Params       },
    {"REQ-OFF:",    &ZenxSubStatData::Req_Off      },
    {"MAX-TXER-P:", &ZenxSubStatData::Max_Txer_P   },
    {"CUR-TXER-P:", &ZenxSubStatData::Cur_Txer_p   },
};

// The titles of the logs; the codes follow, a line each.
constexpr LabelledField<ZenxEventSoftData> kSoftLogLabels[] = {
    {"Controller Soft Event Log", &ZenxEventSoftData::LogTitle},
};
constexpr LabelledField<ZenxEventHardData> kHardLogLabels[] = {
    {"Controller Hard Event Log", &ZenxEventHardData::LogTitle},
};
