#include "tools/arcconf/driver_mismatch.h"

namespace arcconf {
namespace {

// The host's views are laid out for exactly these tabs and blanks.
constexpr const char* kInOneLine =
    "A Zentraxis C4, C5, C6/C6-e or B3 is present, but there is a driver and firmware mismatch. "
    "\t\t\t\t\t\t\t"
    "Please update your device driver or install Zentraxis Manager including the Zentraxis Manager Agent "
    "\t\t\t\t\t\t\t"
    "to allow HXA to capture information.";

constexpr const char* kInFull =
    "\n"
    "A Zentraxis C4, C5, C6/C6-e or B3 is present, but there is a driver and firmware mismatch. \n"
    "                        "
    "Please update your device driver or install Zentraxis Manager including the Zentraxis Manager \n"
    "                        "
    "Agent to allow HXA to capture complete information.\n"
    "                        "
    "Sending the HXA output without this information may compromise the ability of KVR to perform\n"
    "                        "
    "complete problem determination. \n";

}  // namespace

void LogDriverMismatch(HostHandle host) {
  Log(host, kLogForEngineer, kInOneLine);
  Log(host, kLogForEngineerInFull, kInFull);
}

}  // namespace arcconf
