#pragma once

#include <string>

#include "collect/records.h"

// Collects the controllers that arcconf answers for.
class ArcconfData {
 public:
  explicit ArcconfData(HostHandle host) : host_(host) {}
  virtual ~ArcconfData() = default;

  // To be called once, with the number of controllers found before: numbering goes on from there.
  void Collect(unsigned firstControllerNumber);

  ControllerList GetControllers() const { return controllers_; }
  RawDataList GetRawData() const { return rawData_; }

 private:
  void ParseConfig(std::string config, unsigned controllerNumber);

  ControllerList controllers_;
  RawDataList rawData_;
  HostHandle host_;
};
