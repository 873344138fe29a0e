#include "host/hxahost/views/report/write_template.h"

#include <stdexcept>
#include <string>

namespace hxahost {

void WriteTemplate(std::ostream& out, std::string_view text, std::span<const TemplateSlot> slots) {
  for (const TemplateSlot& slot : slots) {
    const std::size_t place = text.find(slot.mark);
    if (place == text.npos) throw std::logic_error("The template has no " + std::string(slot.mark) + ".");
    out << text.substr(0, place);
    slot.write(out);
    text.remove_prefix(place + slot.mark.size());
  }
  out << text;
}

}  // namespace hxahost
