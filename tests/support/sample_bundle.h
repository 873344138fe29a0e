#pragma once

#include "host/hxahost/bundle/bundle.h"

// A bundle that contains everything that a bundle can.
inline hxahost::Bundle SampleBundle() {
  using namespace hxahost;
  Bundle bundle;
  bundle.program = "1.0.0";
  bundle.machine = "DBSERVER";
  bundle.directory = "C:\\tools";
  bundle.osType = 18;
  bundle.osVersion = {true, 6, 1};
  bundle.raidLogDir = "C:\\ZXM\\";
  bundle.localTimes.push_back({NKVRHXA20::TCIMDateTime("20261121093000.000000+060"), 2});
  bundle.localTimes.push_back({NKVRHXA20::TCIMDateTime("20261121093001.250000+060"), 1});
  bundle.querySeconds = {1.25};
  RecordedRun good;
  good.path = "zenx//arcconf.exe";
  good.arguments = {"getconfig", "1", "al"};
  good.limitSeconds = 300;
  good.result.seconds = 0.125;
  good.result.output =
      "Controllers found: 1\r\n   Serial number : AB12CD34\r\n\r\n\\ \"\t\x1b[2J \xff K\xc3\xa4se\n"
      "no line end";
  good.result.exitStatus = 0;
  bundle.runs.push_back(good);
  RecordedRun ended = good;
  ended.arguments = {"getlogs", "1", ""};
  ended.result = {};
  ended.result.seconds = 0.125;
  ended.result.ending = "signal 11";
  bundle.runs.push_back(ended);
  RecordedRun late = ended;
  late.path = "zenx//qcmdrun.exe";
  late.arguments.clear();
  late.result = {};
  late.result.seconds = 300.5;
  late.failure = RecordedFailure{FailureKind::kTooLong, "\"it\" was\nended"};
  bundle.runs.push_back(late);
  bundle.raidLog = RecordedLog{"C:\\ZXM\\RaidEvtA.log", "day\tINF\tDBSERVER\tmessage\r\n", {}};
  return bundle;
}
