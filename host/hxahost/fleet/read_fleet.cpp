#include "host/hxahost/fleet/read_fleet.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <thread>
#include <utility>

#include "host/hxahost/fleet/in_order.h"
#include "host/hxahost/machine/health.h"
#include "host/hxahost/text/escaping.h"

namespace hxahost {

namespace {

// The outcome of one input: a machine or a damaged file; if rows are written, only their text.
struct Read {
  std::optional<FleetMachine> machine;
  std::optional<DamagedFile> damaged;
  std::string rows;
};

Read ReadOne(const FleetInput& input, const Limits& limits, const RowWriters& writers) {
  Read read;
  std::ostringstream rows;
  try {
    const JudgedResult judged = JudgeResult(input.name, ReadFleetInput(input), limits, HealthClasses());
    read.machine = Summarize(judged);
    if (writers.result != nullptr) writers.result(rows, judged);
  } catch (const std::exception& failure) {
    read.damaged = {Printable(input.name), Printable(failure.what())};
    if (writers.damaged != nullptr) writers.damaged(rows, *read.damaged);
  }
  read.rows = std::move(rows).str();
  return read;
}

}  // namespace

std::size_t Processors() { return std::max(1U, std::thread::hardware_concurrency()); }

std::size_t ReadFleet(FleetInputs& inputs, const Limits& limits, const RowWriters& rows, std::ostream& out,
                      Fleet& fleet, const std::function<void(const std::string& name)>& begin) {
  std::size_t results = 0;
  const auto next = [&] {
    auto input = inputs.Next();
    if (input) begin(input->name);
    return input;
  };
  const auto work = [&](const FleetInput& input) { return ReadOne(input, limits, rows); };
  const auto take = [&](Read read) {
    out << read.rows;
    results += read.machine ? 1 : 0;
    if (rows.result != nullptr) return;
    if (read.machine) fleet.Add(std::move(*read.machine));
    if (read.damaged) fleet.Add(std::move(*read.damaged));
  };
  InOrder(Processors(), next, work, take);
  return results;
}

}  // namespace hxahost
