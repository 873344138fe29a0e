#include "tools/qcmdrun/qcmdrun_adapter.h"

#include <utility>

#include "collect/line_scanner.h"
#include "collect/recording_pass.h"
#include "collect/tool_runner.h"
#include "collect/tool_text.h"
#include "logs/statistics_parsers.h"
#include "platform/device_setup.h"
#include "plugin/host_interface/exception.h"
#include "tools/qcmdrun/commands.h"
#include "tools/qcmdrun/controller_parser.h"
#include "tools/qcmdrun/read_configuration.h"
#include "tools/qcmdrun/read_logs.h"
#include "tools/qcmdrun/status_parser.h"

using qcmdrun::kTool;

namespace {

// Text without a number counts as slot 0.
unsigned SlotNumber(const ZenxController& controller) {
  return static_cast<unsigned>(LeadingNumber(controller.ControllerSlotInfo));
}

}  // namespace

QcmdrunParsers::QcmdrunParsers() : status(qcmdrun::ParseStatus), badStripe(ParseBadStripe) {}

void QcmdrunData::Collect(unsigned firstControllerNumber) {
  rawData_ = RecordOutputs(kTool, host_, [] { return kTool.recorded; });
  for (unsigned number = 1; number <= kLastControllerNumber; ++number) {
    Log(host_, kLogRoutine, "Looking for QCMRUN controller");
    std::string config = RunTool(kTool, host_, kGetConfig, number);
    const ControllerNumber read = ReadControllerNumber(kTool, config);
    if (read == ControllerNumber::kNoneFromHereOn) return;
    if (read == ControllerNumber::kNotInUse || config.empty()) continue;
    if (ParseConfig(std::move(config), number, firstControllerNumber + number) == Next::kStop) return;
  }
}

// A controller without a list of devices gets its logs read but is not kept.
QcmdrunData::Next QcmdrunData::ParseConfig(std::string config, unsigned toolNumber, unsigned controllerNumber) {
  Log(host_, kLogRoutine, "configData is not empty!\n");
  CollectedData text(host_, std::move(config));
  if (text.FindLine(kControllerHeading).empty()) return Next::kGoOn;
  Log(host_, kLogRoutine, "Found QCMRUN Controller information");
  const auto controller = std::make_shared<ZenxController>(host_);
  qcmdrun::ParseController(*controller, text.WholeText(), controllerNumber);
  if (!controller->Parsed) return Next::kGoOn;
  controller->SlotDeviceId = LookupSlotDevice(host_, SlotNumber(*controller));

  qcmdrun::ReadLogicalDrives(*controller, text);
  qcmdrun::ReadStripeOrders(*controller, text);
  if (qcmdrun::ReadPhysicalDevices(*controller, text)) {
    if (!ReadStatus(*controller, toolNumber)) return Next::kStop;
    controllers_.push_back(controller);
  }
  ReadLogs(*controller, toolNumber);
  return Next::kGoOn;
}

// False: the status was rejected.
bool QcmdrunData::ReadStatus(ZenxController& controller, unsigned toolNumber) const {
  std::string output = RunTool(kTool, host_, qcmdrun::kGetStatus, toolNumber);
  if (output.empty()) return true;
  CollectedData text(host_, std::move(output));
  try {
    parsers_.status(controller, text);
  } catch (const NKVRHXA20::THXAException&) {
    Log(host_, kLogRoutine, "status data is junk: Quit status data collection");
    return false;
  }
  return true;
}

// An empty answer has no table in it.
void QcmdrunData::ReadLogs(ZenxController& controller, unsigned toolNumber) const {
  CollectedData badStripes(host_, RunTool(kTool, host_, qcmdrun::kGetBadStripes, toolNumber));
  qcmdrun::ReadBadStripes(controller, badStripes, parsers_.badStripe);
  for (const auto& [command, read] : qcmdrun::kLogs) {
    CollectedData text(host_, RunTool(kTool, host_, command, toolNumber));
    read(controller, text);
  }
}
