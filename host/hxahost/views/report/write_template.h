#pragma once

#include <functional>
#include <ostream>
#include <span>
#include <string_view>

namespace hxahost {

// A place in a template and what goes there.
struct TemplateSlot {
  std::string_view mark;
  std::function<void(std::ostream& out)> write;
};

// Writes the template with its slots filled. What is put in is not searched for marks. The slots are in the
// template's order, one for each mark; throws std::logic_error for one that is not there.
void WriteTemplate(std::ostream& out, std::string_view text, std::span<const TemplateSlot> slots);

}  // namespace hxahost
