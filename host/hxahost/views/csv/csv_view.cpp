#include "host/hxahost/views/csv/csv_view.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/hxacore/schema.h"
#include "host/hxacore/value_reader.h"
#include "host/hxahost/text/escaping.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

constexpr std::string_view kClassColumn = "class";

// Properties with the same name in several classes share a column.
class Columns {
 public:
  explicit Columns(const std::vector<std::string>& classes) {
    if (classes.size() > 1) Add(kClassColumn);
    for (const std::string& name : classes) {
      for (const PropertyDeclaration& property : FindClass(name)->properties) Add(property.name);
    }
  }

  const std::vector<std::string>& Titles() const { return titles_; }
  bool HaveClass() const { return titles_.front() == kClassColumn; }

  // One property is published with a letter in another case than declared.
  std::size_t PlaceOf(const ClassDeclaration& declaration, std::string_view property) const {
    return places_.at(FindProperty(declaration, property)->name);
  }

 private:
  void Add(std::string_view title) {
    if (places_.emplace(title, titles_.size()).second) titles_.emplace_back(title);
  }

  std::vector<std::string> titles_;
  std::unordered_map<std::string_view, std::size_t> places_;
};

// Kept from instance to instance: there may be millions.
const Columns& ColumnsOf(const QueryHeader& header) {
  static std::map<std::vector<std::string>, Columns> made;
  return made.try_emplace(header.classes, header.classes).first->second;
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

// Spreadsheets must not take a text for a formula.
std::string_view FormulaMark(std::string_view safe) {
  constexpr std::string_view kBeginsFormula = "=+-@\t\r";
  return !safe.empty() && kBeginsFormula.find(safe.front()) != kBeginsFormula.npos ? "'" : "";
}

void WriteWithDoubledQuotes(std::ostream& out, std::string_view text) {
  for (std::size_t quote = text.find('"'); quote != text.npos; quote = text.find('"')) {
    out << text.substr(0, quote + 1) << '"';
    text.remove_prefix(quote + 1);
  }
  out << text;
}

void WriteCell(std::ostream& out, std::string_view text) {
  const std::string cell = SafeText(text);
  if (cell.find_first_of("\",\r\n") == cell.npos) {
    out << FormulaMark(cell) << cell;
    return;
  }
  out << '"' << FormulaMark(cell);
  WriteWithDoubledQuotes(out, cell);
  out << '"';
}

// Line by line: a log of a million lines is one value.
void WriteValue(std::ostream& out, const TCIMValue& value) {
  const bool isArray = TCIMValueReader::Kind(value) == ValueKind::kArray;
  if (!isArray || TCIMValueReader::Elements(value).size() < 2) return WriteCell(out, ValueText(value));
  std::string_view before = FormulaMark(SafeText(ValueText(TCIMValueReader::Elements(value).front())));
  out << '"';
  for (const TCIMValue& element : TCIMValueReader::Elements(value)) {
    out << before;
    WriteWithDoubledQuotes(out, SafeText(ValueText(element)));
    before = "\n";
  }
  out << '"';
}

}  // namespace

void WriteCsvCells(std::ostream& out, const std::vector<std::string>& texts) {
  std::string_view separator;
  for (const std::string& text : texts) {
    out << separator;
    WriteCell(out, text);
    separator = ",";
  }
  out << "\r\n";
}

void BeginCsv(std::ostream& out, const QueryHeader& header) { WriteCsvCells(out, ColumnsOf(header).Titles()); }

void WriteInstanceCsv(std::ostream& out, const QueryHeader& header, const TPublishedInstance& instance,
                      const InstancePlace&) {
  const Columns& columns = ColumnsOf(header);
  std::vector<const TCIMValue*> row(columns.Titles().size());
  for (const PublishedProperty& property : instance.Properties()) {
    row[columns.PlaceOf(instance.Class(), property.name)] = &property.value;
  }
  for (std::size_t place = 0; place < row.size(); ++place) {
    if (place > 0) out << ',';
    if (place == 0 && columns.HaveClass()) WriteCell(out, instance.Class().name);
    if (row[place] != nullptr) WriteValue(out, *row[place]);
  }
  out << "\r\n";
}

void WriteQueryCsv(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  for (const auto& instance : result.instances) WriteInstanceCsv(out, header, *instance, {});
}

void EndCsv(std::ostream&, const QueryHeader&) {}

}  // namespace hxahost
