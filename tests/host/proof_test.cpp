// Every value of the sample machine is traced to the line that it was read from: its own line, not an equal line of a
// neighbour.
#include "host/hxahost/proof/proof.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "host/hxacore/schema.h"
#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/schema/property_origins.h"
#include "host/hxahost/text/ascii.h"
#include "tests/support/query_host.h"
#include "tests/support/sample_text.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;

constexpr auto kDisk = kDiskDriveClass;
constexpr auto kDrive = kLogicalDiskClass;

// The published instances of the sample machine.
class SampleMachine {
 public:
  explicit SampleMachine(const std::map<std::string, std::string>& answers = AllAnswers()) {
    ScriptedServices services;
    services.answers = answers;
    QueryHost host;
    std::vector<std::string> classes;
    for (const ClassDeclaration& each : PublishedClasses()) classes.emplace_back(each.name);
    host.Query(classes);
    result_.instances = host.repository->Published();
  }

  const InstanceList& Instances() const { return result_.instances; }
  Machine Build() const { return BuildMachine({}, result_); }

  std::size_t PlaceOf(std::string_view className, std::string_view property, std::string_view value) const {
    const auto found = std::ranges::find_if(Instances(), [&](const auto& each) {
      return each->Class().name == className && RawText(*each, property) == value;
    });
    EXPECT_NE(found, Instances().end()) << value;
    return static_cast<std::size_t>(found - Instances().begin());
  }

  // Changes the instance so that it differs from the raw text.
  void Set(std::size_t place, const std::string& property, const std::string& value) {
    const auto repository = TRepository::Make(std::nullopt);
    const auto copy = repository->GetClass(std::string(Instances()[place]->Class().name), {})->CreateInstance({});
    for (const PublishedProperty& each : Instances()[place]->Properties()) {
      copy->SetProperty(std::string(each.name), each.name == property ? TCIMValue(value) : each.value, {});
    }
    copy->Commit({});
    result_.instances[place] = repository->Published().front();
  }

 private:
  QueryResult result_;
};

bool HasPart(const std::string& text, std::string_view part) { return text.find(part) != text.npos; }

std::vector<std::string> LinesOf(const InstanceList& instances, const Proof& proof) {
  const std::vector<std::string> all = RawElements(*instances[proof.text], "RawResults");
  std::vector<std::string> lines;
  for (const std::size_t line : proof.lines) lines.push_back(all.at(line));
  return lines;
}

// The nearest line that contains the text, at or above the line.
std::string Above(const std::vector<std::string>& lines, std::size_t from, std::string_view text) {
  for (std::size_t index = from + 1; index-- > 0;) {
    if (HasPart(lines[index], text)) return lines[index];
  }
  return "";
}

// Expects the beginning of the object that a line belongs to.
void ExpectOwnLine(const InstanceList& instances, const TPublishedInstance& instance, const Proof& proof) {
  const std::vector<std::string> lines = RawElements(*instances[proof.text], "RawResults");
  const std::size_t line = proof.lines.front();
  const std::string_view className = instance.Class().name;
  if (className == kLogicalDiskClass) {
    EXPECT_TRUE(Above(lines, line, "Logical drive number").ends_with(" " + RawText(instance, "LogicalDriveNum")));
  } else if (className == kDiskDriveClass && !HasPart(lines[line], "Channel #")) {
    const std::string number = RawText(instance, "DeviceNumber");
    const std::string head = Above(lines, line, number.empty() ? "Target on SCSI ID" : "Device #");
    EXPECT_TRUE(
        head.ends_with(number.empty() ? " " + RawText(instance, "ScsiId") : "#" + number.substr(number.rfind('#') + 1)))
        << head;
    const std::string channel = Above(lines, line, "Channel #");
    EXPECT_TRUE(channel.empty() || RawText(instance, "Channel").empty() ||
                HasPart(channel, "#" + RawText(instance, "Channel") + ":"))
        << channel;
  }
}

// Whether the value differs from the line: it is part of an identifier, or another name of a model.
bool IsInOtherWords(const Proof& proof, const std::string& said, const std::string& value) {
  if (proof.property == "DeviceID") return value.ends_with(WithSingleBlanks(said.substr(said.find(':') + 1)));
  return said == "Controller type : Zentraxis B3 Ultra2 SCSI" ? value == "Zentraxis-B3"
                                                              : said == "Controller Model : Tolvar 4800X";
}

void ExpectLabelAndValue(const InstanceList& instances, const TPublishedInstance& instance, const Proof& proof) {
  std::string said;
  for (const std::string& line : LinesOf(instances, proof)) said += " " + line;
  said = WithSingleBlanks(said);
  const std::string value = WithSingleBlanks(RawText(instance, proof.property));
  EXPECT_TRUE(HasPart(said, value) || IsInOtherWords(proof, said, value) ||
              HasPart(said, value.substr(0, value.find(" for "))))
      << said;
  if (FindRowClass(instance.Class().name) != nullptr) return;
  std::string labels;
  for (const KnownTool& known : kKnownTools) {
    for (const LabelSource& source : LabelsOf(known, instance.Class().name, proof.property)) {
      if (HasPart(said, source.label)) labels += source.label;
    }
  }
  EXPECT_NE(labels, "") << said;
}

// The second controller of a tool has the number 3, which the next tool's first controller also gets.
std::map<std::string, std::string> AnswersWithGap() {
  std::map<std::string, std::string> answers;
  for (auto& [command, answer] : AllAnswers()) {
    std::string key = command;
    const std::size_t number = command.starts_with("qcmdrun") ? command.find_first_of("23") : key.npos;
    if (number != key.npos) key[number] = key[number] == '2' ? '3' : '2';
    answers[key] = answer;
  }
  return answers;
}

void ExpectProofs(const SampleMachine& machine) {
  const Machine built = machine.Build();
  Proofs proofs(built, machine.Instances());
  std::map<Evidence, int> counts;
  for (std::size_t place = 0; place < machine.Instances().size(); ++place) {
    const TPublishedInstance& instance = *machine.Instances()[place];
    for (const Proof& proof : proofs.Of(place)) {
      SCOPED_TRACE(std::string(instance.Class().name) + "." + std::string(proof.property) + " of " +
                   RawText(instance, "DeviceID"));
      ++counts[proof.evidence];
      if (proof.evidence == Evidence::kMade) {
        EXPECT_NE(proof.origin, "");
        continue;
      }
      ASSERT_EQ(proof.evidence, Evidence::kLine);
      ExpectLabelAndValue(machine.Instances(), instance, proof);
      ExpectOwnLine(machine.Instances(), instance, proof);
    }
  }
  EXPECT_GT(counts[Evidence::kLine], 1000);
}

Proof ProofOf(const SampleMachine& machine, std::size_t place, std::string_view property) {
  const Machine built = machine.Build();
  for (Proof& proof : Proofs(built, machine.Instances()).Of(place)) {
    if (proof.property == property) return proof;
  }
  return {};
}

std::vector<std::string> WordsOf(const SampleMachine& machine, std::size_t place, std::string_view property) {
  const Proof proof = ProofOf(machine, place, property);
  EXPECT_EQ(proof.evidence, Evidence::kLine) << property;
  std::vector<std::string> lines;
  for (const std::string& line : LinesOf(machine.Instances(), proof)) lines.push_back(WithSingleBlanks(line));
  return lines;
}

TEST(Proof, FindsTheLineOfAValue) {
  struct Case {
    std::string_view className;
    const char* key;
    const char* value;
    const char* property;
    const char* line;
  };
  const Case cases[] = {
      {kDisk,            "DeviceSerialNum",  "NV3LE77Q2H", "State",                   "State : Failed"               },
      {kDisk,            "DeviceSerialNum",  "NV3LE77Q2H", "ScsiId",                  "Reported Channel,Device : 0,8"},
      {kDisk,            "DeviceSerialNum",  "H8B01187",   "ScsiId",                  "SCSI ID : 2"                  },
      {kDisk,            "DeviceSerialNum",  "H8B01187",   "Channel",                 "Channel #1:"                  },
      {kDisk,            "DeviceSerialNum",  "HS812T4C9",  "Channel",                 "Channel #1:"                  },
      {kDisk,            "DeviceSerialNum",  "HS812T4C9",  "DeviceNumber",            "Device #5"                    },
      {kDrive,           "LogicalDriveName", "Archive",    "LogicalDriveNum",         "Logical drive number 3"       },
      {kControllerClass, "SerialNum",        "3E41A077",   "ControllerBatteryStatus", "Status : Optimal"             },
      {kControllerClass, "SerialNum",        "K6E0412277", "LastCmdStatus",           "Status : In progress"         },
  };
  const SampleMachine machine;
  using Lines = std::vector<std::string>;
  for (const Case& each : cases) {
    const std::size_t place = machine.PlaceOf(each.className, each.key, each.value);
    EXPECT_EQ(WordsOf(machine, place, each.property), Lines{each.line}) << each.value;
  }
  EXPECT_EQ(WordsOf(machine, machine.PlaceOf("KVRSG_BadStripeData", "NumBadStripes", "3"), "LogicalDrive"),
            Lines{"Logical drive 2 - 3"});
  EXPECT_EQ(WordsOf(machine, machine.PlaceOf(kDiskGroupClass, "Array", "A"), "StripeOrder"),
            (Lines{"Array A stripe order (Channel/SCSI ID) : 1,0 1,1 1,2 1,3 1,4", "1,5 2,0 2,1"}));
}

TEST(Proof, FindsTheObjectsOwnLineWithLabelAndValueForEachValueOfTheSampleMachine) { ExpectProofs(SampleMachine()); }

TEST(Proof, DistinguishesControllersWithOneNumber) {
  const SampleMachine machine(AnswersWithGap());
  const Machine built = machine.Build();
  EXPECT_EQ(std::ranges::count(built.controllers, "3", &Controller::number), 2);
  ExpectProofs(machine);
}

TEST(Proof, FindsDevicesWhoseNumbersAreCut) {
  std::map<std::string, std::string> answers = AllAnswers();
  std::string& config = answers["arcconf getconfig 1 al"];
  for (const auto& [number, longer] : {std::pair("#7\r", "#10007\r"), std::pair("#8\r", "#10008\r")}) {
    config.replace(config.find(number), 3, longer);
  }
  const SampleMachine machine(answers);
  const Proof proof = ProofOf(machine, machine.PlaceOf(kDiskDriveClass, "DeviceSerialNum", "NV3LE77Q2H"), "State");
  EXPECT_EQ(LinesOf(machine.Instances(), proof).at(0), "         State                              : Failed");
}

// The tool is run twice: the second answer is published.
TEST(Proof, ReportsARawTextThatDiffers) {
  using enum Evidence;
  constexpr std::string_view kStripes = "KVRSG_BadStripeData";
  struct Case {
    std::string_view className;
    const char* key;
    const char* value;
    const char* property;
    const char* published;
    Evidence evidence;
  };
  const Case cases[] = {
      {kDisk,            "DeviceSerialNum",  "NV3LE77Q2H",  "State",                   "Online",   kDiffers},
      {kDisk,            "DeviceSerialNum",  "NV3LE77Q2H",  "PFA",                     "N",        kDiffers},
      {kDisk,            "DeviceSerialNum",  "H8B01187",    "DeviceSerialNum",         "H8B01188", kDiffers},
      {kDisk,            "DeviceSerialNum",  "H8B01187",    "Channel",                 "11",       kDiffers},
      {kDisk,            "DeviceSerialNum",  "H8B01187",    "Vendor",                  "TALVERA",  kNoLine },
      {kDisk,            "DeviceSerialNum",  "H8B01187",    "ControllerNum",           "1",        kMade   },
      {kDiskGroupClass,  "StripeOrder",      "0,7 0,8 0,9", "StripeOrder",             "0,7 0,8",  kDiffers},
      {kDrive,           "LogicalDriveName", "Archive",     "LogicalDriveNum",         "9",        kNoLine },
      {kControllerClass, "SerialNum",        "3E41A077",    "ControllerBatteryStatus", "Failed",   kDiffers},
      {kStripes,         "NumBadStripes",    "3",           "NumBadStripes",           "0",        kNoLine },
  };
  for (const Case& each : cases) {
    SampleMachine machine;
    const std::size_t place = machine.PlaceOf(each.className, each.key, each.value);
    machine.Set(place, each.property, each.published);
    EXPECT_EQ(ProofOf(machine, place, each.property).evidence, each.evidence) << each.property << " " << each.published;
  }
}

}  // namespace
