#pragma once

#include <memory>

#include "collect/records.h"

class QcmdrunData;
class HrconfData;
class ArcconfData;

// Runs the adapters one after the other and merges what they found. Each adapter adds its utility's own number to the
// count of the controllers before it. Where a utility's numbers have a gap (1 and 3), the next adapter therefore starts
// at a number that is given already, and two controllers have it; hosts know them under these numbers.
class ZenxCollectData {
 public:
  // Starts with the lists that it is given: records that are published without any tool being run.
  explicit ZenxCollectData(HostHandle host, ControllerList controllers = {}, RawDataList rawData = {});
  virtual ~ZenxCollectData();

  // To be called once. What an adapter lets pass (the legacy utility's cut-off output) passes here too, and the lists
  // then hold what the adapters before it found.
  void Collect(bool skipHrconf);

  ControllerList GetControllers() const { return controllers_; }
  RawDataList GetRawData() const { return rawData_; }

 private:
  template <class Adapter>
  void Run(std::unique_ptr<Adapter>& adapter);

  ControllerList controllers_;
  RawDataList rawData_;
  std::unique_ptr<QcmdrunData> qcmdrun_;
  std::unique_ptr<HrconfData> hrconf_;
  std::unique_ptr<ArcconfData> arcconf_;
  HostHandle host_;
};
