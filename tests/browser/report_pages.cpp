#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "host/hxahost/program/formats.h"
#include "tests/support/filled_repository.h"
#include "tests/support/healthy_machine.h"

// Writes pages, and the JSON beside them, of machines that the sample machine is not: one with thousands of disks, one
// whose tools print markup and scripts, one with nothing, and one on which nothing is wrong.
namespace {

using namespace hxahost;
using namespace NKVRHXA20;

// Every way that text could get out of its place: the element, a tag, an attribute, a comment, an entity, a link, the
// script's own syntax, the direction of text, a terminal.
const std::vector<std::string> kHostileTexts = {
    "</script><script>document.title='taken'; alert(1)</script>",
    "<img src=x onerror=\"document.title='taken'; alert(2)\">",
    "\"><svg onload=alert(3)><b id=injected>bold</b>",
    "<!-- <script> ]]> --> &lt;b&gt; &amp; &#x3c;",
    "javascript:alert(4)",
    "';alert(5);//`${alert(6)}` \\u003cscript>",
    "turned \xe2\x80\xae txet \xe2\x80\xac\xe2\x80\xa8next\xe2\x80\xa9last",
    "escape \x1b[31mred\x1b[0m bell \x07 zero-width \xe2\x80\x8b\xf3\xa0\x81\x81.",
    "@QUERY_DATA@ @REPORT_DATA@ @SCRIPT@",
    "\xf6\xe4 bytes that are no UTF-8",
    "__proto__",
};

const std::string& Hostile(std::size_t index) { return kHostileTexts[index % kHostileTexts.size()]; }

constexpr int kControllers = 10;
constexpr int kChannels = 4;
constexpr int kDisks = 50;       // of a channel
constexpr int kDriveDisks = 10;  // of a logical drive

std::string Text(int number) { return std::to_string(number); }

void PublishController(FilledRepository& repository, int controller) {
  repository.Publish("KVRSG_zxSCSIProtocolController", "DeviceID", "Zentraxis" + Text(controller), "ControllerNum",
                     Text(controller), "ControllerType", "Type", "ControllerStatus", "Optimal");
}

void PublishDisk(FilledRepository& repository, int controller, int channel, int id) {
  repository.Publish("KVRSG_zxDiskDrive", "DeviceID",
                     "C" + Text(controller) + " CH" + Text(channel) + " I" + Text(id) + ":disk", "ControllerNum",
                     Text(controller), "Channel", Text(channel), "DeviceNumber", "Device #" + Text(id), "ScsiId",
                     Text(id), "DeviceType", "Hard drive", "PFA", "No", "State", id == 7 ? "Failed" : "Online", "Size",
                     "70007 MB", "DeviceSerialNum", "S" + Text(controller) + "-" + Text(channel) + "-" + Text(id),
                     "Firmware", "1.0", "Vendor", "VENDOR", "Model", "MODEL 70");
}

void PublishEvent(FilledRepository& repository, int controller, int channel, int id) {
  const auto part = [](int number) { return static_cast<std::uint16_t>(number); };
  const TCIMDateTime time(part(2000 + controller), part(1 + channel), part(1 + id % 28), 12, 0, 0, 0, 60);
  repository.Publish("KVRSG_LogRecord_RAIDMgrEvent", "MessageTimestamp", time, "RecordID",
                     Text(controller) + "-" + Text(channel) + "-" + Text(id), "Severity", id == 7 ? "ERR" : "INF",
                     "MachineName", "MACHINE", "Message", "Event of disk " + Text(id));
}

void PublishDrive(FilledRepository& repository, int controller, int channel, int firstId) {
  const std::string drive = Text(1 + (channel * kDisks + firstId) / kDriveDisks);
  std::string disks;
  for (int id = firstId; id < firstId + kDriveDisks; ++id) disks += Text(channel) + "," + Text(id) + " ";
  repository.Publish("KVRSG_zxLogicalDisk", "DeviceID", "Zentraxis" + Text(controller) + "LD" + drive, "ControllerNum",
                     Text(controller), "LogicalDriveNum", drive, "LogicalDriveStatus", "Optimal", "NumOfSegments",
                     Text(kDriveDisks), "RaidLevel", "5", "DriveList", disks);
}

// Ten controllers with 200 disks each, an event for every disk and a logical drive on every ten.
InstanceList ManyDisks() {
  FilledRepository repository;
  for (int controller = 1; controller <= kControllers; ++controller) {
    PublishController(repository, controller);
    for (int channel = 0; channel < kChannels; ++channel) {
      for (int id = 0; id < kDisks; ++id) {
        PublishDisk(repository, controller, channel, id);
        PublishEvent(repository, controller, channel, id);
        if (id % kDriveDisks == 0) PublishDrive(repository, controller, channel, id);
      }
    }
  }
  return repository.Instances();
}

// Each class with some of its properties; every one has a hostile text, and each instance another.
struct HostileClass {
  const char* name;
  std::vector<const char*> properties;
};

const std::vector<HostileClass> kHostileClasses = {
    {"KVRSG_zxSCSIProtocolController", {"ControllerNum", "DeviceID", "ControllerType", "ControllerStatus"}},
    {"KVRSG_zxLogicalDisk",            {"ControllerNum", "DeviceID", "LogicalDriveNum"}                   },
    {"KVRSG_zxLogicalDisk",            {"ControllerNum", "DeviceID", "LogicalDriveStatus", "PartOfArray"} },
    {"KVRSG_zxDiskGroup",              {"ControllerNum", "CollectionID", "Array", "StripeOrder"}          },
    {"KVRSG_zxDiskDrive",              {"ControllerNum", "DeviceID", "Channel", "ScsiId", "State"}        },
    {"KVRSG_zxDiskDrive",              {"ControllerNum", "DeviceID", "Model", "DeviceType", "PFA"}        },
    {"KVRSG_zxFirmwareVersion",        {"Name", "Version", "SoftwareElementID"}                           },
    {"KVRSG_BadStripeData",            {"ControllerNum", "InstanceID", "LogicalDrive", "NumBadStripes"}   },
    {"KVRSG_LogRecord_SoftEvent",      {"ControllerNum", "RecordID", "NumEntries"}                        },
    {"KVRSG_LogRecord_RAIDMgrEvent",   {"Message", "RecordID", "Severity", "MachineName"}                 },
    {"KVRSG_zxRawData",                {"Command"}                                                        },
};

InstanceList HostileMachine() {
  FilledRepository repository;
  for (std::size_t index = 0; index < kHostileTexts.size(); ++index) {
    for (const HostileClass& each : kHostileClasses) {
      std::vector<std::pair<std::string, TCIMValue>> properties;
      for (const char* const property : each.properties) {
        properties.emplace_back(property, Hostile(index + properties.size()));
      }
      if (each.properties.front() == std::string("Command"))
        properties.emplace_back("RawResults", Texts(kHostileTexts));
      repository.Publish(each.name, properties);
    }
  }
  const TCIMDateTime noDay(2026, 0, 99, 12, 0, 0, 0, 60);
  repository.Publish("KVRSG_LogRecord_RAIDMgrEvent", "RecordID", "0", "MessageTimestamp", noDay);
  return repository.Instances();
}

std::vector<LoggedEntry> HostileLog() {
  std::vector<LoggedEntry> log;
  for (const std::string& text : kHostileTexts) log.push_back({3, "zenx//" + text});
  return log;
}

void Write(const std::filesystem::path& file, const char* format, const QueryHeader& header,
           const QueryResult& result) {
  std::ofstream out(file, std::ios::binary);
  const auto& view = WriterOf<QueryWriter>("query", format);
  view.Begin(out, header);
  view.Query(out, header, result);
  view.End(out, header);
}

void WritePage(const std::filesystem::path& folder, const std::string& name, const QueryHeader& header,
               const QueryResult& result) {
  Write(folder / (name + ".html"), "html", header, result);
  Write(folder / (name + ".json"), "json", header, result);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "report_pages FOLDER: writes pages into the folder\n";
    return 2;
  }
  const std::filesystem::path folder(argv[1]);
  std::filesystem::create_directories(folder);
  const TCIMDateTime time(2026, 3, 5, 12, 30, 15, 0, 60);
  WritePage(folder, "many", {"MACHINE", "/tools", time, {"KVRSG_zxDiskDrive"}, 1}, {1, ManyDisks(), {}});
  WritePage(folder, "hostile", {Hostile(0), Hostile(1), time, {Hostile(2)}, 1}, {1, HostileMachine(), HostileLog()});
  WritePage(folder, "nothing", {"MACHINE", "/tools", time, {}, 1}, {1, {}, {}});
  const HealthyMachine healthy;
  WritePage(folder, "healthy", healthy.Header(), healthy.Result());
  return 0;
}
