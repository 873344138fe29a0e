#include "host/hxahost/machine/storage_incident.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include <fmt/core.h>
#include <fmt/format.h>

#include "host/hxahost/machine/incident_words.h"
#include "host/hxahost/machine/state_words.h"
#include "host/hxahost/text/escaping.h"

namespace hxahost {

namespace {

using Places = std::vector<std::size_t>;

// The objects of a cause that its texts name.
struct Situation {
  const Machine& machine;
  const Cause& cause;
  const Controller& controller;
  Places failed;      // devices
  Places rebuilding;  // devices
  bool isRebuilding = false;
  std::optional<double> percent;  // of the rebuild
};

// How many disks a RAID level can lose. For levels of several spans it depends on the disks: their state decides.
std::optional<std::size_t> ToleranceOf(const std::string& raidLevel) {
  struct Level {
    std::string_view name;
    std::size_t tolerance;
  };
  constexpr Level kLevels[] = {
      {"0",   0},
      {"1",   1},
      {"1E",  1},
      {"5",   1},
      {"5E",  1},
      {"5EE", 1},
      {"6",   2},
  };
  const auto* const level = std::ranges::find(kLevels, raidLevel, &Level::name);
  return level == std::end(kLevels) ? std::nullopt : std::optional(level->tolerance);
}

// "38" of "Degraded, Rebuilding ( Rebuild : 38 % )".
std::optional<double> PercentIn(const std::string& text) {
  const std::size_t sign = text.find('%');
  const std::size_t last = sign == text.npos || sign == 0 ? text.npos : text.find_last_not_of(' ', sign - 1);
  if (last == text.npos) return std::nullopt;
  const std::size_t before = text.find_last_not_of("0123456789.", last);
  const std::string_view digits = std::string_view(text).substr(before == text.npos ? 0 : before + 1, last - before);
  double number = 0;
  const auto [stop, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
  return error == std::errc() ? std::optional(number) : std::nullopt;
}

std::optional<double> PercentOf(const Situation& situation) {
  const auto& controller = situation.controller;
  const auto isOfCause = [&](const Operation& operation) {
    return std::ranges::any_of(situation.cause.drives, [&](std::size_t drive) {
      return controller.logicalDrives[drive].number == operation.logicalDrive;
    });
  };
  for (const ControllerUnit& unit : controller.units) {
    for (const Operation& operation : unit.operations) {
      const bool isRebuild = NormalWord(operation.name).find("rebuil") != std::string::npos;
      if (operation.isActive && isRebuild && isOfCause(operation) && operation.percent) return operation.percent;
    }
  }
  for (const std::size_t drive : situation.cause.drives) {
    if (const auto percent = PercentIn(controller.logicalDrives[drive].state.text)) return percent;
  }
  for (const std::size_t device : situation.rebuilding) {
    if (const auto percent = PercentIn(controller.devices[device].state.text)) return percent;
  }
  return std::nullopt;
}

bool HasEffect(const Situation& situation, Effect effect) {
  return std::ranges::any_of(situation.cause.findings, [&](std::size_t place) {
    return situation.machine.findings[place].meaning.effect == effect;
  });
}

Situation Look(const Machine& machine, const Cause& cause) {
  Situation situation{machine, cause, machine.controllers[cause.controller], {}, {}, false, std::nullopt};
  for (const std::size_t device : cause.devices) {
    const Device& each = situation.controller.devices[device];
    if (IsFailed(machine, each)) situation.failed.push_back(device);
    if (IsRebuilding(each)) situation.rebuilding.push_back(device);
  }
  situation.isRebuilding = !situation.rebuilding.empty() || HasEffect(situation, Effect::kRebuilding);
  situation.percent = PercentOf(situation);
  return situation;
}

// Whether more disks have failed than the drive tolerates.
bool IsBeyondRepair(const Situation& situation, std::size_t drive) {
  const LogicalDrive& each = situation.controller.logicalDrives[drive];
  const auto tolerance = ToleranceOf(Printable(each.raidLevel));
  const auto failed = std::ranges::count_if(
      each.members, [&](std::size_t device) { return std::ranges::binary_search(situation.failed, device); });
  return HasEffect(situation.machine, each, Effect::kUnreachable) ||
         (tolerance && static_cast<std::size_t>(failed) > *tolerance);
}

Places LostDrives(const Situation& situation) {
  Places lost;
  std::ranges::copy_if(situation.cause.drives, std::back_inserter(lost),
                       [&](std::size_t drive) { return IsBeyondRepair(situation, drive); });
  return lost;
}

std::string NamesOf(const Situation& situation, const Places& drives) {
  std::vector<std::string> names;
  for (const std::size_t drive : drives) names.push_back(ShortName(situation.controller.logicalDrives[drive]));
  return fmt::format("{}", fmt::join(names, ", "));
}

std::string Described(const Situation& situation, const Places& devices) {
  std::vector<std::string> texts;
  for (const std::size_t device : devices) texts.push_back(DescribeDevice(situation.controller, device));
  return fmt::format("{}", fmt::join(texts, "; "));
}

std::string LocationOf(const Device& device) {
  return Printable(device.location.empty() ? device.name : device.location);
}

// "is degraded", "are degraded", "has failed".
std::string StateOf(const Situation& situation) {
  const LogicalDrive& drive = situation.controller.logicalDrives[situation.cause.drives.front()];
  const bool isOne = situation.cause.drives.size() == 1;
  const std::string is = isOne ? "is " : "are ";
  const std::string has = isOne ? "has " : "have ";
  const bool isBad = HasEffect(situation.machine, drive, Effect::kDegraded) ||
                     HasEffect(situation.machine, drive, Effect::kUnreachable) ||
                     HasEffect(situation.machine, drive, Effect::kRebuilding);
  if (!isBad && HasEffect(situation, Effect::kBadStripes)) return has + "bad stripes: data was lost";
  const std::string word = StateWord(drive.state);
  if (!isBad && drive.level < Level::kUnknown) return has + "a failed segment";
  if (HasEffect(situation.machine, drive, Effect::kUnreachable) && drive.state.level < Level::kWarning) {
    return is + "blocked";
  }
  if (word == "failed") return has + word;
  return word.empty() ? has + "no state" : is + word;
}

std::string DriveHeadline(const Situation& situation) {
  std::string text = fmt::format("{} {}", NamesOf(situation, situation.cause.drives), StateOf(situation));
  if (situation.isRebuilding && LostDrives(situation).empty()) {
    if (!text.ends_with(" rebuilding")) text += ", rebuilding";
    if (situation.percent) text += fmt::format(": {:.0f} % done", *situation.percent);
  }
  return text;
}

struct DiskHeadline {
  Effect effect;
  std::string_view property;  // of the finding; "": any
  std::string_view text;      // {} is the value
};

// The first row whose effect the disk has is used.
constexpr DiskHeadline kDiskHeadlines[] = {
    {Effect::kDiskMissing, "",                "is missing"                              },
    {Effect::kDiskFailed,  "",                "has failed"                              },
    {Effect::kPredicted,   "",                "predicts its failure"                    },
    {Effect::kErrors,      "NumHardErrors",   "reports hard errors: {}"                 },
    {Effect::kErrors,      "NumSoftErrors",   "reports soft errors: {}"                 },
    {Effect::kErrors,      "NumParityErrors", "reports parity errors: {}"               },
    {Effect::kErrors,      "Cur_Txer_p",      "transfers slower than it can"            },
    {Effect::kRebuilding,  "",                "is being rebuilt"                        },
    {Effect::kUnread,      "",                "is of a type that is not known"          },
    {Effect::kOther,       "NumHardErrors",   "has an unreadable hard error count: {}"  },
    {Effect::kOther,       "NumSoftErrors",   "has an unreadable soft error count: {}"  },
    {Effect::kOther,       "NumParityErrors", "has an unreadable parity error count: {}"},
    {Effect::kOther,       "Cur_Txer_p",      "has an unreadable transfer period: {}"   },
    {Effect::kOther,       "Max_Txer_P",      "has an unreadable transfer period: {}"   },
    {Effect::kOther,       "",                "has a state that is not known: {}"       },
};

// The finding that a headline is about; null if there is none.
const Finding* FindingFor(const Situation& situation, const DiskHeadline& headline) {
  for (const std::size_t place : situation.cause.findings) {
    const Finding& finding = situation.machine.findings[place];
    const bool isSame = headline.property.empty() || finding.property == headline.property;
    if (finding.meaning.effect == headline.effect && isSame) return &finding;
  }
  return nullptr;
}

std::string_view KindOf(const Device& device) {
  const Words words = StateWords(device.state.text);
  const bool isSpare = std::ranges::any_of(words, [](const std::string& word) { return word.ends_with("spare"); });
  if (isSpare) return "hot spare";
  switch (device.kind) {
    case HardwareKind::kDisk: return "disk";
    case HardwareKind::kTape: return "tape drive";
    case HardwareKind::kEnclosure: return "enclosure";
    default: return "device";
  }
}

std::string DeviceHeadline(const Situation& situation) {
  const Device& device = situation.controller.devices[situation.cause.devices.front()];
  std::string text = "is not well";
  for (const DiskHeadline& headline : kDiskHeadlines) {
    const Finding* const finding = FindingFor(situation, headline);
    if (finding == nullptr) continue;
    text = fmt::format(fmt::runtime(headline.text), Printable(finding->text));
    break;
  }
  return fmt::format("{} at {} {}", KindOf(device), LocationOf(device), text);
}

// "Hot Spare for Logical drive 1" takes over for that drive only.
bool IsReadySpare(const Situation& situation, const Device& device) {
  const Words words = StateWords(device.state.text);
  const bool isSpare = std::ranges::any_of(words, [](const std::string& word) { return word.ends_with("hot spare"); });
  if (!isSpare || device.level > Level::kIdle) return false;
  const std::string text = NormalWord(device.state.text);
  const std::size_t purpose = text.find(" for ");
  return purpose == text.npos || std::ranges::any_of(situation.cause.drives, [&](std::size_t drive) {
           return text.ends_with("logical drive " + situation.controller.logicalDrives[drive].number);
         });
}

std::string RestoreAction(const Situation& situation, const Places& lost) {
  const std::string disks = Described(situation, situation.failed);
  return fmt::format("RESTORE {} from backup; first check cables and enclosure power{}{}", NamesOf(situation, lost),
                     disks.empty() ? "" : ". Failed: ", disks);
}

std::string RebuildAction(const Situation& situation) {
  const std::string onto = Described(situation, situation.rebuilding);
  std::string text = fmt::format("WAIT for the rebuild{}{}", onto.empty() ? "" : " onto ", onto);
  Places others;
  std::ranges::set_difference(situation.failed, situation.rebuilding, std::back_inserter(others));
  return text + (others.empty() ? "; then check again" : "; then PULL " + Described(situation, others));
}

// The state of a missing disk may contain other words, too: "Failed (Missing)".
bool IsMissing(const Situation& situation, std::size_t device) {
  return NormalWord(situation.controller.devices[device].state.text).find("missing") != std::string::npos;
}

bool IsWhole(const Situation& situation, const LogicalDrive& drive) {
  constexpr Effect kFaults[] = {Effect::kDegraded, Effect::kUnreachable, Effect::kRebuilding, Effect::kSegment};
  return std::ranges::none_of(kFaults, [&](Effect fault) { return HasEffect(situation.machine, drive, fault); });
}

bool IsDisk(const Situation& situation, std::size_t device) {
  return situation.controller.devices[device].kind == HardwareKind::kDisk;
}

// What a person must also know before pulling the disks.
std::string PullNote(const Situation& situation) {
  const Controller& controller = situation.controller;
  if (!IsDisk(situation, situation.failed.front())) return "";
  if (HasEffect(situation, Effect::kDegraded)) {
    const auto spare =
        std::ranges::find_if(controller.devices, [&](const Device& each) { return IsReadySpare(situation, each); });
    if (spare == controller.devices.end()) return "";
    return fmt::format(". The hot spare at {} is ready but has not taken over", LocationOf(*spare));
  }
  const bool isSpareGone = controller.devices[situation.failed.front()].level < Level::kCritical;
  const bool isWhole = std::ranges::all_of(controller.logicalDrives,
                                           [&](const LogicalDrive& drive) { return IsWhole(situation, drive); });
  return isWhole && !isSpareGone ? ". No logical drive is degraded" : "";
}

std::string StepFor(const Situation& situation, std::size_t device) {
  const std::string words = DescribeDevice(situation.controller, device);
  if (!IsDisk(situation, device)) {
    return fmt::format("CHECK the power and the cables of {}; replace it if it stays failed", words);
  }
  return fmt::format("{} {}", IsMissing(situation, device) ? "INSERT a disk at" : "PULL", words);
}

// Drives that have lost several disks stay readable only as long as their other disks stay in place.
std::string PullAction(const Situation& situation) {
  const bool isMissing =
      std::ranges::all_of(situation.failed, [&](std::size_t device) { return IsMissing(situation, device); });
  std::vector<std::string> steps;
  for (const std::size_t device : situation.failed) {
    steps.push_back(StepFor(situation, device));
  }
  const bool isOneByOne = !isMissing && steps.size() > 1 && HasEffect(situation, Effect::kDegraded);
  return fmt::format("{}{}", fmt::join(steps, isOneByOne ? "; after the rebuild " : "; "), PullNote(situation));
}

// A working disk in an array without redundancy must stay until the array is rebuilt.
std::string WeakDiskAction(const Situation& situation) {
  const std::size_t place = situation.cause.devices.front();
  const Device& device = situation.controller.devices[place];
  const std::string disk = DescribeDevice(situation.controller, place);
  const bool isNeeded = std::ranges::any_of(device.logicalDrives, [&](std::size_t drive) {
    const LogicalDrive& each = situation.controller.logicalDrives[drive];
    return HasEffect(situation.machine, each, Effect::kDegraded) ||
           HasEffect(situation.machine, each, Effect::kRebuilding);
  });
  if (HasEffect(situation, Effect::kPredicted)) {
    return isNeeded ? "BACK UP now; replace this disk only after the array is rebuilt: " + disk
                    : "REPLACE soon " + disk;
  }
  for (const DiskHeadline& headline : kDiskHeadlines) {
    const Finding* const finding = headline.effect == Effect::kErrors ? FindingFor(situation, headline) : nullptr;
    if (finding != nullptr) return fmt::format("{}: {}", InstructionOf(*finding), disk);
  }
  return "CHECK " + disk;
}

struct Action {
  Urgency urgency;
  std::string text;
};

Action ActionOf(const Situation& situation) {
  if (const Places lost = LostDrives(situation); !lost.empty()) {
    return {Urgency::kRestore, RestoreAction(situation, lost)};
  }
  if (situation.isRebuilding) return {Urgency::kWait, RebuildAction(situation)};
  if (!situation.failed.empty()) return {Urgency::kReplace, PullAction(situation)};
  if (situation.cause.drives.empty()) {
    const Urgency urgency = HasEffect(situation, Effect::kPredicted) ? Urgency::kReplace : Urgency::kOther;
    return {urgency, WeakDiskAction(situation)};
  }
  const std::string drives = NamesOf(situation, situation.cause.drives);
  if (HasEffect(situation, Effect::kDegraded) || HasEffect(situation, Effect::kSegment)) {
    return {Urgency::kReplace, fmt::format("FIND the failed disk of {}: no disk of it reports a failure", drives)};
  }
  if (HasEffect(situation, Effect::kBadStripes)) {
    return {Urgency::kRestore, fmt::format("RESTORE {} from backup", drives)};
  }
  return {Urgency::kOther, fmt::format("CHECK {} with the utility itself", drives)};
}

// The disks to act on: those that failed, else those that are weak or being rebuilt.
const Places& DisksOf(const Situation& situation) {
  return situation.failed.empty() ? situation.cause.devices : situation.failed;
}

}  // namespace

void DescribeStorage(const Machine& machine, const Cause& cause, Incident& incident) {
  const Situation situation = Look(machine, cause);
  incident.headline = fmt::format("{} {}", ShortName(situation.controller),
                                  cause.drives.empty() ? DeviceHeadline(situation) : DriveHeadline(situation));
  const Action action = ActionOf(situation);
  incident.urgency = action.urgency;
  incident.action = action.text;
  for (const std::size_t device : DisksOf(situation)) incident.disks.push_back({cause.controller, device});
  if (!incident.disks.empty())
    incident.location = LocationOf(situation.controller.devices[incident.disks.front().device]);
}

}  // namespace hxahost
