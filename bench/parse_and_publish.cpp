// How parsing and publishing grow with the number of disks on a controller.

#include <benchmark/benchmark.h>

#include "bench/scripted_machine.h"
#include "bench/whole_query.h"
#include "plugin/host_interface/services.h"

namespace {

void CollectAndParse(benchmark::State& state, ScriptedTool tool) {
  NKVRHXA20::SetServices(ScriptedMachine(tool, static_cast<int>(state.range(0))));
  std::size_t devices = 0;
  for ([[maybe_unused]] const auto& round : state) {
    ZenxCollectData collector(NKVRHXA20::TRootObject::GetCoreLogger());
    collector.Collect(false);
    devices = collector.GetControllers().at(0)->PhysicalDevices.size();
  }
  state.counters["devices"] = static_cast<double>(devices);
  state.SetComplexityN(state.range(0));
}

void Publish(benchmark::State& state, ScriptedTool tool) {
  NKVRHXA20::SetServices(ScriptedMachine(tool, static_cast<int>(state.range(0))));
  WholeQuery query;
  std::size_t instances = query.Run();
  for ([[maybe_unused]] const auto& round : state) instances = query.Run();
  state.counters["instances"] = static_cast<double>(instances);
  state.SetComplexityN(state.range(0));
}

bool IsAssociation(std::string_view name) {
  const auto* const declaration = NKVRHXA20::FindClass(name);
  return declaration != nullptr && declaration->isAssociation;
}

// Every disk has a version and statistics, and each is linked to it; it is linked to its controller too.
void PublishAssociations(benchmark::State& state) {
  NKVRHXA20::SetServices(ScriptedMachine(ScriptedTool::kQcmdrun, static_cast<int>(state.range(0))));
  WholeQuery query;
  query.Run();
  std::size_t links = 0;
  for ([[maybe_unused]] const auto& round : state) links = query.Run(IsAssociation);
  state.counters["links"] = static_cast<double>(links);
  state.SetComplexityN(state.range(0));
}

void FromEightTo4096Disks(benchmark::internal::Benchmark* benchmark) {
  benchmark->RangeMultiplier(2)->Range(8, 4096)->Complexity(benchmark::oN)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(CollectAndParse, qcmdrun, ScriptedTool::kQcmdrun)->Apply(FromEightTo4096Disks);
BENCHMARK_CAPTURE(CollectAndParse, arcconf, ScriptedTool::kArcconf)->Apply(FromEightTo4096Disks);
BENCHMARK_CAPTURE(CollectAndParse, hrconf, ScriptedTool::kHrconf)->Apply(FromEightTo4096Disks);
BENCHMARK_CAPTURE(Publish, qcmdrun, ScriptedTool::kQcmdrun)->Apply(FromEightTo4096Disks);
BENCHMARK_CAPTURE(Publish, arcconf, ScriptedTool::kArcconf)->Apply(FromEightTo4096Disks);
BENCHMARK_CAPTURE(Publish, hrconf, ScriptedTool::kHrconf)->Apply(FromEightTo4096Disks);

BENCHMARK(PublishAssociations)->RangeMultiplier(10)->Range(10, 10000)->Complexity()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
