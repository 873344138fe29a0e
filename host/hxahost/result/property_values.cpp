#include "host/hxahost/result/property_values.h"

#include <algorithm>

#include "host/hxacore/value_reader.h"

using namespace NKVRHXA20;

namespace hxahost {

std::string RawText(const TPublishedInstance& instance, std::string_view property) {
  constexpr std::string_view kSpace = " \t\r\n";
  const auto found = std::ranges::find(instance.Properties(), property, &PublishedProperty::name);
  if (found == instance.Properties().end() || TCIMValueReader::Kind(found->value) != ValueKind::kString) return {};
  const std::string& text = TCIMValueReader::Text(found->value);
  const std::size_t first = text.find_first_not_of(kSpace);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

}  // namespace hxahost
