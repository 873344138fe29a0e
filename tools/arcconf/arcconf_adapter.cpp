#include "tools/arcconf/arcconf_adapter.h"

#include <utility>

#include "collect/ascii_text.h"
#include "collect/end_of_text.h"
#include "collect/line_scanner.h"
#include "collect/recording_pass.h"
#include "collect/tool_runner.h"
#include "tools/arcconf/commands.h"
#include "tools/arcconf/controller_parser.h"
#include "tools/arcconf/driver_mismatch.h"
#include "tools/arcconf/read_configuration.h"

using arcconf::kTool;

void ArcconfData::Collect(unsigned firstControllerNumber) {
  rawData_ = RecordOutputs(kTool, host_, [] { return kTool.recorded; });
  for (unsigned number = 1; number <= kLastControllerNumber; ++number) {
    std::string config = RunTool(kTool, host_, kGetConfig, number);
    const ControllerNumber read = ReadControllerNumber(kTool, config);
    if (read == ControllerNumber::kNoneFromHereOn) return;
    if (Contains(config, kTool.unreadable)) return arcconf::LogDriverMismatch(host_);
    if (read == ControllerNumber::kInUse) ParseConfig(std::move(config), firstControllerNumber + number);
  }
}

void ArcconfData::ParseConfig(std::string config, unsigned controllerNumber) {
  CollectedData text(host_, std::move(config));
  if (text.FindLine(kControllerHeading).empty()) return;
  const auto controller = std::make_shared<ZenxController>(host_);
  arcconf::ParseController(*controller, text.WholeText(), controllerNumber);
  if (!controller->Parsed) return;
  UntilEndOfText([&] { arcconf::ReadLogicalDrives(*controller, text); });
  UntilEndOfText([&] { arcconf::ReadPhysicalDevices(*controller, text); });
  controllers_.push_back(controller);
}
