#include "tools/qcmdrun/qcmdrun_adapter.h"

#include <string>
#include <utility>

#include "collect/ascii_text.h"
#include "collect/line_scanner.h"
#include "collect/tool_answers.h"
#include "collect/tool_runner.h"
#include "collect/tool_text.h"
#include "logs/statistics_parsers.h"
#include "platform/device_setup.h"
#include "plugin/host_interface/exception.h"
#include "tools/qcmdrun/controller_parser.h"
#include "tools/qcmdrun/read_configuration.h"
#include "tools/qcmdrun/read_logs.h"
#include "tools/qcmdrun/status_parser.h"

namespace {

// A failed run yields text, so that it is neither taken for the end of the controllers nor passed over in the record.
constexpr Tool kTool = {
    .path = "zenx//qcmdrun.exe",
    .logPrefix = " QCMDRUN is using Spawnprocess. Controller# :",
    .abortText = "Qcmdrun aborted: ",
    .failedOutput = "not valid data - ",
};

constexpr ToolCommand kGetConfig = {"getconfig", "al"};
constexpr ToolCommand kGetStatus = {"getstatus", "device"};
constexpr ToolCommand kGetBadStripes = {"getbst", "device"};
constexpr ToolCommand kGetDeviceEvents = {"getevent", "device"};
constexpr ToolCommand kGetDddEvents = {"getevent", "ddd"};
constexpr ToolCommand kGetSoftEvents = {"getevent", "soft"};
constexpr ToolCommand kGetHardEvents = {"getevent", "hard"};
constexpr ToolCommand kGetSubStats = {"getsubstat", "device"};

constexpr ToolCommand kRecorded[] = {
    kGetConfig,    kGetStatus,     kGetBadStripes, kGetDeviceEvents,
    kGetDddEvents, kGetSoftEvents, kGetHardEvents, kGetSubStats,
};

struct LogCommand {
  ToolCommand command;
  void (*attach)(ZenxController& controller, CollectedData& text);
};

constexpr LogCommand kLogs[] = {
    {kGetDeviceEvents, qcmdrun::AttachDeviceEvents},
    {kGetDddEvents,    qcmdrun::AttachDddEvents   },
    {kGetSoftEvents,   qcmdrun::SetSoftEvents     },
    {kGetHardEvents,   qcmdrun::SetHardEvents     },
    {kGetSubStats,     qcmdrun::AttachSubStats    },
};

// No controller has this number or a higher one.
constexpr std::string_view kNoneFound = "Found 0 KVR Zentraxis controller(s)";

// No controller has this number; a higher one may be in use.
constexpr std::string_view kAborted = "Command aborted";

// Text without a number counts as slot 0.
unsigned SlotNumber(const ZenxController& controller) {
  return static_cast<unsigned>(LeadingNumber(controller.ControllerSlotInfo));
}

}  // namespace

QcmdrunParsers::QcmdrunParsers() : status(qcmdrun::ParseStatus), badStripe(ParseBadStripe) {}

// Two passes over the utility: what is recorded is what it says at one time, whatever the parsing makes of it.
void QcmdrunData::Collect(unsigned firstControllerNumber) {
  RecordAnswers();
  for (unsigned number = 1; number <= kLastControllerNumber; ++number) {
    if (CollectController(number, firstControllerNumber) == Next::kStop) return;
  }
}

// The record names the utility's own number, which is the one to ask it with.
void QcmdrunData::RecordAnswers() {
  for (unsigned number = 1; number <= kLastControllerNumber; ++number) {
    const std::string configuration = RunTool(kTool, host_, kGetConfig, number);
    if (Contains(configuration, kNoneFound)) return;
    if (Contains(configuration, kAborted)) continue;
    for (const ToolCommand& command : kRecorded) {
      const std::string output = RunTool(kTool, host_, command, number);
      if (output.empty()) continue;
      rawData_.push_back(std::make_shared<ZenxRawData>(kTool.path, command.command, number, command.option, output));
    }
  }
}

// A controller without a list of devices gets its logs read but is not kept.
QcmdrunData::Next QcmdrunData::CollectController(unsigned utilityNumber, unsigned firstControllerNumber) {
  Log(host_, kLogRoutine, "Looking for QCMRUN controller");
  std::string configuration = RunTool(kTool, host_, kGetConfig, utilityNumber);
  if (Contains(configuration, kNoneFound)) return Next::kStop;
  if (Contains(configuration, kAborted) || configuration.empty()) return Next::kGoOn;

  Log(host_, kLogRoutine, "configData is not empty!\n");
  CollectedData text(host_, std::move(configuration));
  if (text.FindLine("Controller information").empty()) return Next::kGoOn;
  Log(host_, kLogRoutine, "Found QCMRUN Controller information");
  const auto controller = std::make_shared<ZenxController>(host_);
  qcmdrun::ParseController(*controller, text.WholeText(), firstControllerNumber + utilityNumber);
  if (!controller->Parsed) return Next::kGoOn;
  controller->SlotDeviceId = LookupSlotDevice(host_, SlotNumber(*controller));

  qcmdrun::AttachLogicalDrives(*controller, text);
  qcmdrun::AttachStripeOrders(*controller, text);
  if (qcmdrun::AttachPhysicalDevices(*controller, text)) {
    if (!ReadStatus(*controller, utilityNumber)) return Next::kStop;
    controllers_.push_back(controller);
  }
  AttachLogs(*controller, utilityNumber);
  return Next::kGoOn;
}

// False: the status was rejected.
bool QcmdrunData::ReadStatus(ZenxController& controller, unsigned utilityNumber) const {
  std::string output = RunTool(kTool, host_, kGetStatus, utilityNumber);
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
void QcmdrunData::AttachLogs(ZenxController& controller, unsigned utilityNumber) const {
  CollectedData badStripes(host_, RunTool(kTool, host_, kGetBadStripes, utilityNumber));
  qcmdrun::AttachBadStripes(controller, badStripes, parsers_.badStripe);
  for (const LogCommand& log : kLogs) {
    CollectedData text(host_, RunTool(kTool, host_, log.command, utilityNumber));
    log.attach(controller, text);
  }
}
