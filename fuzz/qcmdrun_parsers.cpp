// The legacy utility's report on one controller.
#include <string>
#include <string_view>

#include "collect/end_of_text.h"
#include "collect/line_scanner.h"
#include "fuzz/support/fuzzer.h"
#include "fuzz/support/parser_trial.h"
#include "fuzz/support/sections.h"
#include "tools/qcmdrun/controller_parser.h"
#include "tools/qcmdrun/read_configuration.h"

namespace {

void Read(ZenxController& controller, std::string_view report) {
  CollectedData text(controller.Host, std::string(report));
  qcmdrun::ParseController(controller, report, 1);
  UntilEndOfText([&] { qcmdrun::ReadLogicalDrives(controller, text); });
  UntilEndOfText([&] { qcmdrun::ReadStripeOrders(controller, text); });
  UntilEndOfText([&] { qcmdrun::ReadPhysicalDevices(controller, text); });
}

constexpr std::string_view kSections[] = {
    R"(Controller information
   Controller type                        : Zentraxis C6-e
   Controller slot information            : 3
   Logical drives/Offline/Critical        : 2/0/1
)",
    R"(Logical drive information
-----------------------------------------------
   Logical drive number 1
      Status of logical drive             : Critical (CRT)
      Additional information              : Rebuild in progress
      RAID level                          : 1
      Size (in MB)                        : 400
      Write cache status                  : Write through (WT)
      Number of chunks                    : 2
      Stripe-unit size                    : 8 KB
      Access blocked                      : No
      Part of array                       : A
   Logical drive number 2
      Status of logical drive             : Okay (OKY)
      RAID level                          : 5
      Size (in MB)                        : 800
      Write cache status                  : Write back (WB)
      Number of chunks                    : 3
      Stripe-unit size                    : 8 KB
      Access blocked                      : No
      Part of array                       : B
      Part of merge group                 : 206
--------
)",
    R"(   Array A stripe order (Channel/SCSI ID) : 1,0 1,1
   Array B stripe order (Channel/SCSI ID) : 1,2 1,3 2,0
                                            2,1
--------
)",
    R"(Physical device information
-----------------------------------------------
   Channel #1:
      Initiator at SCSI ID 7
      Target on SCSI ID 0
         Device is a Hard disk
         SCSI ID                          : 0
         PFA (Yes/No)                     : No
         State                            : Online (ONL)
         Size (in MB)/(in sectors)        : 400/819200
         Device ID                        : TALVERA T36LW10 S96H8B01234
         FRU part number                  : 61K4431
      Target on SCSI ID 6
         Device is a Tape
         SCSI ID                          : 6
         State                            : Standby (SBY)
         Device ID                        : ORBITEK DAT72LP         A119
   Channel #2:
      Initiator at SCSI ID 7
      Target on SCSI ID 8
         Device is a Processor device
         SCSI ID                          : 8
Command completed successfully.
)",
};

constexpr std::string_view kOwnWords[] = {"Zentraxis", "Zentraxis-B3", "Zentraxis-A2"};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TryParser({Read, kSections, kOwnWords}, AsText(data, size));
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
  return MutateAroundSections(data, size, maxSize, seed, kSections);
}
