#include "host/hxahost/system/private_folder.h"

#include <random>
#include <stdexcept>
#include <string>
#include <system_error>

namespace fs = std::filesystem;

namespace hxahost {

// An existing name belongs to another program. On Windows only the user can write to the folder for temporary files.
PrivateFolder::PrivateFolder() {
  std::random_device random;
  std::error_code failure;
  const fs::path folder = fs::temp_directory_path(failure);
  if (failure) throw std::runtime_error("the folder for temporary files is missing: set TMPDIR, on Windows TMP");
  do {
    path_ = folder / ("zenx-" + std::to_string(random()) + std::to_string(random()));
  } while (!fs::create_directory(path_));
  fs::permissions(path_, fs::perms::owner_all);
  // Another user may have created a file before the line above.
  if (!fs::is_empty(path_)) throw fs::filesystem_error("is not private", path_, {});
}

PrivateFolder::~PrivateFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

}  // namespace hxahost
