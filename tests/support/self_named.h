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

// Every field of the record holds its own name, in the blanks and line ends that tools put around a value.
template <class Record>
void NameFields(Record& record, std::span<const NamedField<Record>> fields) {
  for (const auto& [name, field] : fields) record.*field = std::string(" ") + name + " \r\n";
}
