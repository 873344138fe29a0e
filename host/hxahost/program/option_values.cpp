#include "host/hxahost/program/option_values.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <string_view>

#include <fmt/format.h>

#include "host/hxahost/result/tool_answer.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/terminal/layout.h"
#include "host/hxahost/text/escaping.h"
#include "plugin/host_interface/exception.h"

namespace hxahost {

std::optional<unsigned> WholeNumber(const std::string& text) {
  unsigned number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

void Reject(const std::string& option, const std::string& typed, const std::string& whatToGive) {
  throw ProgramError(ExitStatus::kWrongArguments, option + " " + Printable("\"" + typed + "\"") + ": " + whatToGive);
}

std::optional<unsigned> ReadNumber(const std::string& option, const std::string& text, unsigned most) {
  if (text.empty()) return std::nullopt;
  const auto number = WholeNumber(text);
  if (!number || *number == 0 || *number > most) {
    const bool isBounded = most < std::numeric_limits<unsigned>::max();
    Reject(option, text,
           isBounded ? fmt::format("give a whole number from 1 to {}.", most) : "give a whole number from 1 on.");
  }
  return number;
}

unsigned ReadRepeat(const std::string& text) {
  const auto number = WholeNumber(text);
  if (!number || *number == 0) Reject("--repeat", text, "give a whole number from 1 on.");
  return *number;
}

std::optional<std::uint16_t> ReadOsType(const std::string& text) {
  if (text == "none") return std::nullopt;
  const auto number = WholeNumber(text);
  if (!number || *number > std::numeric_limits<std::uint16_t>::max()) {
    Reject("--os-type", text, "give a number from 0 to 65535, or none.");
  }
  return static_cast<std::uint16_t>(*number);
}

NKVRHXA20::TCIMDateTime ReadLocalTime(const std::string& text) {
  try {
    return NKVRHXA20::TCIMDateTime(text);
  } catch (const NKVRHXA20::THXAException&) {
    Reject("--local-time", text,
           "give a CIM date and time, yyyymmddhhmmss.mmmmmmsutc, such as 20260305123015.250000+060.");
  }
}

unsigned ReadWidth(const std::string& text) {
  const auto number = WholeNumber(text);
  if (!number || *number < kNarrowestLayout || *number > kWidestLayout) {
    Reject("--width", text, "give a whole number from 40 to 1000.");
  }
  return *number;
}

std::uint64_t ReadInputLimit(const std::string& text) {
  constexpr unsigned kMost = 65536;
  const auto number = WholeNumber(text);
  if (!number || *number == 0 || *number > kMost) {
    Reject("--input-limit", text, "give a whole number of MiB from 1 to 65536.");
  }
  return std::uint64_t{*number} << 20U;
}

std::optional<MaskScope> ReadMask(const std::string& text) {
  if (text.empty()) return std::nullopt;
  if (text == "true") return MaskScope::kNames;
  if (text != "all") Reject("--mask", text, "give --mask or --mask=all.");
  return MaskScope::kAll;
}

Limits ReadLimits(const std::vector<std::string>& texts) {
  Limits limits;
  for (const std::string& text : texts) {
    const std::size_t equals = std::min(text.find('='), text.size());
    const auto* const named = std::ranges::find(kLimitNames, text.substr(0, equals), &LimitName::name);
    const std::string value = text.substr(std::min(equals + 1, text.size()));
    const auto number = WholeNumber(value);
    if (named == std::end(kLimitNames) || !(number || value == "off")) {
      Reject("--warn", text, "give NAME=N or NAME=off; NAME is one of " + LimitNames() + ".");
    }
    limits.*named->limit = number;
  }
  return limits;
}

std::string LimitNames() {
  std::string names;
  for (const LimitName& each : kLimitNames) names += (names.empty() ? "" : ", ") + std::string(each.name);
  return names;
}

void CheckTools(const std::vector<std::string>& names) {
  const std::vector<std::string_view> known = KnownTools();
  for (const std::string& name : names) {
    if (std::ranges::find(known, name) == known.end()) Reject("--expect", name, "give " + ToolNames() + ".");
  }
}

std::string ToolNames() { return fmt::format("{}", fmt::join(KnownTools(), ", ")); }

void CheckColor(const std::string& text) {
  constexpr std::string_view kWords[] = {"auto", "always", "never"};
  if (std::ranges::count(kWords, text) == 0) Reject("--color", text, "give auto, always or never.");
}

}  // namespace hxahost
