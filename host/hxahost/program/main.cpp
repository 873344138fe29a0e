#include <iostream>

#include "host/hxahost/program/program.h"
#include "host/hxahost/system/signals.h"
#include "host/hxahost/system/standard_streams.h"
#include "host/hxahost/system/this_program.h"

int main(int argc, char** argv) {
  hxahost::SetSignals();
  const hxahost::StandardStreams streams;
  return hxahost::RunProgram(hxahost::ProgramArguments(argc, argv), std::cout, std::cerr);
}
