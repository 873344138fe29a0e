#include "host/hxahost/machine/unread_objects.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/core.h>

#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/machine/tool_texts.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/schema/property_origins.h"
#include "host/hxahost/text/ascii.h"

namespace hxahost {

namespace {

struct Kind {
  std::string_view className;
  std::string_view property;  // its line is one of the first of each object
  std::string_view name;
};

constexpr Kind kKinds[] = {
    {kLogicalDiskClass, kDriveState.property, "logical drives"},
    {kDiskDriveClass,   "DeviceType",         "devices"       },
};

std::string_view HeadOf(const KnownTool& tool, const Kind& kind) {
  return kind.className == kLogicalDiskClass ? kLogicalDriveHead : tool.deviceHead;
}

// The objects in a report: each begins with its head or, if that is missing, with the line of the property.
std::size_t CountListed(const ToolText& text, const Kind& kind) {
  const std::string_view head = HeadOf(*text.tool, kind);
  const std::string_view label = LabelsOf(*text.tool, kind.className, kind.property).front().label;
  std::size_t count = 0;
  bool isHeaded = false;
  const auto take = [&](std::string_view words) {
    if (words.starts_with(head)) {
      ++count;
      isHeaded = true;
    } else if (words.starts_with(label)) {
      if (!isHeaded) ++count;
      isHeaded = false;
    }
  };
  // Published lines end where a carriage return was: one of them may have several lines.
  for (const std::string& line : text.lines) {
    for (const std::string_view each : Split(line, "\n")) take(Trim(each));
  }
  return count;
}

// By the number of a controller. Two controllers may share it: nothing shows which of them a lost object belongs to.
using Counts = std::map<std::string, std::size_t>;

Counts CountListed(const std::vector<ToolText>& texts, const Kind& kind) {
  Counts counts;
  for (const ToolText& text : texts) counts[text.controller] += CountListed(text, kind);
  return counts;
}

Counts CountPublished(const Machine& machine, const Kind& kind) {
  Counts counts;
  for (const Controller& each : machine.controllers) counts[each.number] += ObjectsOf(each, kind.className).size();
  return counts;
}

// "3 of 6 devices not read", by the number of the controller.
using Texts = std::map<std::string, std::string>;

void AddUnread(const Machine& machine, const std::vector<ToolText>& texts, const Kind& kind, Texts& unread) {
  const Counts listed = CountListed(texts, kind);
  for (const auto& [number, published] : CountPublished(machine, kind)) {
    const auto found = listed.find(number);
    if (found == listed.end() || found->second <= published) continue;
    std::string& text = unread[number];
    if (!text.empty()) text += ", ";
    text += fmt::format("{} of {} {} not read", found->second - published, found->second, kind.name);
  }
}

// Text without carriage returns is not published as lines.
void AddUnchecked(const std::vector<ToolText>& texts, Texts& unchecked) {
  for (const ToolText& text : texts) {
    if (text.lines.empty()) unchecked[text.controller] = "its report has no carriage returns";
  }
}

Finding AsFinding(const Controller& controller, const HealthRule& rule, const std::string& text) {
  Finding finding{SeverityOf(rule.level),
                  std::string(kControllerClass),
                  "Zentraxis" + controller.number,
                  "controller " + controller.number,
                  std::string(kListed.property),
                  text,
                  rule.meaning};
  if (controller.units.empty()) return finding;
  const ControllerUnit& unit = controller.units.front();
  finding.identifier = unit.identifier;
  finding.name = unit.name;
  finding.instance = unit.instance;
  return finding;
}

void AddFindings(const Machine& machine, std::string_view word, Texts texts, Findings& findings) {
  for (const Controller& controller : machine.controllers) {
    const auto found = texts.find(controller.number);
    if (found == texts.end()) continue;
    findings.push_back(AsFinding(controller, RuleFor(kListed, word), found->second));
    texts.erase(found);
  }
}

}  // namespace

Findings UnreadObjects(const Machine& machine, const QueryHeader& header, const InstanceList& instances) {
  if (!IsAskedFor(header, kRawDataClass)) return {};
  const std::vector<ToolText> texts = ReadConfigurations(instances);
  Texts unread;
  Texts unchecked;
  for (const Kind& kind : kKinds) {
    if (!IsAskedFor(header, kind.className)) continue;
    AddUnread(machine, texts, kind, unread);
    AddUnchecked(texts, unchecked);
  }
  Findings findings;
  AddFindings(machine, "not published", std::move(unread), findings);
  AddFindings(machine, "no carriage returns", std::move(unchecked), findings);
  return findings;
}

}  // namespace hxahost
