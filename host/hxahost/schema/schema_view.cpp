#include "host/hxahost/schema/schema_view.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "host/hxacore/value_type.h"
#include "host/hxahost/schema/property_origins.h"
#include "host/hxahost/text/mof_string.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

// CIM's own, word for word: a compiler that has no schema yet needs them.
constexpr std::string_view kQualifiers =
    "// The qualifiers are CIM's own. Leave their declarations out where the namespace has them already.\n"
    "Qualifier Association : boolean = false, Scope(association), Flavor(DisableOverride);\n"
    "Qualifier Description : string = null, Scope(any), Flavor(Translatable);\n"
    "Qualifier Key : boolean = false, Scope(property, reference), Flavor(DisableOverride);\n"
    "Qualifier MappingStrings : string[], Scope(class, property, association, indication, reference);\n";

std::string MofType(const PropertyDeclaration& property) {
  if (property.type == kCIMReference) return std::string(property.referencedClass) + " REF";
  return TypeName(property.type);
}

void WriteOrigins(std::ostream& out, const std::vector<std::string>& lines) {
  std::vector<std::string> texts;
  for (const std::string& line : lines) texts.push_back(MofText(line));
  if (!texts.empty()) out << fmt::format(",\n   MappingStrings {{{}}}", fmt::join(texts, ", "));
}

void WriteProperty(std::ostream& out, const ClassDeclaration& declaration, const PropertyDeclaration& property) {
  out << fmt::format("  [{}Description({})", property.isKey ? "Key, " : "", MofText(property.description));
  WriteOrigins(out, OriginLines(declaration.name, property));
  out << fmt::format("]\n  {} {}{};\n", MofType(property), property.name, property.isArray ? "[]" : "");
}

}  // namespace

void WriteClassList(std::ostream& out, std::span<const ClassDeclaration> classes) {
  std::size_t width = 0;
  for (const ClassDeclaration& declaration : classes) width = std::max(width, declaration.name.size());
  for (const ClassDeclaration& declaration : classes) {
    out << fmt::format("{:{}}  {}\n", declaration.name, width, declaration.description);
  }
}

void WriteSchemaMof(std::ostream& out, std::span<const ClassDeclaration> classes) {
  out << kQualifiers;
  for (const ClassDeclaration& declaration : classes) {
    out << fmt::format("\n[{}Description({})]\nclass {} {{\n", declaration.isAssociation ? "Association, " : "",
                       MofText(declaration.description), declaration.name);
    for (const PropertyDeclaration& property : declaration.properties) WriteProperty(out, declaration, property);
    out << "};\n";
  }
}

}  // namespace hxahost
