#include "host/hxahost/machine/operations.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/machine/state_words.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/result/tool_answer.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/ascii.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

constexpr double kWhole = 100.0;

bool IsUnder(std::string_view word) { return word != "none" && !word.empty(); }

// "4442880" stripes, "1466150" of them remaining.
std::optional<double> PercentOf(const std::string& stripes, const std::string& remaining) {
  const auto all = LeadingNumber(stripes);
  const auto left = LeadingNumber(remaining);
  if (!all || !left || !(*all > 0) || !(*left >= 0 && *left <= *all)) return std::nullopt;
  return (*all - *left) / *all * kWhole;
}

std::vector<Operation> PublishedOperations(const TPublishedInstance& controller) {
  Operation operation{
      RawText(controller, "Current_MostRecentOperation"),
      RawText(controller, "Logical_Drive"),
      RawText(controller, "LastCmdStatus"),
      PercentOf(RawText(controller, "LogicalDriveSizeInStripes"), RawText(controller, "NumberOfRemainingStripes")),
  };
  if (!IsUnder(NormalWord(operation.name))) return {};
  operation.isActive = NormalWord(operation.status) == "in progress" ||
                       NormalWord(RawText(controller, "BackgroundOperationActive")) == "yes";
  return {operation};
}

// "   Percentage complete                      : 61" gives the label and "61".
std::pair<std::string, std::string> LabelAndValue(const std::string& line) {
  const std::size_t colon = line.find(':');
  if (colon == line.npos) return {};
  return {NormalWord(line.substr(0, colon)), std::string(Trim(std::string_view(line).substr(colon + 1)))};
}

// Each task begins with its logical drive.
std::vector<Operation> OperationsIn(const std::vector<TCIMValue>& lines) {
  std::vector<Operation> operations;
  for (const TCIMValue& line : lines) {
    const auto [label, value] = LabelAndValue(std::string(line));
    if (label == "logical drive number") operations.push_back({"", value, "", std::nullopt, true});
    if (operations.empty()) continue;
    if (label == "current operation") operations.back().name = value;
    if (label == "percentage complete") operations.back().percent = LeadingNumber(value);
  }
  std::erase_if(operations, [](const Operation& each) { return !IsUnder(NormalWord(each.name)); });
  return operations;
}

std::vector<TCIMValue> LinesOf(const TPublishedInstance& rawText) {
  for (const PublishedProperty& property : rawText.Properties()) {
    if (TCIMValueReader::Kind(property.value) == ValueKind::kArray) return TCIMValueReader::Elements(property.value);
  }
  return {};
}

// The answers of a utility to "getstatus", in the order of its controllers: only controllers are asked.
std::vector<std::vector<Operation>> ReportedOperations(const InstanceList& instances, std::string_view tool) {
  std::vector<std::vector<Operation>> operations;
  for (const auto& instance : instances) {
    if (instance->Class().name != kRawDataClass) continue;
    const std::string command = RawText(*instance, "Command");
    if (command.find(" getstatus ") == command.npos || ToolName(command.substr(0, command.find(' '))) != tool) continue;
    operations.push_back(OperationsIn(LinesOf(*instance)));
  }
  return operations;
}

}  // namespace

void FindOperations(std::vector<Controller>& controllers, const InstanceList& instances) {
  for (Controller& controller : controllers) {
    for (ControllerUnit& unit : controller.units) unit.operations = PublishedOperations(*instances[unit.instance]);
  }
  for (const std::string_view tool : KnownTools()) {
    std::vector<ControllerUnit*> units;
    for (Controller& controller : controllers) {
      if (controller.tool == tool && controller.units.size() == 1) units.push_back(&controller.units.front());
    }
    const auto operations = ReportedOperations(instances, tool);
    if (operations.size() != units.size()) continue;  // the order cannot assign them
    for (std::size_t index = 0; index < units.size(); ++index) {
      if (units[index]->operations.empty()) units[index]->operations = operations[index];
    }
  }
}

}  // namespace hxahost
