#include "logs/raid_mgr_fields.h"

#include <algorithm>

namespace {

using namespace std::string_view_literals;
constexpr std::string_view kFieldEnds = "\t\0"sv;

}  // namespace

std::array<std::string_view, 4> SplitFields(std::string_view line) {
  std::array<std::string_view, 4> fields;
  for (std::string_view& field : fields) {
    field = FirstField(line);
    line.remove_prefix(std::min(field.size() + 1, line.size()));
  }
  return fields;
}

std::string_view FirstField(std::string_view line) { return line.substr(0, line.find_first_of(kFieldEnds)); }
