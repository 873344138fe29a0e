#include "bench/machine_text.h"

#include <fstream>
#include <string_view>

namespace {

constexpr int kDisksPerDrive = 8;
constexpr int kDisksPerChannel = 16;

constexpr const char* kCompleted = "Command completed successfully.\n";

constexpr const char* kQcmdrunDrive = R"(   Logical drive number %n
      Status of logical drive             : Okay (OKY)
      RAID level                          : 5
      Size (in MB)                        : 40960
      Write cache status                  : Write back (WB)
      Number of chunks                    : 8
      Stripe-unit size                    : 8 KB
      Access blocked                      : No
      Part of array                       : %a
)";

constexpr const char* kQcmdrunArrays = "Array information\n---\n";
constexpr const char* kQcmdrunArray = R"(   Array %a stripe order (Channel/SCSI ID) : 1,0 1,1 1,2 1,3
                                            1,4 1,5 1,6 1,8
)";

constexpr const char* kQcmdrunDisks = "Physical device information\n---\n";
constexpr const char* kQcmdrunChannel = "   Channel #%c:\n      Initiator at SCSI ID 7\n";
constexpr const char* kQcmdrunDisk = R"(      Target on SCSI ID %i
         Device is a Hard disk
         SCSI ID                          : %i
         PFA (Yes/No)                     : No
         State                            : Online (ONL)
         Size (in MB)/(in sectors)        : 34715/71096320
         Device ID                        : TALVERA T36LW10 S96H8B%s
         FRU part number                  : 61K4431
)";

constexpr const char* kEventHead = R"(Device event table:
+---------+---------+---------------+-------------+-------------+-----+-------------+
| Channel | SCSI ID | Parity errors | Soft errors | Hard errors | PFA | Misc errors |
+---------+---------+---------------+-------------+-------------+-----+-------------+
)";
constexpr const char* kEvent =
    "|       %c |       %i |             0 |           0 |           0 |   0 |           0 |\n";
constexpr const char* kEventEnd =
    "+---------+---------+---------------+-------------+-------------+-----+-------------+\n";

constexpr const char* kSubStatus = "A:1 C:%c I:%i PARAMS:0x1f REQ-OFF:127 MAX-TXER-P:8 CUR-TXER-P:8\n";

constexpr const char* kDrive = R"(Logical drive number %n
   Logical drive name                       : DATA%n
   RAID level                               : 5
   Status of logical drive                  : Okay
   Size                                     : 489994 MB
   Stripe-unit size                         : 256 KB
)";

constexpr const char* kArcconfDisks = "Physical Device information\n---\n";
constexpr const char* kHrconfDisks = "Physical drive information\n---\n";
constexpr const char* kDisk = R"(      Device #%n
         Device is a Hard drive
         State                              : Online
         Supported                          : Yes
         Transfer Speed                     : SAS 3.0 Gb/s
         Reported Channel,Device            : %c,%i
         Vendor                             : TALVERA
         Model                              : T73SS15
         Firmware                           : B71C
         Serial number                      : J20P%s
         World-wide name                    : 5000CCA000%s
         Size                               : 70006 MB
         Write Cache                        : Disabled (write-through)
         FRU                                : 40K1040
         PFA                                : No
)";

// Replaces "%n" (the number), "%s" (with five digits), "%c" (its channel), "%i" (its ID there), "%a" (a letter).
std::string Replacement(char kind, int number) {
  switch (kind) {
    case 'a': return {static_cast<char>('A' + number % 26)};
    case 's': return std::to_string(100000 + number).substr(1);
    case 'c': return std::to_string(number / kDisksPerChannel + 1);
    case 'i': return std::to_string(number % kDisksPerChannel);
    default: return std::to_string(number);
  }
}

void Add(std::string& to, std::string_view text, const std::string& lineEnd, int number = 0) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\n') {
      to += lineEnd;
    } else if (text[at] == '%') {
      to += Replacement(text[++at], number);
    } else {
      to += text[at];
    }
  }
}

// The output of the sample machine's utility before the first logical drive.
void AddHead(std::string& to, const std::string& utility, const std::string& lineEnd) {
  std::ifstream recorded(SampleMachine() / "zenx/answers" / utility / "1/getconfig-al.txt");
  for (std::string line; line != "Logical drive information" && std::getline(recorded, line);) to += line + lineEnd;
  to += "---" + lineEnd;
}

std::string NewerConfig(const char* utility, const char* headOfDisks, int disks, const std::string& lineEnd) {
  std::string text;
  AddHead(text, utility, lineEnd);
  for (int drive = 1; drive <= disks / kDisksPerDrive; ++drive) Add(text, kDrive, lineEnd, drive);
  Add(text, headOfDisks, lineEnd);
  for (int disk = 0; disk < disks; ++disk) Add(text, kDisk, lineEnd, disk);
  Add(text, kCompleted, lineEnd);
  return text;
}

}  // namespace

std::filesystem::path SampleMachine() {
  return std::filesystem::canonical("/proc/self/exe").parent_path().parent_path() / "sample-machine";
}

Answers QcmdrunAnswers(int disks, const std::string& lineEnd) {
  std::string config;
  std::string events;
  std::string subStatus;
  AddHead(config, "qcmdrun", lineEnd);
  for (int drive = 1; drive <= disks / kDisksPerDrive; ++drive) Add(config, kQcmdrunDrive, lineEnd, drive);
  Add(config, kQcmdrunArrays, lineEnd);
  for (int drive = 1; drive <= disks / kDisksPerDrive; ++drive) Add(config, kQcmdrunArray, lineEnd, drive);
  Add(config, kQcmdrunDisks, lineEnd);
  Add(events, kEventHead, lineEnd);
  for (int disk = 0; disk < disks; ++disk) {
    if (disk % kDisksPerChannel == 0) Add(config, kQcmdrunChannel, lineEnd, disk);
    Add(config, kQcmdrunDisk, lineEnd, disk);
    Add(events, kEvent, lineEnd, disk);
    Add(subStatus, kSubStatus, lineEnd, disk);
  }
  Add(config, kCompleted, lineEnd);
  Add(events, kEventEnd, lineEnd);
  Add(events, kCompleted, lineEnd);
  Add(subStatus, kCompleted, lineEnd);
  return {
      {"getconfig-al",      config   },
      {"getevent-device",   events   },
      {"getsubstat-device", subStatus}
  };
}

Answers ArcconfAnswers(int disks, const std::string& lineEnd) {
  return {
      {"getconfig-al", NewerConfig("arcconf", kArcconfDisks, disks, lineEnd)}
  };
}

Answers HrconfAnswers(int disks, const std::string& lineEnd) {
  return {
      {"getconfig-al", NewerConfig("hrconf_64", kHrconfDisks, disks, lineEnd)}
  };
}
