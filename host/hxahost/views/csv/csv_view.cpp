#include "host/hxahost/views/csv/csv_view.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxacore/schema.h"
#include "host/hxacore/value_reader.h"
#include "host/hxahost/text/escaping.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

constexpr std::string_view kClassColumn = "class";

// Properties with the same name in several classes share a column.
std::vector<std::string_view> Columns(const QueryHeader& header) {
  std::vector<std::string_view> columns;
  if (header.classes.size() > 1) columns.push_back(kClassColumn);
  for (const std::string& name : header.classes) {
    for (const PropertyDeclaration& property : FindClass(name)->properties) {
      if (std::ranges::find(columns, property.name) == columns.end()) columns.push_back(property.name);
    }
  }
  return columns;
}

std::string ValueText(const TCIMValue& value) {
  if (TCIMValueReader::Kind(value) != ValueKind::kArray) return value;
  std::string text;
  std::string_view lineEnd;
  for (const TCIMValue& element : TCIMValueReader::Elements(value)) {
    text.append(lineEnd).append(ValueText(element));
    lineEnd = "\n";
  }
  return text;
}

// White space is left as published; all other characters that act on a terminal are escaped.
std::string SafeText(std::string_view text) {
  std::string safe;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\t\r\n"), text.size());
    safe += EscapeControls(text.substr(0, end));
    safe += text.substr(end, 1);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return safe;
}

std::string Cell(std::string_view text) {
  constexpr std::string_view kBeginsFormula = "=+-@\t\r";
  std::string cell = SafeText(text);
  if (!cell.empty() && kBeginsFormula.find(cell.front()) != kBeginsFormula.npos) cell.insert(0, 1, '\'');
  if (cell.find_first_of("\",\r\n") == cell.npos) return cell;
  for (std::size_t quote = cell.find('"'); quote != cell.npos; quote = cell.find('"', quote + 2))
    cell.insert(quote, 1, '"');
  return '"' + cell + '"';
}

}  // namespace

void WriteCsvCells(std::ostream& out, const std::vector<std::string>& texts) {
  std::string_view separator;
  for (const std::string& text : texts) {
    out << separator << Cell(text);
    separator = ",";
  }
  out << "\r\n";
}

void BeginCsv(std::ostream& out, const QueryHeader& header) {
  const std::vector<std::string_view> columns = Columns(header);
  WriteCsvCells(out, {columns.begin(), columns.end()});
}

void WriteInstanceCsv(std::ostream& out, const QueryHeader& header, const TPublishedInstance& instance,
                      const InstancePlace&) {
  const std::vector<std::string_view> columns = Columns(header);
  std::vector<std::string> row(columns.size());
  if (columns.front() == kClassColumn) row.front() = instance.Class().name;
  for (const PublishedProperty& property : instance.Properties()) {
    // One property is published with a letter in another case than declared.
    const std::string_view name = FindProperty(instance.Class(), property.name)->name;
    row[static_cast<std::size_t>(std::ranges::find(columns, name) - columns.begin())] = ValueText(property.value);
  }
  WriteCsvCells(out, row);
}

void WriteQueryCsv(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  for (const auto& instance : result.instances) WriteInstanceCsv(out, header, *instance, {});
}

void EndCsv(std::ostream&, const QueryHeader&) {}

}  // namespace hxahost
