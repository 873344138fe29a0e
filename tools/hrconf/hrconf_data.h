#pragma once

#include "collect/records.h"
#include "collect/tool_runner.h"

// Collects the controllers that hrconf answers for.
class HrconfData {
 public:
  explicit HrconfData(HostHandle host) : host_(host) {}
  virtual ~HrconfData() = default;

  // To be called once, with the number of controllers found before: numbering goes on from there.
  void Collect(unsigned firstControllerNumber);

  ControllerList GetControllers() const { return controllers_; }
  RawDataList GetRawData() const { return rawData_; }

 private:
  void RecordOutputs();
  void RecordOutput(const ToolCommand& command, unsigned controllerNumber);
  void ParseControllers(unsigned firstControllerNumber);
  void ParseConfig(const std::string& config, unsigned toolNumber, unsigned controllerNumber);
  std::shared_ptr<ZenxHrConfBios> ReadVersions(unsigned toolNumber) const;

  ControllerList controllers_;
  RawDataList rawData_;
  HostHandle host_;
};
