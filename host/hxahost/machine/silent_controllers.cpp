#include "host/hxahost/machine/silent_controllers.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/ascii.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

// A status as a utility printed it, and the command that was run.
struct FailedStatus {
  std::string command;
  std::string text;
};

// Decimal numbers without leading zeros.
bool IsLowerNumber(const std::string& left, const std::string& right) {
  return std::make_pair(left.size(), left) < std::make_pair(right.size(), right);
}

// The numbers of controllers that are not published although drives, disks or groups name them, lowest first.
std::vector<std::string> UnpublishedNumbers(const Machine& machine) {
  std::set<std::string> published;
  for (const Controller& controller : machine.controllers) {
    if (!controller.units.empty()) published.insert(controller.number);
  }
  std::vector<std::string> numbers;
  for (const Controller& controller : machine.controllers) {
    if (published.insert(controller.number).second) numbers.push_back(controller.number);
  }
  std::ranges::sort(numbers, IsLowerNumber);
  return numbers;
}

// "   Controller Status                        : Failed"
std::string StatusOn(const std::string& line) {
  const std::size_t label = line.find("Controller Status");
  const std::size_t colon = label == line.npos ? line.npos : line.find(':', label);
  if (colon == line.npos) return {};
  return std::string(Trim(std::string_view(line).substr(colon + 1)));
}

// The plug-in also reads the first status line, and looks for the word in this spelling.
std::string FailedStatusIn(const std::vector<TCIMValue>& lines) {
  for (const TCIMValue& line : lines) {
    const std::string status = StatusOn(std::string(line));
    if (!status.empty()) return status.find("Failed") == status.npos ? "" : status;
  }
  return {};
}

std::vector<FailedStatus> FailedStatuses(const InstanceList& instances) {
  std::vector<FailedStatus> failed;
  for (const auto& instance : instances) {
    const std::string command = RawText(*instance, "Command");
    if (instance->Class().name != kRawDataClass || command.find(" getconfig ") == command.npos) continue;
    for (const PublishedProperty& property : instance->Properties()) {
      if (TCIMValueReader::Kind(property.value) != ValueKind::kArray) continue;
      const std::string status = FailedStatusIn(TCIMValueReader::Elements(property.value));
      if (!status.empty()) failed.push_back({command, status});
    }
  }
  return failed;
}

Finding UnpublishedFinding(const std::string& number, const std::string& status) {
  const HealthRule& rule = RuleFor(kPresence, "not published");
  return {SeverityOf(rule.level),
          std::string(kControllerClass),
          "Zentraxis" + number,
          "controller " + number,
          std::string(rule.value->property),
          status,
          rule.meaning};
}

Finding FailedFinding(const FailedStatus& failed) {
  const HealthRule& rule = RuleFor(kPresence, "failed");
  return {SeverityOf(rule.level),
          std::string(kRawDataClass),
          failed.command,
          "the controller of the command " + failed.command,
          std::string(kControllerStatus.property),
          failed.text,
          rule.meaning};
}

}  // namespace

// Both lists are in the order of the controllers' numbers. If they are equally long, they describe the same
// controllers; otherwise nothing shows which belong together, and each is reported separately.
Findings SilentControllers(const Machine& machine, const InstanceList& instances) {
  const std::vector<std::string> numbers = UnpublishedNumbers(machine);
  const std::vector<FailedStatus> failed = FailedStatuses(instances);
  const bool isSame = numbers.size() == failed.size();
  Findings findings;
  for (std::size_t index = 0; index < numbers.size(); ++index) {
    findings.push_back(UnpublishedFinding(numbers[index], isSame ? failed[index].text : ""));
  }
  if (isSame) return findings;
  for (const FailedStatus& each : failed) findings.push_back(FailedFinding(each));
  return findings;
}

}  // namespace hxahost
