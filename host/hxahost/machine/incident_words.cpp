#include "host/hxahost/machine/incident_words.h"

#include <algorithm>
#include <iterator>

#include <fmt/core.h>
#include <fmt/format.h>

#include "host/hxahost/machine/state_words.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/escaping.h"

namespace hxahost {

namespace {

std::string Joined(const std::vector<std::string>& parts, std::string_view separator) {
  std::vector<std::string> filled;
  std::ranges::copy_if(parts, std::back_inserter(filled), [](const std::string& part) { return !part.empty(); });
  return fmt::format("{}", fmt::join(filled, separator));
}

std::string After(std::string_view label, const std::string& text) {
  return text.empty() ? "" : fmt::format("{} {}", label, Printable(text));
}

bool IsSpare(const Device& device) {
  const Words words = StateWords(device.state.text);
  return std::ranges::any_of(words, [](const std::string& word) { return word.ends_with("spare"); });
}

std::string NameOf(const LogicalDrive& drive, const std::string& qualities) {
  const std::string name =
      drive.title.empty() ? "logical drive " + Printable(drive.number) : fmt::format("\"{}\"", Printable(drive.title));
  return qualities.empty() ? name : fmt::format("{} ({})", name, qualities);
}

}  // namespace

std::string ShortName(const Controller& controller) { return "C" + Printable(controller.label); }

std::string ShortName(const LogicalDrive& drive) { return NameOf(drive, After("RAID", drive.raidLevel)); }

std::string IdentityOf(const Device& device) {
  const std::string size = device.bytes ? FormatBytes(*device.bytes) : Printable(device.size);
  const std::string product = Joined({Printable(device.vendor), Printable(device.model), size}, " ");
  return Joined({product, After("S/N", device.serialNumber), After("FRU", device.fru)}, ", ");
}

std::string RoleOf(const Controller& controller, std::size_t device) {
  std::vector<std::string> drives;
  for (const std::size_t place : controller.devices[device].logicalDrives) {
    const LogicalDrive& drive = controller.logicalDrives[place];
    drives.push_back(NameOf(drive, Joined({After("RAID", drive.raidLevel), StateWord(drive.state)}, ", ")));
  }
  if (!drives.empty()) return fmt::format("in {}", fmt::join(drives, ", "));
  if (!IsSpare(controller.devices[device])) return "in no logical drive";
  return controller.devices[device].level >= Level::kWarning ? "failed hot spare" : "hot spare";
}

std::string DescribeDevice(const Controller& controller, std::size_t device) {
  const Device& each = controller.devices[device];
  const std::string location = each.location.empty() ? Printable(each.name) : Printable(each.location);
  const std::string identity = IdentityOf(each);
  const std::string text = location + (identity.empty() ? "" : ": " + identity);
  return each.kind == HardwareKind::kDisk ? text + ", " + RoleOf(controller, device) : text;
}

std::string InstructionOf(const Finding& finding) {
  const std::string text(finding.meaning.action);
  const std::size_t verb = std::min(text.find(' '), text.size());
  return Upper(text.substr(0, verb)) + text.substr(verb);
}

std::string StateWord(const State& state) {
  const Words words = StateWords(state.text);
  return words.empty() ? "" : Printable(words.front());
}

std::string FormatBytes(std::uint64_t bytes) { return FormatBytes(bytes, bytes); }

std::string FormatBytes(std::uint64_t bytes, std::uint64_t smallest) {
  constexpr double kGiga = 1e9;
  constexpr double kTera = 1e12;
  const auto number = static_cast<double>(bytes);
  const bool isSmall = static_cast<double>(smallest) < kTera;
  return isSmall ? fmt::format("{:.1f} GB", number / kGiga) : fmt::format("{:.2f} TB", number / kTera);
}

}  // namespace hxahost
