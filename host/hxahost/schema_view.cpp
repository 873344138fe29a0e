#include "host/hxahost/schema_view.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>
#include <string_view>

using namespace NKVRHXA20;

namespace hxahost {

namespace {

std::string MofText(std::string_view text) {
  std::string quoted = "\"";
  for (const char character : text) {
    if (character == '"' || character == '\\') {
      quoted.append(1, '\\').append(1, character);
    } else if (character >= '\0' && character < ' ') {
      std::array<char, 8> escape{};
      std::snprintf(escape.data(), escape.size(), "\\x%04x", static_cast<unsigned>(character));
      quoted += escape.data();
    } else {
      quoted += character;
    }
  }
  return quoted += '"';
}

std::string MofType(const PropertyDeclaration& property) {
  switch (property.type) {
    case kCIMUInt16: return "uint16";
    case kCIMUInt32: return "uint32";
    case kCIMDateTime: return "datetime";
    case kCIMReference: return std::string(property.referencedClass) + " REF";
    case kCIMString:
    case kCIMEmpty: break;
  }
  return "string";
}

void WriteProperty(std::ostream& out, const PropertyDeclaration& property) {
  out << "  [" << (property.isKey ? "Key, " : "") << "Description(" << MofText(property.description) << ")]\n"
      << "  " << MofType(property) << ' ' << property.name << (property.isArray ? "[]" : "") << ";\n";
}

}  // namespace

void WriteClassList(std::ostream& out, std::span<const ClassDeclaration> classes) {
  std::size_t width = 0;
  for (const ClassDeclaration& declaration : classes) width = std::max(width, declaration.name.size());
  for (const ClassDeclaration& declaration : classes) {
    out << declaration.name << std::string(width - declaration.name.size() + 2, ' ') << declaration.description << '\n';
  }
}

void WriteMof(std::ostream& out, std::span<const ClassDeclaration> classes) {
  std::string_view separator;
  for (const ClassDeclaration& declaration : classes) {
    out << separator << '[' << (declaration.isAssociation ? "Association, " : "") << "Description("
        << MofText(declaration.description) << ")]\nclass " << declaration.name << " {\n";
    for (const PropertyDeclaration& property : declaration.properties) WriteProperty(out, property);
    out << "};\n";
    separator = "\n";
  }
}

}  // namespace hxahost
