#pragma once

#include <set>
#include <span>
#include <string>

#include "tests/support/device_fields.h"

inline std::span<const NamedField<ZenxController>> FieldsOf(const ZenxController&) { return kControllerFields; }
inline std::span<const NamedField<ZenxLogicalDevice>> FieldsOf(const ZenxLogicalDevice&) {
  return kLogicalDeviceFields;
}
inline std::span<const NamedField<ZenxPhysicalDevice>> FieldsOf(const ZenxPhysicalDevice&) {
  return kPhysicalDeviceFields;
}
inline std::span<const NamedField<ArrayStripeOrder>> FieldsOf(const ArrayStripeOrder&) { return kStripeOrderFields; }

// The fields of a record that hold something, as "Name=value".
template <class Record>
std::set<std::string> FilledFields(const Record& record) {
  std::set<std::string> filled;
  for (const auto& [name, field] : FieldsOf(record)) {
    if (!(record.*field).empty()) filled.insert(std::string(name) + "=" + record.*field);
  }
  return filled;
}
