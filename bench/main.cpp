// Prints a table of times and sizes that users notice, each row with its limit. The exit status is 1 if a limit is
// exceeded.

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

constexpr int kRounds = 15;                       // of collecting from the sample machine
constexpr int kSizes[] = {1'024, 4'096, 32'768};  // disks on one controller, for growth
constexpr int kLogLines = 200'000;
constexpr int kManyLogLines = 1'000'000;
constexpr double kMebibyte = 1U << 20U;
constexpr double kFixedMemory = 64;  // MiB, whatever the log
constexpr double kSteepest = 1.1;    // growth: 1 is proportional to the disks, 2 to their square

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kLogRecord = "KVRSG_LogRecord_RAIDMgrEvent";
constexpr const char* kViews[] = {"table", "json", "html", "cim-xml", "mof"};
constexpr const char* kHealthViews[] = {"text", "json", "prometheus"};
// Three links for each disk, and before them the classes that they link.
constexpr const char* kLinks[] = {"KVRSG_zxSCSIProtocolController", "KVRSG_zxDiskDrive",
                                  "KVRSG_zxDiskDriveVersion",       "KVRSG_zxSCSIDeviceData",
                                  "KVRSG_ElementZxScsiDeviceData",  "KVRSG_zxProtocolControllerForPhysicalDisk",
                                  "KVRSG_zxFirmwareOnDiskDrive"};

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

// The slope of the straight line through the logarithms of sizes and costs.
double Slope(const std::vector<double>& costs) {
  double x = 0;
  double y = 0;
  double xx = 0;
  double xy = 0;
  for (std::size_t i = 0; i < costs.size(); ++i) {
    const double size = std::log(kSizes[i]);
    const double cost = std::log(costs[i]);
    x += size;
    y += cost;
    xx += size * size;
    xy += size * cost;
  }
  const auto n = static_cast<double>(costs.size());
  return (n * xy - x * y) / (n * xx - x * x);
}

// The rows, and whether they are all within their limits.
class Table {
 public:
  Table() { std::printf("%-52s %10s   %s\n", "what", "measured", "limit"); }

  void AtMost(const std::string& what, double measured, double limit) {
    Add(what, measured, "<=", limit, measured <= limit);
  }
  void AtLeast(const std::string& what, double measured, double limit) {
    Add(what, measured, ">=", limit, measured >= limit);
  }
  void Growth(const std::string& what, const std::vector<double>& seconds) {
    std::printf("%-52s %10.2f\n", (what + ": seconds for 32,768 disks").c_str(), seconds.back());
    AtMost(what + ": growth with disks", Slope(seconds), kSteepest);
  }
  bool IsMet() const { return isMet_; }

 private:
  void Add(const std::string& what, double measured, const char* relation, double limit, bool isMet) {
    const int digits = limit < 10 ? 2 : 0;
    std::printf("%-52s %10.*f   %s %.*f %s\n", what.c_str(), digits, measured, relation, digits, limit,
                isMet ? "met" : "MISSED");
    std::fflush(stdout);
    isMet_ = isMet_ && isMet;
  }

  bool isMet_ = true;
};

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

// The sample machine with utilities that take 50 ms for each answer; the working directory while it exists.
class SlowMachine {
 public:
  SlowMachine() : folder_(fs::temp_directory_path() / "zenx-bench-slow") {
    fs::remove_all(folder_);
    fs::create_directories(folder_ / "zenx");
    fs::copy(SampleMachine() / "zenx", folder_ / "zenx" / "quick", fs::copy_options::recursive);
    for (const std::string tool : {"qcmdrun", "hrconf_64", "arcconf"}) {
      const fs::path script = folder_ / "zenx" / (tool + ".exe");
      std::ofstream(script) << "#!/bin/sh\nsleep 0.05\nexec zenx/quick/" << tool << ".exe \"$@\"\n";
      fs::permissions(script, fs::perms::owner_all);
    }
    fs::current_path(folder_);
  }
  ~SlowMachine() {
    fs::current_path("/");
    fs::remove_all(folder_);
  }
  SlowMachine(const SlowMachine&) = delete;
  SlowMachine& operator=(const SlowMachine&) = delete;

 private:
  fs::path folder_;
};

// With slow utilities, the number of runs decides the time.
void MeasureSlowTools(Table& table, const std::string& program) {
  constexpr int kSlowRounds = 5;
  const SlowMachine machine;
  const std::vector<Command> commands = CommandsOf(program);
  std::vector<double> health;
  std::vector<double> query;
  for (int round = 0; round < kSlowRounds; ++round) {
    double bare = 0;
    for (const Command& command : commands) bare += CostOf(command, false).wall;
    health.push_back(CostOf({program, "health"}, false).wall / bare);
    query.push_back(CostOf({program, "query", "--format", "json"}, true).wall / bare);
  }
  const std::string what = " / " + std::to_string(commands.size()) + " tool runs of 50 ms alone";
  table.AtMost("health" + what, Median(health), 0.6);
  table.AtMost("query" + what, Median(query), 1.03);
}

void MeasureTools(Table& table) {
  for (const MeasuredTool& tool : MeasuredTools()) {
    std::vector<double> seconds;
    std::vector<double> speeds;
    for (const int disks : kSizes) {
      const Collecting collecting = tool.measure(disks);
      seconds.push_back(collecting.seconds);
      speeds.push_back(collecting.megabytes / collecting.seconds);
    }
    table.AtLeast(std::string(tool.name) + ": MB/s of text", std::ranges::min(speeds), 200);
    table.Growth(std::string(tool.name), seconds);
  }
}

// A machine's folder with one controller of qcmdrun, the working directory while it exists.
class Machine {
 public:
  explicit Machine(int disks) : folder_(fs::temp_directory_path() / "zenx-bench") {
    fs::remove_all(folder_);
    const fs::path answers = folder_ / "zenx" / "answers" / "qcmdrun";
    fs::create_directories(answers / "1");
    fs::copy(SampleMachine() / "zenx" / "qcmdrun.exe", folder_ / "zenx");
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
  double start = 0;             // seconds without disks
  std::vector<double> seconds;  // for each number of disks, minus start
};

std::vector<Question> Questions(const std::string& program) {
  Command links = {program, "query", "--format", "json"};
  for (const std::string name : kLinks) links.insert(links.end(), {"--class", name});
  std::vector<Question> questions;
  const auto ask = [&questions](const std::string& what, const Command& command) {
    questions.push_back({what, command, 0, {}});
  };
  ask("collection", {program, "query", "--class", kController});
  ask("links", links);
  for (const std::string view : kViews) ask("query, " + view, {program, "query", "--format", view});
  for (const std::string view : kHealthViews) ask("health, " + view, {program, "health", "--format", view});
  return questions;
}

// The cheapest of several runs.
Cost CheapestOf(const Command& command, bool isChecked, int runs) {
  Cost best = CostOf(command, isChecked);
  while (--runs > 0) best.busy = std::min(best.busy, CostOf(command, isChecked).busy);
  return best;
}

// Each question to machines of several sizes, minus the time without disks.
void MeasureGrowth(Table& table, const std::string& program) {
  std::vector<Question> questions = Questions(program);
  double peak = 0;
  for (const int disks : {0, kSizes[0], kSizes[1], kSizes[2]}) {
    const Machine machine(disks);
    const int runs = disks < std::ranges::max(kSizes) ? 5 : 2;
    for (Question& question : questions) {
      const Cost cost = CheapestOf(question.command, question.command[1] == "query", runs);
      if (disks == 0) question.start = cost.busy;
      if (disks > 0) question.seconds.push_back(cost.busy - question.start);
      peak = std::max(peak, cost.peakMiB);
    }
  }
  for (const Question& question : questions) table.Growth(question.what, question.seconds);
  table.AtMost("peak memory in MiB, 32,768 disks", peak, 1024);
}

// Gives the size in MiB.
double WriteLog(int lines) {
  std::ofstream log("RaidEvtA.log", std::ios::binary);
  for (int line = 0; line < lines; ++line) {
    log << "2007/03/" << 10 + line % 20 << " 08:" << 10 + line % 50 << ":09 PST\tINF\tSERVER\tEvent " << line
        << " of controller 3, channel 1, SCSI ID 4.\r\n";
  }
  return static_cast<double>(log.tellp()) / kMebibyte;
}

// The worst of what people and programs ask of a machine with a long log: the memory above a fixed part, as a multiple
// of the text.
void MeasureLogMemory(Table& table, const std::string& program) {
  const double text = WriteLog(kManyLogLines);
  const std::string bundle = (fs::current_path() / "log.bundle").string();
  double worst = 0;
  const auto measure = [&](Command command) {
    command.insert(command.begin(), program);
    worst = std::max(worst, (CostOf(command, false).peakMiB - kFixedMemory) / text);
  };
  measure({"query", "--format", "jsonl", "--record", bundle});
  for (const std::string view : {"table", "json", "jsonl", "csv", "html", "cim-xml"}) {
    measure({"query", "--format", view});
    measure({"query", "--format", view, "--replay", bundle});
  }
  for (const std::string command : {"status", "health"}) measure({command});
  table.AtMost("RAID manager log, 1,000,000 lines: memory / text", worst, 4);
}

void MeasureLog(Table& table, const std::string& program) {
  const Machine machine(0);
  setenv("ZENX_RAID_LOG_DIR", (fs::current_path().string() + "/").c_str(), 1);
  const Command command = {program, "query", "--format", "json", "--class", kLogRecord};
  const double without = CostOf(command, true).busy;
  WriteLog(kLogLines);
  table.AtLeast("RAID manager log: lines/s, read and shown", kLogLines / (CostOf(command, true).busy - without),
                50'000);
  MeasureLogMemory(table, program);
}

// The bundle and the result of a log against those of a log with half as many lines: each line has names, and a bundle
// has all of them in one text.
void MeasureFiles(Table& table, const std::string& program) {
  constexpr int kLines = 100'000;
  const fs::path folder = fs::temp_directory_path() / "zenx-bench-files";
  std::vector<double> masking;
  std::vector<double> diff;
  for (const int lines : {0, kLines, 2 * kLines}) {
    const Machine machine(0);
    fs::create_directories(folder);
    setenv("ZENX_RAID_LOG_DIR", (folder.string() + "/").c_str(), 1);
    {
      std::ofstream log(folder / "RaidEvtA.log", std::ios::binary);
      for (int line = 0; line < lines; ++line) log << "day\tINF\tDBSERVER\tEvent of DBSERVER, 10.20.30.40\r\n";
    }
    const std::string bundle = (folder / "m.bundle").string();
    const std::string result = (folder / "r.json").string();
    OutputOf({program, "query", "--class", kLogRecord, "--format", "json", "--record", bundle, "--output", result});
    masking.push_back(CheapestOf({program, "bundle", "mask", bundle, "/dev/null"}, true, 3).busy);
    diff.push_back(CheapestOf({program, "diff", result, result}, true, 3).busy);
  }
  fs::remove_all(folder);
  const auto ratio = [](const std::vector<double>& seconds) {
    return (seconds[2] - seconds[0]) / (seconds[1] - seconds[0]);
  };
  table.AtMost("masking: twice the text: processors", ratio(masking), 2 * kSteepest);
  table.AtMost("diff: twice the events: processors", ratio(diff), 2 * kSteepest);
}

// Results of machines with 16 disks, in a folder that the destructor deletes.
class FleetFolder {
 public:
  FleetFolder(const std::string& result, int machines) : folder_(fs::temp_directory_path() / "zenx-bench-fleet") {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    const std::string key = "\"machine\": \"";
    const std::size_t name = result.find(key) + key.size();
    for (int number = 0; number < machines; ++number) {
      const std::string machine = "M" + std::to_string(number);
      std::ofstream(folder_ / (machine + ".json"), std::ios::binary)
          << result.substr(0, name) << machine << result.substr(name);
    }
  }
  ~FleetFolder() { fs::remove_all(folder_); }
  FleetFolder(const FleetFolder&) = delete;
  FleetFolder& operator=(const FleetFolder&) = delete;

  std::string Path() const { return folder_.string(); }

 private:
  fs::path folder_;
};

constexpr int kFleet = 500;  // machines; the time grows in proportion to their number, the memory does not
constexpr int kLargeFleet = 10'000;
constexpr int kFleetDisks = 16;
constexpr int kFleetRuns = 5;
constexpr double kFleetMemory = 1.25;  // the names of the files

void MeasureFleet(Table& table, const std::string& program) {
  const std::string result = [&] {
    const Machine machine(kFleetDisks);
    return OutputOf({program, "query", "--format", "json", "--runs"});
  }();
  for (const std::string format : {"table", "jsonl", "csv"}) {
    std::vector<Cost> costs(3);
    // All sizes in turn, because the machine may be slower for some seconds.
    for (int run = 0; run < kFleetRuns; ++run) {
      for (std::size_t place = 0; place < costs.size(); ++place) {
        const FleetFolder folder(result, kFleet << place);
        const Cost cost = CostOf({program, "fleet", "--format", format, folder.Path()}, true);
        costs[place] = run == 0 || cost.busy < costs[place].busy ? cost : costs[place];
      }
    }
    for (std::size_t place = 1; place < costs.size(); ++place) {
      const int times = 1 << place;
      const std::string what = "fleet, " + format + ": " + std::to_string(times) + " times the machines: ";
      table.AtMost(what + "processors", costs[place].busy / costs.front().busy, times * kSteepest);
      if (format != "table") table.AtMost(what + "memory", costs[place].peakMiB / costs.front().peakMiB, kFleetMemory);
    }
  }
  const FleetFolder folder(result, kLargeFleet);
  table.AtMost("fleet: seconds for 10,000 results of 16 disks", CostOf({program, "fleet", folder.Path()}, true).wall,
               60);
}

}  // namespace

int main() {
  try {
    const std::string program = (SampleMachine().parent_path() / "bin" / "hxahost").string();
    fs::current_path(SampleMachine());
    Table table;
    MeasureSlowTools(table, program);
    MeasureTools(table);
    MeasureGrowth(table, program);
    MeasureLog(table, program);
    MeasureFiles(table, program);
    MeasureFleet(table, program);
    return table.IsMet() ? 0 : 1;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 2;
  }
}
