#include "host/hxahost/views/cim/exported_values.h"

#include "plugin/host_interface/exception.h"

using namespace NKVRHXA20;

namespace hxahost {

std::string ImpossibleTime(const TCIMValue& value) {
  if (TCIMValueReader::Kind(value) != ValueKind::kDateTime) return "";
  const std::string text = TCIMValueReader::DateTime(value);
  try {
    TCIMDateTime{text};
    return "";
  } catch (const THXAException&) {
    return text;
  }
}

}  // namespace hxahost
