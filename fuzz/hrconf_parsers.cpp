// hrconf's versions and its report on one controller, as one text.
#include <memory>
#include <string>
#include <string_view>

#include "collect/end_of_text.h"
#include "collect/line_scanner.h"
#include "fuzz/support/fuzzer.h"
#include "fuzz/support/parser_trial.h"
#include "fuzz/support/sections.h"
#include "tools/hrconf/controller_parser.h"
#include "tools/hrconf/read_configuration.h"
#include "tools/hrconf/version_parser.h"

namespace {

void Read(ZenxController& controller, std::string_view report) {
  CollectedData text(controller.Host, std::string(report));
  const auto versions = std::make_shared<ZenxHrConfBios>(controller.Host);
  hrconf::ParseVersion(*versions, text);
  hrconf::ParseController(controller, text, 1, *versions);
  UntilEndOfText([&] { hrconf::ReadLogicalDrives(controller, text); });
  UntilEndOfText([&] { hrconf::ReadPhysicalDevices(controller, text); });
}

constexpr std::string_view kSections[] = {
    R"(Controller information
   Controller Status                        : Okay
   Channel description                      : SATA
   Boot ROM                                 : 4.2-1 (8710)
)",
    R"(Logical drive information
-----------------------------------------------
Logical drive number 1
   RAID level                               : 10
   Size                                     : 400 MB
   Write cache status                       : Enabled
   Drive(s) (Channel,Device)                : 0,0 1,0 0,1 1,1
   Stripe order (Channel,Device)            : 0,0 1,0
                                              0,1
                                              1,1

Logical drive number 2
   RAID level                               : 1

)",
    R"(Physical Device information
-----------------------------------------------
   Channel #0:
      Initiator at SCSI ID 7
      Device #0
         Device is a Hard drive
         State                              : Online
         Serial number                      : S1
   Channel #1:
      Device #1
         Device is an Enclosure services device
         State                              : Online
         Vendor                             : V
      Device #2
         Device is a Unknown device
         State                              : Available
Command completed successfully.
)",
};

// The only channel of releases that print no channels.
constexpr std::string_view kOwnWords[] = {"0"};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TryParser({Read, kSections, kOwnWords, "Physical drive information"}, AsText(data, size));
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
  return MutateAroundSections(data, size, maxSize, seed, kSections);
}
