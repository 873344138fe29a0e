#include "tests/support/source_folder.h"

std::filesystem::path SourceFile(const std::filesystem::path& name) {
  return std::filesystem::path(ZENX_SOURCE_FOLDER) / name;
}
