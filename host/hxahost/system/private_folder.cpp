#include "host/hxahost/system/private_folder.h"

#include <random>
#include <string>

namespace fs = std::filesystem;

namespace hxahost {

// A name that is there is somebody else's. On Windows the folder for temporary files belongs to the user alone.
PrivateFolder::PrivateFolder() {
  std::random_device random;
  do {
    path_ = fs::temp_directory_path() / ("zenx-" + std::to_string(random()) + std::to_string(random()));
  } while (!fs::create_directory(path_));
  fs::permissions(path_, fs::perms::owner_all);
  // Somebody may have been quicker than the line above.
  if (!fs::is_empty(path_)) throw fs::filesystem_error("is not private", path_, {});
}

PrivateFolder::~PrivateFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

}  // namespace hxahost
