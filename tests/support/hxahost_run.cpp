#include "tests/support/hxahost_run.h"

#include <stdexcept>

#include "host/hxahost/system/this_program.h"
#include "host/hxahost/text/utf8.h"
#include "tests/support/raid_log_setting.h"

namespace fs = std::filesystem;

fs::path HxahostPath() {
  const fs::path plain = hxahost::ProgramFolder() / "hxahost";
  return fs::exists(plain) ? plain : fs::path(plain).replace_extension(".exe");
}

ProgramResult RunHxahost(const std::vector<std::string>& arguments) {
  return RunningProgram(HxahostPath(), arguments).Wait();
}

ProgramResult RunFromShell(const std::string& script, std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), {"-c", script, hxahost::Utf8FromPath(HxahostPath())});
  return RunningProgram("/bin/bash", arguments).Wait();
}

fs::path SampleMachine() { return hxahost::ProgramFolder().parent_path() / "sample-machine"; }

nlohmann::ordered_json QuerySampleMachine(std::vector<std::string> furtherArguments) {
  std::vector<std::string> arguments = {"query", "--format", "json", "--directory",
                                        hxahost::Utf8FromPath(SampleMachine())};
  arguments.insert(arguments.end(), furtherArguments.begin(), furtherArguments.end());
  const ProgramResult result = RunHxahost(arguments);
  if (result.exitStatus != 0) throw std::runtime_error("hxahost failed: " + result.err);
  return nlohmann::ordered_json::parse(result.out);
}

const SampleRun& RunOfSampleMachine() {
  static const TemporaryFolder folder;
  static const SampleRun run = [] {
    const fs::path bundle = folder.Path() / "sample-machine.bundle";
    // Relative to the sample machine's folder, as the tools' own paths are.
    const RaidLogSetting setting("raid-manager\\");
    return SampleRun{QuerySampleMachine({"--machine-name", "SAMPLE", "--local-time", "20261121093000.000000+060",
                                         "--repeat", "2", "--record", hxahost::Utf8FromPath(bundle)}),
                     bundle};
  }();
  return run;
}

std::string RecordedSampleMachine() { return hxahost::Utf8FromPath(RunOfSampleMachine().bundle); }
