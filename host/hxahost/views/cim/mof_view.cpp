#include "host/hxahost/views/cim/mof_view.h"

#include <string>
#include <string_view>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/result/object_path.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/mof_string.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

constexpr std::string_view kMofIndent = "    ";

std::string MofElement(const TCIMValue& value) {
  switch (TCIMValueReader::Kind(value)) {
    case ValueKind::kNone: return "NULL";
    case ValueKind::kUInt16:
    case ValueKind::kUInt32: return std::string(value);
    case ValueKind::kReference: return MofText(ObjectPathText(TCIMValueReader::Reference(value)), kMofIndent);
    case ValueKind::kString:
    case ValueKind::kDateTime:
    case ValueKind::kArray: break;
  }
  return MofText(std::string(value), kMofIndent);
}

void WriteMofArray(std::ostream& out, const std::vector<TCIMValue>& elements) {
  std::string_view separator = "{\n";
  for (const TCIMValue& element : elements) {
    out << separator << kMofIndent << MofElement(element);
    separator = ",\n";
  }
  out << (elements.empty() ? "{ }" : "\n  }");
}

void WriteInstance(std::ostream& out, const TPublishedInstance& instance) {
  out << "\ninstance of " << instance.Class().name << " {\n";
  for (const PublishedProperty& property : instance.Properties()) {
    out << "  " << property.name << " = ";
    if (TCIMValueReader::Kind(property.value) == ValueKind::kArray) {
      WriteMofArray(out, TCIMValueReader::Elements(property.value));
    } else {
      out << MofElement(property.value);
    }
    out << ";\n";
  }
  out << "};\n";
}

}  // namespace

void BeginMof(std::ostream& out, const QueryHeader& header) {
  out << "// What was published on " << Printable(header.machine) << " at " << header.time.ToString()
      << ". \"hxahost schema\" has the classes.\n";
}

void WriteQueryMof(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  out << "\n// Query " << result.number << " of " << header.queryCount << ".\n";
  for (const auto& instance : result.instances) WriteInstance(out, *instance);
}

void EndMof(std::ostream&, const QueryHeader&) {}

}  // namespace hxahost
