#include "bench/machine_text.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <span>

namespace {

constexpr int kDisksPerArray = 8;
constexpr int kDisksPerChannel = 16;

// What the utilities say of the controller itself. A label that is missing here would be looked for in all of the text.
constexpr const char* kQcmdrunController[] = {
    "   Controller type                        : Zentraxis C6-e",
    "   Controller FRU part number             : 61K4417",
    "   Controller Serial Number               : K6E0412277",
    "   Part number                            : 61K4402",
    "   Actual BIOS version                    : 7.10.18 (0398)",
    "   Firmware version                       : 7.12.05 (0412)",
    "   Boot block version                     : 7.10.02 (0377)",
    "   Device driver version                  : 7.12.04",
    "   Cluster solution version               : None",
    "   Controller slot information            : 3",
    "   Controller name                        : DBSERVER",
    "   SCSI channel description               : 2 channels - 1 internal, 2 external",
    "   Initiator IDs (Channel/SCSI ID)        : 1/7 2/7",
    "   Maximum physical devices               : 30",
    "   Defunct disk drive count               : 1",
    "   Logical drives/Offline/Critical        : 3/0/1",
    "   Readahead cache setting                : Adaptive",
    "   Stripe-unit size                       : 8 KB",
    "   Rebuild rate (Low/Medium/High)         : High",
    "   Hot-swap rebuild                       : Enabled",
    "   Data scrubbing                         : Enabled",
    "   Hot-spare copy back                    : Enabled",
    "   Part of cluster (Yes/No)               : No",
    "   Unattended mode (Yes/No)               : No",
    "   Concurrent commands supported          : 64",
    "   Configuration update count             : 17",
};

constexpr const char* kArcconfController[] = {
    "   Controller Status                        : Optimal",
    "   Channel description                      : SAS/SATA",
    "   Controller Model                         : KVR Zentraxis C6-e",
    "   Controller Serial Number                 : 3E41A077",
    "   Physical Slot                            : 3",
    "   Temperature                              : 46 C/ 114 F (Normal)",
    "   Installed memory                         : 256 MB",
    "   Copyback                                 : Disabled",
    "   Data scrubbing                           : Enabled",
    "   Defunct disk drive count                 : 1",
    "   Logical drives/Offline/Critical          : 3/0/1",
    "   -------------------------------------------------------------------",
    "   Controller Version Information",
    "   -------------------------------------------------------------------",
    "   BIOS                                     : 5.2-0 (15611)",
    "   Firmware                                 : 5.2-0 (15611)",
    "   Driver                                   : 5.2-0 (15611)",
    "   Boot Flash                               : 5.1-0 (15204)",
    "   -------------------------------------------------------------------",
    "   Controller Battery Information",
    "   -------------------------------------------------------------------",
    "   Status                                   : Optimal",
    "   Over temperature                         : No",
    "   Capacity remaining                       : 98 percent",
    "   Time remaining (at current draw)         : 3 days, 1 hours, 11 minutes",
    "   -------------------------------------------------------------------",
    "   Controller Vital Product Data",
    "   -------------------------------------------------------------------",
    "   VPD Assigned#                            : ZX10466",
    "   EC Version#                              : J85096",
    "   Controller FRU#                          : ZX10471",
    "   Battery FRU#                             : ZX10478",
};

constexpr const char* kHrconfController[] = {
    "   Controller Status                        : Okay",         "   Channel description                      : SATA",
    "   Boot ROM                                 : 4.2-1 (8710)", "   Defunct disk drive count                 : 0",
    "   Logical drives/Offline/Critical          : 2/0/0",
};

// Appends one formatted line with the utilities' line end.
void AddLine(std::string& text, const char* format, ...) {
  std::array<char, 256> line{};
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(line.data(), line.size(), format, arguments);
  va_end(arguments);
  text.append(line.data()).append("\r\n");
}

void AddLines(std::string& text, std::span<const char* const> lines) {
  for (const char* const line : lines) AddLine(text, "%s", line);
}

void AddHead(std::string& text, const char* head) {
  constexpr const char* kRule = "----------------------------------------------------------------------";
  for (const char* const line : {kRule, head, kRule}) AddLine(text, "%s", line);
}

void AddQcmdrunDisk(std::string& text, int disk) {
  const int id = disk % kDisksPerChannel;
  if (id == 0) {
    AddLine(text, "   Channel #%d:", disk / kDisksPerChannel + 1);
    AddLine(text, "      Initiator at SCSI ID 7");
  }
  AddLine(text, "      Target on SCSI ID %d", id);
  AddLine(text, "         Device is a Hard disk");
  AddLine(text, "         SCSI ID                          : %d", id);
  AddLine(text, "         PFA (Yes/No)                     : No");
  AddLine(text, "         State                            : Online (ONL)");
  AddLine(text, "         Size (in MB)/(in sectors)        : 34715/71096320");
  AddLine(text, "         Device ID                        : TALVERA T36LW10 S96H8B%05d", disk);
  AddLine(text, "         FRU part number                  : 61K4431");
}

void AddHardDrive(std::string& text, int disk) {
  AddLine(text, "      Device #%d", disk);
  AddLine(text, "         Device is a Hard drive");
  AddLine(text, "         State                              : Online");
  AddLine(text, "         Supported                          : Yes");
  AddLine(text, "         Transfer Speed                     : SAS 3.0 Gb/s");
  AddLine(text, "         Reported Channel,Device            : %d,%d", disk / kDisksPerChannel,
          disk % kDisksPerChannel);
  AddLine(text, "         Vendor                             : TALVERA");
  AddLine(text, "         Model                              : T73SS15");
  AddLine(text, "         Firmware                           : B71C");
  AddLine(text, "         Serial number                      : J20P%05d", disk);
  AddLine(text, "         World-wide name                    : 5000CCA000%06X", disk);
  AddLine(text, "         Size                               : 70006 MB");
  AddLine(text, "         Write Cache                        : Disabled (write-through)");
  AddLine(text, "         FRU                                : 40K1040");
  AddLine(text, "         PFA                                : No");
}

void AddLogicalDrive(std::string& text, int drive) {
  AddLine(text, "Logical drive number %d", drive);
  AddLine(text, "   Logical drive name                       : DATA%d", drive);
  AddLine(text, "   RAID level                               : 5");
  AddLine(text, "   Status of logical drive                  : Okay");
  AddLine(text, "   Size                                     : 489994 MB");
  AddLine(text, "   Stripe-unit size                         : 256 KB");
}

}  // namespace

std::string QcmdrunConfig(int disks) {
  std::string text;
  AddHead(text, "Controller information");
  AddLines(text, kQcmdrunController);
  AddHead(text, "Logical drive information");
  for (int drive = 1; drive <= disks / kDisksPerArray; ++drive) {
    AddLine(text, "   Logical drive number %d", drive);
    AddLine(text, "      Status of logical drive             : Okay (OKY)");
    AddLine(text, "      RAID level                          : 5");
    AddLine(text, "      Size (in MB)                        : 40960");
    AddLine(text, "      Write cache status                  : Write back (WB)");
    AddLine(text, "      Number of chunks                    : 8");
    AddLine(text, "      Stripe-unit size                    : 8 KB");
    AddLine(text, "      Access blocked                      : No");
    AddLine(text, "      Part of array                       : A");
  }
  AddHead(text, "Array information");
  for (int array = 0; array < disks / kDisksPerArray; ++array) {
    AddLine(text, "   Array %c stripe order (Channel/SCSI ID) : 1,0 1,1 1,2 1,3", 'A' + array % 26);
    AddLine(text, "                                            1,4 1,5 1,6 1,8");
  }
  AddHead(text, "Physical device information");
  for (int disk = 0; disk < disks; ++disk) AddQcmdrunDisk(text, disk);
  AddLine(text, "Command completed successfully.");
  return text;
}

std::string QcmdrunDeviceEvents(int disks) {
  std::string text;
  AddLine(text, "Device event table:");
  AddLine(text, "+---------+---------+---------------+-------------+-------------+-----+-------------+");
  AddLine(text, "| Channel | SCSI ID | Parity errors | Soft errors | Hard errors | PFA | Misc errors |");
  AddLine(text, "+---------+---------+---------------+-------------+-------------+-----+-------------+");
  for (int disk = 0; disk < disks; ++disk) {
    AddLine(text, "| %7d | %7d |             0 |           0 |           0 |   0 |           0 |",
            disk / kDisksPerChannel + 1, disk % kDisksPerChannel);
  }
  AddLine(text, "+---------+---------+---------------+-------------+-------------+-----+-------------+");
  AddLine(text, "Command completed successfully.");
  return text;
}

std::string QcmdrunSubStatus(int disks) {
  std::string text;
  for (int disk = 0; disk < disks; ++disk) {
    AddLine(text, "A:1 C:%d I:%d PARAMS:0x1f REQ-OFF:127 MAX-TXER-P:8 CUR-TXER-P:8", disk / kDisksPerChannel + 1,
            disk % kDisksPerChannel);
  }
  AddLine(text, "Command completed successfully.");
  return text;
}

std::string ArcconfConfig(int disks) {
  std::string text;
  AddLine(text, "Controllers found: 1");
  AddHead(text, "Controller information");
  AddLines(text, kArcconfController);
  AddHead(text, "Logical drive information");
  for (int drive = 1; drive <= disks / kDisksPerArray; ++drive) AddLogicalDrive(text, drive);
  AddHead(text, "Physical Device information");
  for (int disk = 0; disk < disks; ++disk) AddHardDrive(text, disk);
  AddLine(text, "Command completed successfully.");
  return text;
}

std::string HrconfConfig(int disks) {
  std::string text;
  AddHead(text, "Controller information");
  AddLines(text, kHrconfController);
  AddHead(text, "Logical drive information");
  for (int drive = 1; drive <= disks / kDisksPerArray; ++drive) AddLogicalDrive(text, drive);
  AddHead(text, "Physical drive information");
  for (int disk = 0; disk < disks; ++disk) AddHardDrive(text, disk);
  AddLine(text, "Command completed successfully.");
  return text;
}
