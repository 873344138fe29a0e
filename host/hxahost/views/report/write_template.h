#pragma once

#include <functional>
#include <ostream>
#include <span>
#include <string_view>

namespace hxahost {

// A mark in a template and the function that writes its replacement.
struct TemplateSlot {
  std::string_view mark;
  std::function<void(std::ostream& out)> write;
};

// Writes the template with its slots filled. The replacements are not searched for marks. The slots are in the
// template's order, one for each mark; throws std::logic_error if a mark is missing.
void WriteTemplate(std::ostream& out, std::string_view text, std::span<const TemplateSlot> slots);

}  // namespace hxahost
