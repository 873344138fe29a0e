#include "collect/collection_driver.h"

#include <utility>

#include "tools/arcconf/arcconf_adapter.h"
#include "tools/hrconf/hrconf_adapter.h"
#include "tools/qcmdrun/qcmdrun_adapter.h"

namespace {

template <class Record>
void Append(std::vector<std::shared_ptr<Record>>& to, const std::vector<std::shared_ptr<Record>>& from) {
  to.insert(to.end(), from.begin(), from.end());
}

}  // namespace

ZenxCollectData::ZenxCollectData(HostHandle host, ControllerList controllers, RawDataList rawData)
    : controllers_(std::move(controllers)), rawData_(std::move(rawData)), host_(host) {}
ZenxCollectData::~ZenxCollectData() = default;

void ZenxCollectData::Collect(bool skipHrconf) {
  Run(qcmdrun_);
  if (!skipHrconf) Run(hrconf_);
  Run(arcconf_);
}

template <class Adapter>
void ZenxCollectData::Run(std::unique_ptr<Adapter>& adapter) {
  adapter = std::make_unique<Adapter>(host_);
  adapter->Collect(static_cast<unsigned>(controllers_.size()));
  Append(rawData_, adapter->GetRawData());
  Append(controllers_, adapter->GetControllers());
}
