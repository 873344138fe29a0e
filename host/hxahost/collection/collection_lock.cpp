#include "host/hxahost/collection/collection_lock.h"

#include <chrono>
#include <thread>

namespace hxahost {

CollectionLock::CollectionLock(const std::filesystem::path& folder, std::ostream& err) : lock_(folder) {
  if (lock_.Take()) return;
  err << "hxahost: another program collects from this folder zenx: waiting until it is done." << std::endl;
  while (!lock_.Take()) std::this_thread::sleep_for(std::chrono::milliseconds(100));
}

}  // namespace hxahost
