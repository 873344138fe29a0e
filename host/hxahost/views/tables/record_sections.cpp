#include "host/hxahost/views/tables/record_sections.h"

#include <algorithm>
#include <vector>

#include "host/hxahost/machine/record_owners.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/views/record_columns.h"
#include "host/hxahost/views/tables/instance_table.h"

namespace hxahost {

namespace {

InstanceRow RowOf(const NKVRHXA20::TPublishedInstance& record, const RecordOwner& owner) {
  InstanceRow row{&record};
  if (!owner.label.empty()) row.controller = "C" + Printable(owner.label);
  if (owner.device == nullptr) return row;
  row.location = Printable(owner.device->location);
  row.serialNumber = Printable(owner.device->serialNumber);
  return row;
}

}  // namespace

void WriteRecordSections(std::ostream& out, const QueryHeader& header, const InstanceList& instances,
                         const Machine& machine) {
  const std::vector<RecordOwner> owners = RecordOwners(machine, instances);
  for (const RecordSection& section : RecordSections()) {
    if (!section.isOfEvents && !header.showAll) continue;
    std::vector<InstanceRow> rows;
    for (std::size_t place = 0; place < instances.size(); ++place) {
      const bool isShown = std::ranges::count(section.classes, instances[place]->Class().name) > 0;
      if (isShown) rows.push_back(RowOf(*instances[place], owners[place]));
    }
    if (rows.empty()) continue;
    out << '\n';
    WriteInstances(out, header, section.heading, section.columns, rows);
  }
}

}  // namespace hxahost
