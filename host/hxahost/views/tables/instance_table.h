#pragma once

#include <cstddef>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "host/hxahost/result/query_result.h"
#include "host/hxahost/terminal/table.h"

// Instances as people read them.
namespace hxahost {

// A column of a table of instances.
struct InstanceColumn {
  std::string_view title;
  std::string_view property;  // under the name under which it is set
  std::size_t widest = 30;
  std::size_t least = 8;  // what it may be narrowed to
  bool isState = false;
};

// A property for people, printable: the elements of an array with ", " between them, event codes in hexadecimal. ""
// for a property that was not set.
std::string ShownText(const NKVRHXA20::TPublishedInstance& instance, std::string_view property);

// How many elements an array has; 0 for what is none.
std::size_t ElementCount(const NKVRHXA20::TPublishedInstance& instance, std::string_view property);

// "2026-03-05 12:30:15 +01:00" from the CIM form.
std::string ReadableTime(const std::string& cimDateTime);

// Writes the heading and one row for each instance; nothing at all where there is no instance.
void WriteInstances(std::ostream& out, std::string_view heading, std::span<const InstanceColumn> columns,
                    const InstanceList& instances);

}  // namespace hxahost
