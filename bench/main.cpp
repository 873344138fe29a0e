// Prints one table of what the plug-in costs, each row against something that does the least there is to do. Given a
// job and a size, does that job alone: that is what valgrind is run on.

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <vector>

#include "bench/collection_cost.h"
#include "bench/job_runner.h"

namespace {

constexpr int kDisks = 512;
constexpr int kLogLines = 100'000;

void PrintRow(const std::string& what, const std::string& measured, const std::string& compared, double ratio,
              const char* target) {
  std::printf("%-50s %-34s %-34s %8.3f  %s\n", what.c_str(), measured.c_str(), compared.c_str(), ratio, target);
  std::fflush(stdout);
}

std::string Text(const char* format, auto... values) {
  const int size = std::snprintf(nullptr, 0, format, values...);
  std::string text(static_cast<std::size_t>(size), '\0');
  std::snprintf(text.data(), text.size() + 1, format, values...);
  return text;
}

double Of(std::size_t count) { return static_cast<double>(count); }

double EachMicroseconds(const Cost& cost) { return cost.seconds / Of(cost.things) * 1e6; }
double EachInstructions(const Cost& cost) { return cost.instructions / Of(cost.things); }

void PrintHead() { std::printf("%-50s %-34s %-34s %8s  %s\n", "what", "measured", "compared with", "ratio", "target"); }

void PrintCollection(const std::string& machine, int rounds) {
  const CollectionCost cost = MeasureCollection(machine, rounds);
  PrintRow(Text("whole collection, %zu runs of tools", cost.runs), Text("%.2f ms", cost.whole * 1e3),
           Text("%.2f ms, the same runs bare", cost.bare * 1e3), cost.ratio, "<= 1.03");
  PrintRow("  the same in the processors' time", Text("%.2f ms", cost.wholeBusy * 1e3),
           Text("%.2f ms, the same runs bare", cost.bareBusy * 1e3), cost.ratioBusy, "<= 1.03");
}

void PrintParsing(const std::string& tool) {
  const Cost parsed = Counted("parse-" + tool, kDisks);
  const Cost split = Counted("split-" + tool, kDisks);
  const double bytes = Of(parsed.bytes);
  PrintRow("parsing " + tool + Text(", %d disks", kDisks),
           Text("%.2f instr/byte, %.0f MB/s", parsed.instructions / bytes, bytes / parsed.seconds / 1e6),
           Text("%.2f instr/byte, lines by memchr", split.instructions / bytes),
           parsed.instructions / split.instructions, "<= 8");
}

void PrintPublication() {
  const Cost whole = Counted("publish", kDisks);
  const Cost idle = Counted("publish-idle", kDisks);
  const auto each = [](const Cost& cost) {
    return Text("%.0f instr, %.2f us", EachInstructions(cost), EachMicroseconds(cost));
  };
  PrintRow(Text("publication of one of %zu instances", whole.things), each(whole) + ", own host",
           each(idle) + ", idle host", EachInstructions(whole) / EachInstructions(idle), "");
}

// The slope of the straight line through the logarithms: 1 grows with the disks, 2 with their square.
double FittedPower(const std::vector<double>& sizes, const std::vector<double>& costs) {
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
  const double n = Of(sizes.size());
  return (n * xy - x * y) / (n * xx - x * x);
}

void PrintAssociations() {
  std::vector<double> sizes;
  std::vector<double> instructions;
  double each = 0;
  for (const int disks : {10, 100, 1'000, 10'000}) {
    const Cost cost = Counted("associations", disks);
    const double ofOne = EachInstructions(cost);
    if (each == 0) each = ofOne;
    PrintRow(Text("associations of %d disks, %zu links", disks, cost.things),
             Text("%.0f instr, %.2f us a link", ofOne, EachMicroseconds(cost)),
             Text("%.0f instr a link with 10 disks", each), ofOne / each, "");
    sizes.push_back(disks);
    instructions.push_back(cost.instructions);
  }
  PrintRow("their growth, fitted: power of the disks", "", "", FittedPower(sizes, instructions), "<= 1.1");
}

void PrintLog() {
  struct Step {
    const char* job;
    const char* what;
    const char* target;
  };
  constexpr Step kSteps[] = {
      {"log-records",      "into records",         "<= 6"},
      {"log-publish-idle", "published, idle host", ""    },
      {"log-publish",      "published, own host",  ""    },
  };
  const Cost lines = Counted("log-lines", kLogLines);
  for (const auto& [job, what, target] : kSteps) {
    const Cost cost = Counted(job, kLogLines);
    PrintRow(Text("RAID manager log, %d lines, %s", kLogLines, what), Text("%.2f us a line", EachMicroseconds(cost)),
             Text("%.2f us, getline", EachMicroseconds(lines)), cost.seconds / lines.seconds, target);
    PrintRow("  the same in instructions", Text("%.0f instr", EachInstructions(cost)),
             Text("%.0f instr, getline", EachInstructions(lines)), cost.instructions / lines.instructions, target);
  }
}

// Nearly all of it is the system's loader, which finds the symbols of the plug-in's library.
void PrintFirstQuery() {
  const Cost loaded = Counted("first-query", 0);
  const Cost linked = Counted("first-query-linked", 0);
  PrintRow("loading to the first query's end, no tool answers",
           Text("%.2f ms, %.0f instr", loaded.seconds * 1e3, loaded.instructions),
           Text("%.2f ms, %.0f instr, linked in", linked.seconds * 1e3, linked.instructions),
           loaded.instructions / linked.instructions, "");
}

void PrintMemory() {
  for (const int disks : {8, 512, 4'096, 32'768}) {
    for (const char* const tool : {"qcmdrun", "arcconf", "hrconf"}) {
      for (const char* const extent : {"collect-", "whole-"}) {
        const Cost cost = Timed(std::string(extent) + tool, disks);
        const double text = Of(cost.things) / (1 << 20);
        PrintRow(Text("peak memory, %s%s, %d disks", extent, tool, disks), Text("%.1f MiB", cost.peakMiB),
                 Text("3 x %.1f MiB of text + 16", text), cost.peakMiB / (3 * text + 16), "<= 1");
      }
    }
  }
}

int PrintTable(const std::string& machine, int rounds) {
  PrintHead();
  PrintCollection(machine, rounds);
  for (const char* const tool : {"qcmdrun", "arcconf", "hrconf"}) PrintParsing(tool);
  PrintPublication();
  PrintAssociations();
  PrintLog();
  PrintFirstQuery();
  PrintMemory();
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "Usage: %s MACHINE-FOLDER ROUNDS | JOB SIZE\n", argv[0]);
    return 2;
  }
  try {
    const std::string first = argv[1];
    const int second = std::atoi(argv[2]);
    return first.find('/') == first.npos ? DoJob(first, second) : PrintTable(first, second);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}
