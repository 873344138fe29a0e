#include "plugin/query.h"

#include <algorithm>
#include <exception>
#include <string>

#include "plugin/host_interface/services.h"
#include "publish/publish_associations.h"
#include "publish/publish_common.h"
#include "publish/publish_devices.h"
#include "publish/publish_logs.h"
#include "publish/publish_raw_data.h"
#include "publish/publish_statistics.h"
#include "publish/publish_versions.h"

using namespace NKVRHXA20;

namespace {

constexpr const char* kOperatingSystem = "KVRSG_OperatingSystem";
constexpr unsigned short kOsTypeWithoutHrconf = 82;

// Recognised, so that asking for them is no error, and left empty.
void PublishNothing(const PublishContext&, ICIMClass&) {}

constexpr CatalogueEntry kCatalogue[] = {
    {"KVRSG_zxManagerRawData",                    PublishManagerRawData          },
    {"KVRSG_zxRawData",                           PublishRawData                 },
    {"KVRSG_zxSCSIProtocolController",            PublishControllers             },
    {"KVRSG_zxLogicalDisk",                       PublishLogicalDisks            },
    {"KVRSG_zxDiskGroup",                         PublishDiskGroups              },
    {"KVRSG_zxDiskDrive",                         PublishDiskDrives              },
    {"KVRSG_DiskGroup",                           PublishNothing                 },
    {"KVRSG_BadStripeData",                       PublishBadStripes              },
    {"KVRSG_zxSCSIDeviceData",                    PublishDeviceData              },
    {"KVRSG_zxSCSISubStatData",                   PublishSubStats                },
    {"KVRSG_LogRecord_SoftEvent",                 PublishSoftEvents              },
    {"KVRSG_LogRecord_zxDDD",                     PublishDddEvents               },
    {"KVRSG_LogRecord_HardEvent",                 PublishHardEvents              },
    {"KVRSG_LogRecord_RAIDMgrEvent",              PublishRaidManagerEvents       },
    {"KVRSG_zxFirmwareVersion",                   PublishFirmwareVersions        },
    {"KVRSG_zxBootBlockVersion",                  PublishBootBlockVersions       },
    {"KVRSG_zxDiskDriveVersion",                  PublishDiskDriveVersions       },
    {"KVRSG_zxBiosVersion",                       PublishBiosVersions            },
    {"KVRSG_zxProtocolControllerForUnit",         PublishControllerToLogicalDisks},
    {"KVRSG_zxProtocolControllerForPhysicalDisk", PublishControllerToDiskDrives  },
    {"KVRSG_zxDriveInDiskGroup",                  PublishNothing                 },
    {"KVRSG_zxExtenInDiskGroup",                  PublishNothing                 },
    {"KVRSG_zxStripeOrderForController",          PublishControllerToDiskGroups  },
    {"KVRSG_zxFirmwareOnController",              PublishControllerToFirmware    },
    {"KVRSG_zxBootBlockOnController",             PublishControllerToBootBlock   },
    {"KVRSG_zxFirmwareOnDiskDrive",               PublishDiskDriveToFirmware     },
    {"KVRSG_zxBiosOnController",                  PublishControllerToBios        },
    {"KVRSG_ElementZxScsiDeviceData",             PublishDiskDriveToDeviceData   },
    {"KVRSG_ElementBadStripeData",                PublishLogicalDiskToBadStripes },
};

TPropertyMap PluginContext() {
  return {
      {TCIMSchemaHelper::kContextName, TCIMValue(std::string(TCIMSchemaHelper::kPluginNSPName))}
  };
}

// On one kind of operating system hrconf is not to be run. A host that cannot tell does not have it.
bool HasToSkipHrconf(ICIMNamespace& nameSpace, const TPropertyMap& context) {
  const auto systems = InstancesOf(nameSpace, kOperatingSystem, context);
  if (systems.empty()) return false;
  try {
    const auto osType = systems.front()->GetProperty("OSType", {});
    return osType && static_cast<unsigned short>(osType->GetValue({})) == kOsTypeWithoutHrconf;
  } catch (const THXAException&) {
    return false;  // no such property
  }
}

void CollectOnce(QueryState& state, HostHandle host, bool skipHrconf) {
  state.collector = std::make_unique<ZenxCollectData>(host);
  state.collectPending = false;
  try {
    state.collector->Collect(skipHrconf);
  } catch (const std::exception& failure) {
    LogReason(host, std::string("Collection aborted: ") + failure.what());
  }
}

}  // namespace

std::span<const CatalogueEntry> Catalogue() { return kCatalogue; }

void RunQuery(QueryState& state, HostHandle host, ICIMNamespace& nameSpace,
              const std::vector<boost::shared_ptr<ICIMClass>>& classes) {
  const TPropertyMap lookupContext = PluginContext();
  ++state.callCounter;
  if (state.collectPending) CollectOnce(state, host, HasToSkipHrconf(nameSpace, lookupContext));
  if (!state.raidManagerLog) state.raidManagerLog = std::make_unique<CollectRaidMgrData>(host);

  const PublishContext context{nameSpace, lookupContext, *state.collector, *state.raidManagerLog, host};
  for (const auto& requested : classes) {
    const std::string name = requested->GetName({});
    const auto entry = std::ranges::find(kCatalogue, name, &CatalogueEntry::name);
    if (entry != std::end(kCatalogue)) entry->routine(context, *requested);
  }
}
