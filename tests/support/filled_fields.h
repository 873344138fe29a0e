#pragma once

#include <set>
#include <string>

#include "tests/support/record_fields.h"

// The fields of a record that are not empty, as "Name=value".
template <class Record>
std::set<std::string> FilledFields(const Record& record) {
  std::set<std::string> filled;
  for (const auto& [name, field] : FieldsOf(record)) {
    if (!(record.*field).empty()) filled.insert(std::string(name) + "=" + record.*field);
  }
  return filled;
}
