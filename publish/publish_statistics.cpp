#include "publish/publish_statistics.h"

#include <iterator>
#include <optional>

#include "logs/statistics_records.h"
#include "publish/identifiers.h"
#include "publish/instance_index.h"
#include "publish/property_table.h"
#include "publish/publish_common.h"

using namespace NKVRHXA20;

namespace {

using SubStat = ZenxSubStatData;
constexpr Property<SubStat> kSubStatProperties[] = {
    {"ControllerNum", &SubStat::ControllerNum},
    {"StatisticTime", &SubStat::StatisticTime},
    {"Channel",       &SubStat::Channel      },
    {"ScsiId",        &SubStat::ScsiId       },
    {"InstanceID",    &SubStat::InstanceID   },
    {"Params",        &SubStat::Params       },
    {"Req_Off",       &SubStat::Req_Off      },
    {"Max_Txer_P",    &SubStat::Max_Txer_P   },
    {"Cur_Txer_p",    &SubStat::Cur_Txer_p   }, // the class declares it with a small p
};

std::string DeviceDataInstance(const ZenxController& controller, const ZenxEventData& device) {
  return DeviceDataId(controller.ControllerNum, device.Channel, device.ScsiId);
}

using Device = ZenxEventData;
constexpr Property<ZenxController, Device> kDeviceDataProperties[] = {
    {"InstanceID",      DeviceDataInstance      },
    {"StatisticTime",   &Device::StatisticTime  },
    {"ControllerNum",   &Device::ControllerNum  },
    {"Channel",         &Device::Channel        },
    {"Misc",            &Device::Misc           },
    {"NumHardErrors",   &Device::NumHardErrors  },
    {"NumParityErrors", &Device::NumParityErrors},
    {"NumSoftErrors",   &Device::NumSoftErrors  },
    {"PFA",             &Device::PFA            },
    {"ScsiId",          &Device::ScsiId         },
};
static_assert(std::size(kDeviceDataProperties) == 10);

std::string BadStripeInstance(const ZenxController& controller, const ZenxBstData& badStripes) {
  return BadStripeId(controller.ControllerNum, badStripes.LogicalDrive);
}

constexpr Property<ZenxController, ZenxBstData> kBadStripeProperties[] = {
    {"InstanceID",    BadStripeInstance          },
    {"ControllerNum", &ZenxBstData::ControllerNum},
    {"LogicalDrive",  &ZenxBstData::LogicalDrive },
    {"NumBadStripes", &ZenxBstData::NumBadStripes},
};

constexpr const char* kNoBadStripes = "0";

void PublishZero(ICIMClass& publishedClass, const ZenxController& controller, ICIMInstance& logicalDisk) {
  ZenxBstData none(controller.Host);
  none.ControllerNum = controller.ControllerNum;
  none.LogicalDrive = TextOf(logicalDisk, "LogicalDriveNum");
  none.NumBadStripes = kNoBadStripes;
  PublishAsHeld(publishedClass, kBadStripeProperties, controller, none);
}

}  // namespace

void PublishSubStats(const PublishContext& context, ICIMClass& publishedClass) {
  for (const auto& controller : context.collector.GetControllers()) {
    for (const auto& status : controller->SubStats) PublishAsHeld(publishedClass, kSubStatProperties, *status);
  }
}

void PublishDeviceData(const PublishContext& context, ICIMClass& publishedClass) {
  for (const auto& controller : context.collector.GetControllers()) {
    for (const auto& device : controller->DeviceEvents) {
      PublishAsHeld(publishedClass, kDeviceDataProperties, *controller, *device);
    }
  }
}

void PublishBadStripes(const PublishContext& context, ICIMClass& publishedClass) {
  bool badStripesExist = false;
  std::optional<InstanceIndex> logicalDisks;  // asked for only when a controller lists no bad stripes
  for (const auto& controller : context.collector.GetControllers()) {
    for (const auto& badStripes : controller->BadStripes) {
      PublishAsHeld(publishedClass, kBadStripeProperties, *controller, *badStripes);
      if (badStripes->NumBadStripes != kNoBadStripes) badStripesExist = true;
    }
    if (!controller->BadStripes.empty()) continue;
    if (!logicalDisks) logicalDisks.emplace(context, "KVRSG_zxLogicalDisk", ControllerNumberOf);
    for (const auto& disk : logicalDisks->Find(controller->ControllerNum)) {
      PublishZero(publishedClass, *controller, *disk);
    }
  }
  if (badStripesExist) {
    Log(context.host, kLogForEngineer, "There exist bad stripes in Logical Drive of Zentraxis.");
  }
}
