// arcconf's report on one controller.
#include <string>
#include <string_view>

#include "collect/end_of_text.h"
#include "collect/line_scanner.h"
#include "fuzz/support/fuzzer.h"
#include "fuzz/support/parser_trial.h"
#include "fuzz/support/sections.h"
#include "tools/arcconf/controller_parser.h"
#include "tools/arcconf/read_configuration.h"

namespace {

void Read(ZenxController& controller, std::string_view report) {
  CollectedData text(controller.Host, std::string(report));
  arcconf::ParseController(controller, report, 1);
  UntilEndOfText([&] { arcconf::ReadLogicalDrives(controller, text); });
  UntilEndOfText([&] { arcconf::ReadPhysicalDevices(controller, text); });
}

constexpr std::string_view kSections[] = {
    R"(Controller information
   Controller Status                        : Optimal
   Controller Model                         : Tolvar 4800X
   Temperature                              : 40 C
   Controller Version Information
   BIOS                                     : 4.0-0 (71)
   Controller Battery Information
   Status                                   : Charging
   Controller Vital Product Data
   VPD Assigned#                            : ZX1
)",
    R"(Logical drive information
-----------------------------------------------
Logical drive number 1
   RAID level                               : 5EE
   Status of RAID 5EE                       : Expanded
   Size                                     : 400 MB
   Drive(s) (Channel,Device)                : 0,0 0,1 0,2 0,3
   Stripe order (Channel,Device)            : 0,0 0,1
                                              0,2 0,3

Logical drive number 2
   RAID level                               : 1

)",
    R"(Physical Device information
-----------------------------------------------
   Channel #0:
      Transfer Speed
      Device #0
         Device is a Hard drive
         State                              : Hot Spare
         Assigned Spare for                 : Logical drive 1
         Reported Channel,Device            : 0,1
         Serial number                      : S1
      Device #1
         Device is an Enclosure services device
         State                              : Online
         Status of Enclosure services device
         Temperature                        : Normal
      Device #2
         Device is a Unknown device
         State                              : Available
Command completed successfully.
)",
};

// The names of models, and the word between a spare disk and the drive that it is assigned to.
constexpr std::string_view kOwnWords[] = {
    "Zentraxis", "C5", "C6", "Zentraxis-B3", "Zentraxis-A2", "Unnamed", "HostRAID", "for",
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TryParser({Read, kSections, kOwnWords}, AsText(data, size));
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
  return MutateAroundSections(data, size, maxSize, seed, kSections);
}
