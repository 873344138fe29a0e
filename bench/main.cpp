// Prints one table of what people feel of the program's speed, each row with its limit. The exit status is 1 when a
// limit is missed.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "bench/machine_text.h"
#include "bench/measured_process.h"
#include "bench/tool_speed.h"

namespace fs = std::filesystem;

namespace {

constexpr int kRounds = 15;         // of collecting from the sample machine
constexpr int kDisks = 4'096;       // on the controller whose text is collected
constexpr int kMostDisks = 32'768;  // on one controller
constexpr int kLogLines = 200'000;
constexpr double kSteepest = 1.1;  // growth: 1 is with the disks, 2 with their square

constexpr const char* kViews[] = {"table", "json", "html", "cim-xml", "mof"};
constexpr const char* kHealthViews[] = {"text", "json", "prometheus"};
// Three links for each disk, and before them what they link.
constexpr const char* kLinks[] = {"KVRSG_zxSCSIProtocolController", "KVRSG_zxDiskDrive",
                                  "KVRSG_zxDiskDriveVersion",       "KVRSG_zxSCSIDeviceData",
                                  "KVRSG_ElementZxScsiDeviceData",  "KVRSG_zxProtocolControllerForPhysicalDisk",
                                  "KVRSG_zxFirmwareOnDiskDrive"};

// The rows, and whether all limits are met.
class Table {
 public:
  Table() { std::printf("%-44s %12s %12s\n", "what", "measured", "limit"); }

  void AtMost(const std::string& what, double measured, double limit) {
    Add(what, measured, "at most", limit, measured <= limit);
  }
  void AtLeast(const std::string& what, double measured, double limit) {
    Add(what, measured, "at least", limit, measured >= limit);
  }
  bool IsMet() const { return isMet_; }

 private:
  void Add(const std::string& what, double measured, const char* relation, double limit, bool isMet) {
    const int digits = limit < 10 ? 2 : 0;
    std::printf("%-44s %12.*f   %8s %8.*f  %s\n", what.c_str(), digits, measured, relation, digits, limit,
                isMet ? "met" : "MISSED");
    std::fflush(stdout);
    isMet_ = isMet_ && isMet;
  }

  bool isMet_ = true;
};

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

// The slope of the straight line through the logarithms of sizes and costs.
double Growth(const std::vector<double>& sizes, const std::vector<double>& costs) {
  double x = 0;
  double y = 0;
  double xx = 0;
  double xy = 0;
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    const double size = std::log(sizes[i]);
    const double cost = std::log(costs[i]);
    x += size;
    y += cost;
    xx += size * size;
    xy += size * cost;
  }
  const auto n = static_cast<double>(sizes.size());
  return (n * xy - x * y) / (n * xx - x * x);
}

// The commands that a collection runs, in their order.
std::vector<Command> CommandsOf(const std::string& program) {
  const auto result = nlohmann::json::parse(OutputOf({program, "query", "--format", "json", "--runs"}));
  std::vector<Command> commands;
  for (const auto& run : result.at("queries").at(0).at("runs")) {
    commands.push_back({run.at("command")});
    for (const auto& argument : run.at("arguments")) commands.back().push_back(argument);
  }
  return commands;
}

// The program against its tools alone, in rounds of one after the other.
void MeasureCollection(Table& table, const std::string& program) {
  const std::vector<Command> commands = CommandsOf(program);
  std::vector<double> wall;
  std::vector<double> busy;
  for (int round = 0; round < kRounds; ++round) {
    const Cost whole = CostOf({program, "query", "--format", "json"}, true);
    Cost bare;
    for (const Command& command : commands) {
      const Cost cost = CostOf(command, false);
      bare.wall += cost.wall;
      bare.busy += cost.busy;
    }
    wall.push_back(whole.wall / bare.wall);
    busy.push_back(whole.busy / bare.busy);
  }
  const std::string what = "sample machine / its " + std::to_string(commands.size()) + " tool runs alone: ";
  table.AtMost(what + "clock", Median(wall), 1.2);
  table.AtMost(what + "processors", Median(busy), 1.2);
}

void MeasureTools(Table& table) {
  for (const MeasuredTool& tool : MeasuredTools()) {
    const Collecting some = tool.measure(kDisks);
    table.AtLeast(std::string(tool.name) + ": MB/s of text", some.megabytes / some.seconds, 200);
    const double growth = Growth({kDisks, kMostDisks}, {some.seconds, tool.measure(kMostDisks).seconds});
    table.AtMost(std::string(tool.name) + ": growth with disks", growth, kSteepest);
  }
}

// A machine's folder with one controller of qcmdrun, the working directory until it goes.
class Machine {
 public:
  Machine(const fs::path& sampleMachine, int disks) : folder_(fs::temp_directory_path() / "zenx-bench") {
    fs::remove_all(folder_);
    const fs::path answers = folder_ / "zenx" / "answers" / "qcmdrun";
    fs::create_directories(answers / "1");
    fs::copy(sampleMachine / "zenx" / "qcmdrun.exe", folder_ / "zenx");
    std::ofstream(answers / "other.txt") << "Found 0 KVR Zentraxis controller(s)\n";
    for (const auto& [name, text] : QcmdrunAnswers(disks, "\n")) std::ofstream(answers / "1" / (name + ".txt")) << text;
    fs::current_path(folder_);
  }
  ~Machine() {
    fs::current_path("/");
    fs::remove_all(folder_);
  }
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;

 private:
  fs::path folder_;
};

struct Question {
  std::string what;
  Command command;
  std::vector<double> seconds;  // for each number of disks
};

std::vector<Question> Questions(const std::string& program) {
  std::vector<Question> questions = {
      {"collection", {program, "query", "--format", "json", "--class", "KVRSG_zxSCSIProtocolController"}, {}},
      {"links",      {program, "query", "--format", "json"},                                              {}}
  };
  for (const std::string name : kLinks) questions[1].command.insert(questions[1].command.end(), {"--class", name});
  for (const std::string view : kViews)
    questions.push_back({
        "query, " + view, {program,      "query", "--format", view},
           {}
    });
  for (const std::string view : kHealthViews) {
    questions.push_back({
        "health, " + view, {program,      "health", "--format", view},
           {}
    });
  }
  return questions;
}

// Each question to machines of several sizes, less what it takes where there is no disk.
void MeasureGrowth(Table& table, const std::string& program, const fs::path& sampleMachine) {
  const std::vector<double> sizes = {kMostDisks / 16, kMostDisks / 4, kMostDisks};
  std::vector<Question> questions = Questions(program);
  std::vector<double> none;
  double peak = 0;
  for (const double disks : {0.0, sizes[0], sizes[1], sizes[2]}) {
    const Machine machine(sampleMachine, static_cast<int>(disks));
    for (std::size_t i = 0; i < questions.size(); ++i) {
      const Cost cost = CostOf(questions[i].command, questions[i].command[1] == "query");
      disks == 0 ? none.push_back(cost.busy) : questions[i].seconds.push_back(cost.busy - none[i]);
      peak = std::max(peak, cost.peakMiB);
    }
  }
  for (const Question& question : questions) {
    char seconds[32];
    std::snprintf(seconds, sizeof seconds, ", %.1f s", question.seconds.back());
    table.AtMost(question.what + seconds + ": growth with disks", Growth(sizes, question.seconds), kSteepest);
  }
  table.AtMost("peak memory in MiB, 32,768 disks", peak, 1024);
}

void MeasureLog(Table& table, const std::string& program, const fs::path& sampleMachine) {
  const Machine machine(sampleMachine, 0);
  setenv("ZENX_RAID_LOG_DIR", (fs::current_path().string() + "/").c_str(), 1);
  const Command command = {program, "query", "--format", "json", "--class", "KVRSG_LogRecord_RAIDMgrEvent"};
  const double without = CostOf(command, true).busy;
  {
    std::ofstream log("RaidEvtA.log", std::ios::binary);
    for (int line = 0; line < kLogLines; ++line) {
      log << "2007/03/" << 10 + line % 20 << " 08:" << 10 + line % 50 << ":09 PST\tINF\tSERVER\tEvent " << line
          << " of controller 3, channel 1, SCSI ID 4.\r\n";
    }
  }
  table.AtLeast("RAID manager log: lines/s, read and shown", kLogLines / (CostOf(command, true).busy - without),
                50'000);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "Usage: %s BUILD-FOLDER\n", argv[0]);
    return 2;
  }
  try {
    const fs::path build = fs::canonical(argv[1]);
    const std::string program = (build / "bin" / "hxahost").string();
    const fs::path sampleMachine = build / "sample-machine";
    Table table;
    fs::current_path(sampleMachine);
    MeasureCollection(table, program);
    MeasureTools(table);
    MeasureGrowth(table, program, sampleMachine);
    MeasureLog(table, program, sampleMachine);
    return table.IsMet() ? 0 : 1;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 2;
  }
}
