#include "host/hxahost/views/tables/record_sections.h"

#include <algorithm>
#include <iterator>

#include "host/hxahost/views/record_columns.h"
#include "host/hxahost/views/tables/instance_table.h"

namespace hxahost {

void WriteRecordSections(std::ostream& out, const Layout& layout, const InstanceList& instances) {
  for (const RecordSection& section : RecordSections()) {
    InstanceList shown;
    std::ranges::copy_if(instances, std::back_inserter(shown), [&](const auto& instance) {
      return std::ranges::find(section.classes, instance->Class().name) != section.classes.end();
    });
    if (shown.empty()) continue;
    out << '\n';
    WriteInstances(out, layout, section.heading, section.columns, shown);
  }
}

}  // namespace hxahost
