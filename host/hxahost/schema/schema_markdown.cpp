#include "host/hxahost/schema/schema_markdown.h"

#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "host/hxacore/value_type.h"
#include "host/hxahost/schema/property_origins.h"
#include "host/hxahost/schema/superclasses.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

constexpr std::string_view kHead = R"(# Classes

```console
$ hxahost query --class KVRSG_zxDiskGroup --format jsonl
{"machine":"...","time":"...","class":"KVRSG_zxDiskGroup","path":"...","properties":{"CollectionID":"Zentraxis1ArrayA",...
```

The classes that the plug-in publishes, in the order of its catalogue, and the class of the machine itself, of which
exports have an instance. `hxahost schema --format markdown` writes this document.

**Keys** that the host adds are part of the path of an instance and of exports. They are not published properties.

**From** names the utility and, in quotes, the label that precedes the value in its output. A utility that is not named
does not print the value. The command is `getconfig` unless another one is named.
)";

constexpr std::string_view kSuperclassesHead = R"(
## Superclasses

`--superclasses` of `hxahost schema` and of `hxahost query --format mof` derives the classes from those of the DMTF
schema, version 2, for repositories that contain it. Properties in the third column have no value: clients of such a
repository can query them, but no utility provides them.

A class adds no key to those that it inherits. CIM_StatisticalData, CIM_LogRecord and CIM_SoftwareElement have keys that
do not name the machine; their candidates are derived from classes without keys instead. For the same reason
`KVRSG_ElementZxScsiDeviceData` and `KVRSG_ElementBadStripeData` have no superclass.

| Superclass | Of | Not provided |
|---|---|---|
)";

// A bar ends a cell and a < begins markup; these texts contain no other Markdown.
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
  for (const auto properties : {declaration.systemKeys, declaration.properties}) {
    for (const PropertyDeclaration& property : properties) {
      out << fmt::format("| `{}`{} | {} | {} | {} |\n", property.name, property.isKey ? " (key)" : "",
                         TypeCell(property), CellText(property.description), OriginCell(declaration, property));
    }
  }
}

std::string DerivedCell(std::span<const ClassDeclaration> classes, const Superclass& superclass) {
  std::vector<std::string> names;
  for (const ClassDeclaration& declaration : classes) {
    if (SuperclassOf(declaration.name) == &superclass) names.push_back(fmt::format("`{}`", declaration.name));
  }
  return fmt::format("{}", fmt::join(names, "<br>"));
}

void WriteSuperclasses(std::ostream& out, std::span<const ClassDeclaration> classes) {
  out << kSuperclassesHead;
  for (const Superclass& superclass : Superclasses()) {
    out << fmt::format("| `{}` | {} | {} |\n", superclass.name, DerivedCell(classes, superclass), superclass.missing);
  }
}

// The arrows begin at the reference that is declared first.
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

void WriteSchemaMarkdown(std::ostream& out, std::span<const ClassDeclaration> classes, bool) {
  out << kHead;
  WriteDrawing(out, classes);
  WriteSuperclasses(out, classes);
  for (const ClassDeclaration& declaration : classes) WriteClass(out, declaration);
}

}  // namespace hxahost
