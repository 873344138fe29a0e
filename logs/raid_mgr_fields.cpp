#include "logs/raid_mgr_fields.h"

#include <algorithm>

std::array<std::string_view, 4> SplitFields(std::string_view line) {
  std::array<std::string_view, 4> fields;
  constexpr std::string_view kSeparators("\t\0", 2);
  for (std::string_view& field : fields) {
    field = line.substr(0, line.find_first_of(kSeparators));
    line.remove_prefix(std::min(field.size() + 1, line.size()));
  }
  return fields;
}
