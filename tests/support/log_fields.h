#pragma once

#include "logs/event_records.h"
#include "logs/statistics_records.h"
#include "tests/support/self_named.h"

// Every text field of the records that logs and statistics are published from.

inline constexpr NamedField<ZenxEventDddData> kDddFields[] = {
    {"Controller", &ZenxEventDddData::Controller},
    {"Date",       &ZenxEventDddData::Date      },
    {"Time",       &ZenxEventDddData::Time      },
    {"Channel",    &ZenxEventDddData::Channel   },
    {"ID",         &ZenxEventDddData::ID        },
    {"Reason",     &ZenxEventDddData::Reason    },
    {"Descrip",    &ZenxEventDddData::Descrip   },
    {"RecordID",   &ZenxEventDddData::RecordID  },
};

inline constexpr NamedField<ZenxEventSoftData> kSoftEventFields[] = {
    {"Controller", &ZenxEventSoftData::Controller},
    {"LogTitle",   &ZenxEventSoftData::LogTitle  },
    {"RecordID",   &ZenxEventSoftData::RecordID  },
};

inline constexpr NamedField<ZenxEventHardData> kHardEventFields[] = {
    {"Controller", &ZenxEventHardData::Controller},
    {"LogTitle",   &ZenxEventHardData::LogTitle  },
    {"RecordID",   &ZenxEventHardData::RecordID  },
};

inline constexpr NamedField<ZenxBstData> kBadStripeFields[] = {
    {"ControllerNum", &ZenxBstData::ControllerNum},
    {"LogicalDrive",  &ZenxBstData::LogicalDrive },
    {"NumBadStripes", &ZenxBstData::NumBadStripes},
};

inline constexpr NamedField<ZenxEventData> kDeviceDataFields[] = {
    {"ControllerNum",   &ZenxEventData::ControllerNum  },
    {"Channel",         &ZenxEventData::Channel        },
    {"ScsiId",          &ZenxEventData::ScsiId         },
    {"NumParityErrors", &ZenxEventData::NumParityErrors},
    {"NumSoftErrors",   &ZenxEventData::NumSoftErrors  },
    {"NumHardErrors",   &ZenxEventData::NumHardErrors  },
    {"PFA",             &ZenxEventData::PFA            },
    {"Misc",            &ZenxEventData::Misc           },
};

inline constexpr NamedField<ZenxSubStatData> kSubStatFields[] = {
    {"ControllerNum", &ZenxSubStatData::ControllerNum},
    {"Channel",       &ZenxSubStatData::Channel      },
    {"ScsiId",        &ZenxSubStatData::ScsiId       },
    {"InstanceID",    &ZenxSubStatData::InstanceID   },
    {"Params",        &ZenxSubStatData::Params       },
    {"Req_Off",       &ZenxSubStatData::Req_Off      },
    {"Max_Txer_P",    &ZenxSubStatData::Max_Txer_P   },
    {"Cur_Txer_p",    &ZenxSubStatData::Cur_Txer_p   },
};
