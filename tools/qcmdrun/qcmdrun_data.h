#pragma once

#include "collect/records.h"

// Collects the controllers that qcmdrun answers for.
class QcmdrunData {
 public:
  explicit QcmdrunData(HostHandle host) : host_(host) {}
  virtual ~QcmdrunData() = default;

  // To be called once, with the number of controllers found before: numbering goes on from there.
  void Collect(unsigned firstControllerNumber);

  ControllerList GetControllers() const { return controllers_; }
  RawDataList GetRawData() const { return rawData_; }

 private:
  ControllerList controllers_;
  RawDataList rawData_;
  HostHandle host_;
};
