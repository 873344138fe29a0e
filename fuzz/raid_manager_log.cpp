// The RAID manager's log, from its bytes to the records.
#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/support/fuzzed_machine.h"
#include "fuzz/support/fuzzer.h"
#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"
#include "logs/collect_raid_mgr_data.h"
#include "platform/recorded_system.h"
#include "plugin/host_interface/services.h"

namespace {

// Converts carriage return and line feed to a line feed.
std::string WithLineFeeds(std::string_view bytes) {
  std::string text;
  for (std::size_t index = 0; index < bytes.size(); ++index) {
    if (bytes[index] != '\r' || index + 1 == bytes.size() || bytes[index + 1] != '\n') text += bytes[index];
  }
  return text;
}

void RequirePart(std::string_view text, std::string_view part) {
  Require(text.find(part) != text.npos, "a field is in the log", part);
}

// Every record, with at most as many reads as the text has bytes.
std::vector<std::string> ReadAll(std::string_view text) {
  unsigned counter = 7;
  CollectRaidMgrData log(NKVRHXA20::TRootObject::GetCoreLogger(), counter);
  Require(log.LogAvailable(), "an existing log is found");
  std::vector<std::string> records;
  for (unsigned reads = 1;; ++reads) {
    const RaidMgrRead read = log.ReadNextRecord();
    Require(counter == 7 + reads, "each read uses up a number");
    if (read == RaidMgrRead::kEnd) break;
    Require(reads <= text.size(), "each read except the last advances");
    const RaidMgrEvent& event = log.CurrentRecord();
    if (read == RaidMgrRead::kOtherLine) continue;
    Require(event.RecordID == std::to_string(counter - 1), "a record has the number of its read",
            std::string(event.RecordID));
    for (const std::string& field : {event.Severity, event.MachineName, event.Message}) RequirePart(text, field);
    records.push_back(event.MessageTimestamp.ToString() + event.Severity + event.MachineName + event.Message);
  }
  return records;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = AsText(data, size);
  const Sections nothing(nullptr, 0);
  const FuzzedMachine machine(nothing, 0, {});
  AnswerAs(RecordedSystem{
      {.isWindowsNt = true, .major = 6, .minor = 1},
      "C:\\", std::make_shared<const std::string>(bytes)
  });
  const std::string text = WithLineFeeds(bytes);
  Require(ReadAll(text) == ReadAll(text), "the same log produces the same records");
  return 0;
}
