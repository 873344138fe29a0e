#include "host/hxahost/schema/schema_view.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "host/hxacore/value_type.h"
#include "host/hxahost/schema/property_origins.h"
#include "host/hxahost/schema/superclasses.h"
#include "host/hxahost/text/mof_string.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

// CIM's own, word for word: a compiler without a schema needs them.
constexpr std::string_view kQualifiers =
    "// The qualifiers are CIM's own. Leave their declarations out where the namespace has them already.\n"
    "Qualifier Association : boolean = false, Scope(association), Flavor(DisableOverride);\n"
    "Qualifier Description : string = null, Scope(any), Flavor(Translatable);\n"
    "Qualifier Key : boolean = false, Scope(property, reference), Flavor(DisableOverride);\n"
    "Qualifier MappingStrings : string[], Scope(class, property, association, indication, reference);\n";

constexpr std::string_view kDmtfSchema =
    "// The superclasses and the qualifiers are those of the DMTF's schema, version 2, which the namespace must "
    "have.\n";

std::string MofType(const PropertyDeclaration& property) {
  if (property.type == kCIMReference) return std::string(property.referencedClass) + " REF";
  return TypeName(property.type);
}

void WriteOrigins(std::ostream& out, const std::vector<std::string>& origins) {
  std::vector<std::string> texts;
  for (const std::string& origin : origins) texts.push_back(MofText(origin));
  if (!texts.empty()) out << fmt::format(",\n   MappingStrings {{{}}}", fmt::join(texts, ",\n                   "));
}

void WriteProperty(std::ostream& out, const ClassDeclaration& declaration, const PropertyDeclaration& property,
                   const Superclass* superclass) {
  const bool isInherited = superclass != nullptr && std::ranges::count(superclass->declares, property.name) > 0;
  out << fmt::format("  [{}{}Description({})", property.isKey ? "Key, " : "",
                     isInherited ? fmt::format("Override({}), ", MofText(property.name)) : "",
                     MofText(property.description));
  WriteOrigins(out, MappingStrings(declaration.name, property));
  out << fmt::format("]\n  {} {}{};\n", MofType(property), property.name, property.isArray ? "[]" : "");
}

void WriteClass(std::ostream& out, const ClassDeclaration& declaration, const Superclass* superclass) {
  out << fmt::format("\n[{}Description({})]\nclass {}{} {{\n", declaration.isAssociation ? "Association, " : "",
                     MofText(declaration.description), declaration.name,
                     superclass == nullptr ? "" : fmt::format(" : {}", superclass->name));
  for (const auto properties : {declaration.systemKeys, declaration.properties}) {
    for (const PropertyDeclaration& property : properties) WriteProperty(out, declaration, property, superclass);
  }
  out << "};\n";
}

}  // namespace

void WriteClassList(std::ostream& out, std::span<const ClassDeclaration> classes) {
  std::size_t width = 0;
  for (const ClassDeclaration& declaration : classes) width = std::max(width, declaration.name.size());
  for (const ClassDeclaration& declaration : classes) {
    out << fmt::format("{:{}}  {}\n", declaration.name, width, declaration.description);
  }
}

void WriteSchemaMof(std::ostream& out, std::span<const ClassDeclaration> classes, bool withSuperclasses) {
  out << kMofNamespace << '\n' << (withSuperclasses ? kDmtfSchema : kQualifiers);
  for (const ClassDeclaration& declaration : classes) {
    WriteClass(out, declaration, withSuperclasses ? SuperclassOf(declaration.name) : nullptr);
  }
}

}  // namespace hxahost
