#include "host/hxahost/fleet/fleet_pages.h"

#include <mutex>
#include <set>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include <fmt/core.h>

#include "host/hxacore/schema.h"
#include "host/hxahost/fleet/in_order.h"
#include "host/hxahost/fleet/judged_result.h"
#include "host/hxahost/fleet/read_fleet.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/file_place.h"
#include "host/hxahost/system/output_file.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/report/html_view.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

// File systems permit names of 255 bytes, and a file that is being written has a longer one.
constexpr std::size_t kLongestName = 100;

// Only letters, digits and hyphens, and not too many: a valid name on every system, and in a link.
std::string PlainName(const std::string& name) {
  std::string plain = name.substr(0, kLongestName);
  for (char& character : plain) {
    if (kPlain.find(character) == kPlain.npos) character = '_';
  }
  return plain;
}

std::vector<std::string_view> AllClasses() {
  std::vector<std::string_view> names;
  for (const auto& declaration : NKVRHXA20::PublishedClasses()) names.push_back(declaration.name);
  return names;
}

void CreateFolder(const fs::path& folder) {
  std::error_code failure;
  fs::create_directories(folder, failure);
  if (!failure) return;
  throw ProgramError(ExitStatus::kWrongArguments,
                     fmt::format("--pages {} cannot be created ({}): name a folder that you may write to.",
                                 Printable(Utf8FromPath(folder)), Printable(failure.message())));
}

// The newest result of each machine, for several threads.
class NewestResults {
 public:
  explicit NewestResults(const Fleet& fleet) {
    for (const FleetMachine* const each : fleet.Machines()) results_.emplace(each->name, each->time, each->source);
  }

  // Whether it is one of them. True only once, because a file may be given, or contain its result, twice.
  bool Take(const JsonResult& read, const FleetInput& input) {
    const std::string time = SecondsSince1970(read.time) ? read.time : "";
    const std::lock_guard<std::mutex> lock(access_);
    return results_.erase({Printable(read.machine), time, Printable(input.name)}) > 0;
  }

 private:
  std::mutex access_;
  std::set<std::tuple<std::string, std::string, std::string>> results_;  // by machine, time and file
};

void WritePage(const JudgedResult& judged, const fs::path& file) {
  OutputFile output(file, "--pages");
  WriteQueryHtml(output.Stream(), judged.header, judged.result);
  output.Finish();
}

}  // namespace

std::map<std::string, std::string> PageNames(const Fleet& fleet) {
  std::map<std::string, std::string> names;
  std::set<std::string> taken;
  for (const FleetMachine* const machine : fleet.Machines()) {
    const std::string plain = "machine-" + PlainName(machine->name);
    std::string name = plain;
    for (int number = 2; !taken.insert(Lower(name)).second; ++number) name = fmt::format("{}-{}", plain, number);
    names[machine->name] = name + ".html";
  }
  return names;
}

void WritePages(FleetInputs& inputs, const Limits& limits, const Fleet& fleet, const fs::path& folder) {
  CreateFolder(folder);
  const std::map<std::string, std::string> names = PageNames(fleet);
  const std::vector<std::string_view> classes = AllClasses();
  NewestResults newest(fleet);
  const auto write = [&](const FleetInput& input) {
    JsonResult read;
    try {
      read = ReadFleetInput(input);
    } catch (const ProgramError&) {
      return false;  // a damaged file, which the fleet lists already
    }
    if (!newest.Take(read, input)) return false;
    const fs::path file = folder / PathFromUtf8(names.at(Printable(read.machine)));
    JudgedResult judged = JudgeResult(input.name, std::move(read), limits, classes);
    judged.result.number = judged.header.queryCount;
    WritePage(judged, file);
    return true;
  };
  InOrder(
      Processors(), [&] { return inputs.Next(); }, write, [](bool) {});
}

std::string LinkBetween(const fs::path& from, const fs::path& to) {
  const auto whole = [](const fs::path& path) { return AbsolutePath(path.empty() ? "." : path).lexically_normal(); };
  const fs::path path = whole(to).lexically_proximate(whole(from));
  const std::u8string generic = path.generic_u8string();
  std::string link;
  for (const char8_t unit : generic) {
    const auto character = static_cast<char>(unit);
    const bool isPlain = kPlain.find(character) != kPlain.npos || character == '/' || character == '.';
    link += isPlain ? std::string(1, character) : fmt::format("%{:02X}", static_cast<unsigned>(unit));
  }
  return link;
}

}  // namespace hxahost
