#include <iostream>

#include "host/hxacore/operating_system.h"
#include "host/hxahost/program/program.h"
#include "host/hxahost/system/interruption.h"
#include "host/hxahost/system/signals.h"
#include "host/hxahost/system/standard_streams.h"
#include "host/hxahost/system/this_program.h"

int main(int argc, char** argv) {
  const hxahost::StandardStreams streams;
  hxahost::SetSignals();
  hxahost::EndWhenAsked(NKVRHXA20::StopRuns);
  return hxahost::RunProgram(hxahost::ProgramArguments(argc, argv), std::cout, std::cerr);
}
