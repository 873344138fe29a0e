#include "collect/records.h"

#include <fmt/core.h>

namespace {

std::string CommandText(std::string_view toolPath, std::string_view command, unsigned controllerNumber,
                        std::string_view option) {
  const std::string number = controllerNumber == 0 ? "" : std::to_string(controllerNumber);
  return fmt::format("{} {} {} {}", toolPath, command, number, option);
}

// Tools end a line in carriage return and line feed; whatever follows the carriage return is dropped with it.
std::vector<std::string> CutAtCarriageReturns(std::string_view output) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  for (std::size_t end = output.find('\r'); end != output.npos; end = output.find('\r', begin)) {
    lines.emplace_back(output.substr(begin, end - begin));
    begin = end + 2;
    if (begin >= output.size()) break;
  }
  return lines;
}

}  // namespace

ZenxRawData::ZenxRawData(std::string_view toolPath, std::string_view command, unsigned controllerNumber,
                         std::string_view option, std::string_view output)
    : Command(CommandText(toolPath, command, controllerNumber, option)), RawResults(CutAtCarriageReturns(output)) {}
