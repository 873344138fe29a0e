#include "publish/publish_logs.h"

#include <iterator>

#include "logs/event_records.h"
#include "publish/property_table.h"

using namespace NKVRHXA20;

namespace {

constexpr const char* kSoftEventClass = "KVRSG_LogRecord_SoftEvent";
constexpr const char* kDddClass = "KVRSG_LogRecord_zxDDD";

// The codes of a log as the host counts and keeps them.
template <class Log>
std::string NumEntries(const ZenxController&, const Log& log) {
  return std::to_string(log.Codes.size());
}

template <class Log>
TCIMValue HexCodes(const ZenxController&, const Log& log) {
  return {kCIMUInt32, 0, std::vector<TCIMValue>(log.Codes.begin(), log.Codes.end())};
}

// A controller has one log of each kind at most, so its number is record identifier enough.
using Soft = ZenxEventSoftData;
constexpr Property<ZenxController, Soft> kSoftEventProperties[] = {
    {"CreationClassName",    kSoftEventClass               },
    {"LogCreationClassName", kSoftEventClass               },
    {"LogName",              kSoftEventClass               },
    {"MessageTimestamp",     &Soft::MessageTimestamp       },
    {"RecordID",             &ZenxController::ControllerNum},
    {"ControllerNum",        &ZenxController::ControllerNum},
    {"NumEntries",           NumEntries<Soft>              },
    {"HexSoftEvent",         HexCodes<Soft>                },
};

// Hard events have always gone by the name of the soft ones; programs select them by it.
using Hard = ZenxEventHardData;
constexpr Property<ZenxController, Hard> kHardEventProperties[] = {
    {"CreationClassName",    kSoftEventClass               },
    {"LogCreationClassName", kSoftEventClass               },
    {"LogName",              kSoftEventClass               },
    {"ControllerNum",        &ZenxController::ControllerNum},
    {"MessageTimestamp",     &Hard::MessageTimestamp       },
    {"RecordID",             &ZenxController::ControllerNum},
    {"NumEntries",           NumEntries<Hard>              },
    {"HexHardEvent",         HexCodes<Hard>                },
};

using Ddd = ZenxEventDddData;
constexpr Property<Ddd> kDddProperties[] = {
    {"CreationClassName",    kDddClass             },
    {"LogCreationClassName", kDddClass             },
    {"LogName",              kDddClass             },
    {"Controller",           &Ddd::Controller      },
    {"MessageTimestamp",     &Ddd::MessageTimestamp},
    {"RecordID",             &Ddd::RecordID        },
    {"Date",                 &Ddd::Date            },
    {"Time",                 &Ddd::Time            },
    {"Channel",              &Ddd::Channel         },
    {"ID",                   &Ddd::ID              },
    {"Reason",               &Ddd::Reason          },
    {"Descrip",              &Ddd::Descrip         },
};
static_assert(std::size(kDddProperties) == 12);

// "RAIMgr" in the second row is how the log's own class has always been written.
constexpr Property<RaidMgrEvent> kRaidManagerEventProperties[] = {
    {"CreationClassName",    "KVRSG_LogRecord_RAIDMgrEvent" },
    {"LogCreationClassName", "KVRSG_LogRecord_RAIMgrEvent"  },
    {"LogName",              "Zentraxis Manager"            },
    {"MessageTimestamp",     &RaidMgrEvent::MessageTimestamp},
    {"RecordID",             &RaidMgrEvent::RecordID        },
    {"Severity",             &RaidMgrEvent::Severity        },
    {"MachineName",          &RaidMgrEvent::MachineName     },
    {"Message",              &RaidMgrEvent::Message         },
};

}  // namespace

void PublishSoftEvents(const PublishContext& context, ICIMClass& publishedClass) {
  for (const auto& controller : context.collector.GetControllers()) {
    if (controller->SoftEvents) {
      PublishAsHeld(publishedClass, kSoftEventProperties, *controller, *controller->SoftEvents);
    }
  }
}

void PublishHardEvents(const PublishContext& context, ICIMClass& publishedClass) {
  for (const auto& controller : context.collector.GetControllers()) {
    if (controller->HardEvents) {
      PublishAsHeld(publishedClass, kHardEventProperties, *controller, *controller->HardEvents);
    }
  }
}

void PublishDddEvents(const PublishContext& context, ICIMClass& publishedClass) {
  for (const auto& controller : context.collector.GetControllers()) {
    for (const auto& event : controller->DddEvents) PublishAsHeld(publishedClass, kDddProperties, *event);
  }
}

void PublishRaidManagerEvents(const PublishContext& context, ICIMClass& publishedClass) {
  CollectRaidMgrData& log = context.raidManagerLog;
  if (!log.LogAvailable()) {
    Log(context.host, kLogWarning, "There are no KVRSG_LogRecord_RAIDMgrEvent Log file or no path to it");
  }
  for (RaidMgrRead read = log.ReadNextRecord(); read != RaidMgrRead::kEnd; read = log.ReadNextRecord()) {
    if (read == RaidMgrRead::kRecord) PublishAsHeld(publishedClass, kRaidManagerEventProperties, log.CurrentRecord());
  }
}
