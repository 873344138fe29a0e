#pragma once

#include <string>
#include <string_view>

#include "collect/records.h"

class CollectedData;

// Parsers whose rejection (THXAException) the adapter answers by ending a part of its work.
struct QcmdrunParsers {
  QcmdrunParsers();  // those of the utility's texts

  void (*status)(ZenxController& controller, CollectedData& text);
  void (*badStripe)(ZenxBstData& record, const CollectedData& text, std::string_view controllerNumber);
};

// Collects the controllers that qcmdrun answers for.
class QcmdrunData {
 public:
  explicit QcmdrunData(HostHandle host, const QcmdrunParsers& parsers = {}) : host_(host), parsers_(parsers) {}
  virtual ~QcmdrunData() = default;

  // To be called once, with the number of controllers found before: numbering goes on from there. Throws
  // std::out_of_range where an answer ends before what it lists does.
  void Collect(unsigned firstControllerNumber);

  ControllerList GetControllers() const { return controllers_; }
  RawDataList GetRawData() const { return rawData_; }

 private:
  enum class Next { kGoOn, kStop };

  Next ParseConfig(std::string config, unsigned toolNumber, unsigned controllerNumber);
  bool ReadStatus(ZenxController& controller, unsigned toolNumber) const;
  void ReadLogs(ZenxController& controller, unsigned toolNumber) const;

  ControllerList controllers_;
  RawDataList rawData_;
  HostHandle host_;
  QcmdrunParsers parsers_;
};
