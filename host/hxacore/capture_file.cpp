#include "host/hxacore/operating_system.h"
#include "host/hxacore/whole_file.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

std::string CaptureFile(const std::string& path, std::uint64_t largest) {
  WholeFile file = ReadWholeFile(PathOf(path), largest);
  if (!file.refusal.empty()) throw THXAException("\"" + path + "\" cannot be read: " + file.refusal);
  return std::move(file.bytes);
}

}  // namespace NKVRHXA20
