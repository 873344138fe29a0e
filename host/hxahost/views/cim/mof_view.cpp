#include "host/hxahost/views/cim/mof_view.h"

#include <map>
#include <string>
#include <string_view>

#include <fmt/format.h>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/result/object_path.h"
#include "host/hxahost/schema/schema_view.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/mof_string.h"
#include "host/hxahost/views/cim/exported_values.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

constexpr std::string_view kMofIndent = "    ";

// The alias of an instance that references name: "$Query1Instance7", by its path. "" until it is written.
using Aliases = std::map<std::string, std::string>;

std::string MofReference(const TCIMReference& reference, const Aliases& aliases) {
  const std::string path = ObjectPathText(reference);
  const auto alias = aliases.find(path);
  return alias == aliases.end() || alias->second.empty() ? MofText(path, kMofIndent) : alias->second;
}

std::string MofElement(const TCIMValue& value, const Aliases& aliases) {
  switch (TCIMValueReader::Kind(value)) {
    case ValueKind::kNone: return "NULL";
    case ValueKind::kUInt16:
    case ValueKind::kUInt32: return std::string(value);
    case ValueKind::kReference: return MofReference(TCIMValueReader::Reference(value), aliases);
    case ValueKind::kString:
    case ValueKind::kDateTime:
    case ValueKind::kArray: break;
  }
  return MofText(std::string(value), kMofIndent);
}

void WriteMofArray(std::ostream& out, const std::vector<TCIMValue>& elements) {
  std::string_view separator = "{\n";
  for (const TCIMValue& element : elements) {
    out << separator << kMofIndent << MofElement(element, {});
    separator = ",\n";
  }
  out << (elements.empty() ? "{ }" : "\n  }");
}

void WriteProperty(std::ostream& out, const PublishedProperty& property, const Aliases& aliases) {
  out << "  " << property.name << " = ";
  const std::string time = ImpossibleTime(property.value);
  if (!time.empty()) {
    out << "NULL";
  } else if (TCIMValueReader::Kind(property.value) == ValueKind::kArray) {
    WriteMofArray(out, TCIMValueReader::Elements(property.value));
  } else {
    out << MofElement(property.value, aliases);
  }
  out << (time.empty() ? ";" : ";  // published: " + time) << '\n';
}

void WriteInstance(std::ostream& out, const TPublishedInstance& instance, const std::string& alias,
                   const Aliases& aliases) {
  out << "\ninstance of " << instance.Class().name << (alias.empty() ? "" : " as ") << alias << " {\n";
  ForEachExported(instance, [&](const PublishedProperty& property, const PropertyDeclaration&) {
    WriteProperty(out, property, aliases);
  });
  out << "};\n";
}

// The paths that the references of the query name.
Aliases ReferredPaths(const InstanceList& instances) {
  Aliases aliases;
  for (const auto& instance : instances) {
    for (const auto& [name, value] : instance->Properties()) {
      if (TCIMValueReader::Kind(value) == ValueKind::kReference) {
        aliases.emplace(ObjectPathText(TCIMValueReader::Reference(value)), "");
      }
    }
  }
  return aliases;
}

}  // namespace

void BeginMof(std::ostream& out, const QueryHeader& header) {
  if (header.isReplayed) out << "// " << SourceNote(header) << '\n';
  out << "// What was published on " << Printable(header.machine) << " at " << header.time.ToString() << ".";
  if (!header.withSuperclasses) {
    out << " \"hxahost schema\" has the classes.\n" << kMofNamespace;
    return;
  }
  out << '\n';
  WriteSchemaMof(out, ExportedClasses(), true);
}

void WriteQueryMof(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  out << "\n// Query " << result.number << " of " << header.queryCount << ".\n";
  Aliases aliases = ReferredPaths(result.instances);
  unsigned count = 0;
  for (const auto& instance : result.instances) {
    const auto referred = aliases.find(ObjectPathText(instance->Reference()));
    const bool isReferred = referred != aliases.end() && referred->second.empty();
    const std::string alias = isReferred ? fmt::format("$Query{}Instance{}", result.number, ++count) : "";
    WriteInstance(out, *instance, alias, aliases);
    if (isReferred) referred->second = alias;
  }
  for (const std::string& leftOut : result.leftOut) out << "\n// " << leftOut << '\n';
}

void EndMof(std::ostream&, const QueryHeader&) {}

}  // namespace hxahost
