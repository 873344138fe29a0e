// A library with the name of another one, where it must not be found. Loading it leaves a trace.
#include <cstdio>
#include <cstdlib>

namespace {

bool LeaveTrace() {
  const char* const file = std::getenv("ZENX_TEST_TRACE");
  std::FILE* const trace = file ? std::fopen(file, "a") : nullptr;
  if (trace) std::fclose(trace);
  return trace != nullptr;
}

const bool isTraced = LeaveTrace();

}  // namespace
