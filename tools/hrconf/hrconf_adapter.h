#pragma once

#include <string>

#include "collect/records.h"
#include "platform/os_version.h"

// Collects the controllers that hrconf answers for.
class HrconfData {
 public:
  // Systems of version 6.0 are collected from differently; getOsVersion tells which this is.
  explicit HrconfData(HostHandle host, OsVersion (*getOsVersion)() = GetOsVersion)
      : host_(host), getOsVersion_(getOsVersion) {}
  virtual ~HrconfData() = default;

  // To be called once, with the number of controllers found before: numbering goes on from there.
  void Collect(unsigned firstControllerNumber);

  ControllerList GetControllers() const { return controllers_; }
  RawDataList GetRawData() const { return rawData_; }

 private:
  void ParseConfig(std::string config, unsigned toolNumber, unsigned controllerNumber);
  std::shared_ptr<ZenxHrConfBios> ReadVersions(unsigned toolNumber) const;

  ControllerList controllers_;
  RawDataList rawData_;
  HostHandle host_;
  OsVersion (*getOsVersion_)();
};
