// fleet_machines COUNT MACHINES FOLDER: writes the scripted day of a fleet as bundles. Of COUNT machines, made of those
// in MACHINES (tests/machines), three have incidents, two old firmware on their controllers, and one was last collected
// from three weeks ago. A disk has moved since the week before, another one is in two machines, and one file is
// damaged.

#include <filesystem>
#include <iostream>
#include <map>
#include <regex>
#include <string>

#include <fmt/core.h>

#include "host/hxahost/bundle/write_bundle.h"
#include "tests/support/file_text.h"
#include "tests/support/machine_answers.h"

namespace {

namespace fs = std::filesystem;

const std::map<int, std::string> kAnswers = {
    {3,  "arcconf-newer-failed-disk"     },
    {17, "arcconf-newer-raid5-two-failed"},
    {31, "arcconf-newer-prediction"      },
};
constexpr int kOldFirmware[] = {5, 23};
constexpr int kStale = 11;
constexpr int kMovedFrom = 7;
constexpr int kMovedTo = 8;
constexpr int kShared[] = {12, 13};
constexpr const char* kToday = "20261121093000.000000+060";
constexpr const char* kLastWeek = "20261114093000.000000+060";
constexpr const char* kLongAgo = "20261031093000.000000+060";

class Writer {
 public:
  Writer(fs::path machines, fs::path folder) : machines_(std::move(machines)), folder_(std::move(folder)) {
    fs::create_directories(folder_);
  }

  // Serial numbers end in the number of the machine.
  std::string AnswersOf(int number) const {
    const auto special = kAnswers.find(number);
    const std::string name = special == kAnswers.end() ? "arcconf-newer-healthy" : special->second;
    std::string text = FileText(machines_ / (name + ".answers"));
    text = std::regex_replace(text, std::regex("(Serial number +: [A-Za-z0-9]+)"), fmt::format("$01{:03}", number));
    for (const int old : kOldFirmware) {
      if (number == old) text = std::regex_replace(text, std::regex("5\\.2-0 \\(15611\\)"), "5.1-1 (15323)");
    }
    return text;
  }

  void Write(int number, const std::string& answers, const std::string& time, const std::string& suffix = "") const {
    hxahost::Bundle bundle = BundleOf(ReadMachineAnswers(answers));
    bundle.machine = fmt::format("DB{:03}", number);
    bundle.localTimes.front().time = NKVRHXA20::TCIMDateTime(time);
    WriteFileText(folder_ / (bundle.machine + suffix + ".bundle"), WriteBundle(bundle));
  }

  void WriteDamaged() const {
    const std::string whole = FileText(folder_ / "DB001.bundle");
    WriteFileText(folder_ / "damaged.bundle", whole.substr(0, whole.size() / 2));
  }

 private:
  fs::path machines_;
  fs::path folder_;
};

std::string Replaced(const std::string& text, const std::string& from, const std::string& to) {
  return std::regex_replace(text, std::regex(from), to);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const int count = std::stoi(argv[1]);
  const Writer writer(argv[2], argv[3]);
  for (int number = 1; number <= count; ++number) {
    std::string answers = writer.AnswersOf(number);
    // The spare of the one is now that of the other.
    if (number == kMovedFrom) writer.Write(number, answers, kLastWeek, "-last-week");
    if (number == kMovedFrom) answers = Replaced(answers, "NV5K03A007", "NV5K09A007");
    if (number == kMovedTo) answers = Replaced(answers, "NV5K03A008", "NV5K03A007");
    if (number == kShared[1]) answers = Replaced(answers, "NV5K02A013", fmt::format("NV5K02A{:03}", kShared[0]));
    writer.Write(number, answers, number == kStale ? kLongAgo : kToday);
  }
  writer.WriteDamaged();
  return 0;
}
