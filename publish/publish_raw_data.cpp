#include "publish/publish_raw_data.h"

#include "publish/property_table.h"
#include "publish/publish_common.h"

using namespace NKVRHXA20;

namespace {

TCIMValue Lines(const ZenxRawData& rawData) { return StringArray(rawData.RawResults); }

constexpr Property<ZenxRawData> kRawDataProperties[] = {
    {"Command",    &ZenxRawData::Command},
    {"RawResults", Lines                },
};

void PublishAll(const RawDataList& rawData, ICIMClass& publishedClass) {
  for (const auto& record : rawData) PublishAsHeld(publishedClass, kRawDataProperties, *record);
}

}  // namespace

void PublishRawData(const PublishContext& context, ICIMClass& publishedClass) {
  const RawDataList rawData = context.collector.GetRawData();
  if (rawData.empty()) return LogReason(context.host, "ZenxRawDataVector is empty: ");
  PublishAll(rawData, publishedClass);
}

void PublishManagerRawData(const PublishContext& context, ICIMClass& publishedClass) {
  if (!context.raidManagerLog.LogAvailable()) return LogReason(context.host, "RaidMgrLog does not exist: ");
  const RawDataList rawData = context.raidManagerLog.GetRawData();
  if (rawData.empty()) return LogReason(context.host, "RaidMgrLog is empty: ");
  PublishAll(rawData, publishedClass);
}
