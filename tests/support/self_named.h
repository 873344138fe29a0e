#pragma once

#include <span>
#include <string>
#include <vector>

// One field of a record, under its own name.
template <class Record>
struct NamedField {
  const char* name;
  std::string Record::*field;
};

// A field's own name, in the blanks and line ends that tools put around a value.
inline std::string AsPrinted(const std::string& name) { return " " + name + " \r\n"; }

// Every field of the record holds its own name, as printed.
template <class Record>
void NameFields(Record& record, std::span<const NamedField<Record>> fields) {
  for (const auto& [name, field] : fields) record.*field = AsPrinted(name);
}

// The row of a property that has the value of the field of the same name, cut.
inline std::string SameName(const std::string& name) { return name + " = \"" + name + '"'; }

// The same, the value as printed.
inline std::string SameNameAsPrinted(const std::string& name) { return name + " = \"" + AsPrinted(name) + '"'; }
