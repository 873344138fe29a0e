#include "host/hxahost/schema/schema_markdown.h"

#include <string>
#include <string_view>
#include <vector>

#include <fmt/core.h>

#include "host/hxacore/value_type.h"
#include "host/hxahost/schema/property_origins.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

constexpr std::string_view kHead =
    "# Classes\n"
    "\n"
    "What the plug-in publishes, in the order of its catalogue. `hxahost schema --format markdown` writes this page.\n"
    "\n"
    "**From** names the tool and, in quotes, the label that the value stands behind, as the tool prints it. A tool "
    "that\n"
    "is not named does not print the value. Tools are asked with `getconfig` where nothing else is said.\n";

// A bar ends a cell and a < begins markup; nothing else of Markdown is in these texts.
std::string CellText(std::string_view text) {
  std::string cell;
  for (const char character : text) {
    if (character == '|' || character == '<' || character == '*') cell += '\\';
    cell += character;
  }
  return cell;
}

std::string TypeCell(const PropertyDeclaration& property) {
  if (property.type == kCIMReference) return fmt::format("reference to `{}`", property.referencedClass);
  return TypeText(property);
}

std::string OriginCell(const ClassDeclaration& declaration, const PropertyDeclaration& property) {
  std::string cell;
  for (const std::string& line : OriginLines(declaration.name, property)) {
    cell += (cell.empty() ? "" : "<br>") + CellText(line);
  }
  return cell;
}

void WriteClass(std::ostream& out, const ClassDeclaration& declaration) {
  out << fmt::format("\n## {}\n\n{}\n\n", declaration.name, declaration.description);
  out << "| Property | Type | Meaning | From |\n|---|---|---|---|\n";
  for (const PropertyDeclaration& property : declaration.properties) {
    out << fmt::format("| `{}`{} | {} | {} | {} |\n", property.name, property.isKey ? " (key)" : "", TypeCell(property),
                       CellText(property.description), OriginCell(declaration, property));
  }
}

// From the end that is set first to the other one.
void WriteDrawing(std::ostream& out, std::span<const ClassDeclaration> classes) {
  out << "\n## Associations\n\n```mermaid\nflowchart LR\n";
  for (const ClassDeclaration& declaration : classes) {
    if (!declaration.isAssociation) continue;
    const PropertyDeclaration& from = declaration.properties.front();
    const PropertyDeclaration& to = declaration.properties.back();
    out << fmt::format("  {} -- \"{}<br>{} to {}\" --> {}\n", from.referencedClass, declaration.name, from.name,
                       to.name, to.referencedClass);
  }
  out << "```\n";
}

}  // namespace

void WriteSchemaMarkdown(std::ostream& out, std::span<const ClassDeclaration> classes) {
  out << kHead;
  WriteDrawing(out, classes);
  for (const ClassDeclaration& declaration : classes) WriteClass(out, declaration);
}

}  // namespace hxahost
