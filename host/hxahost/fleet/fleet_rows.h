#pragma once

#include <ostream>

#include "host/hxahost/fleet/fleet.h"
#include "host/hxahost/fleet/judged_result.h"

// One result, or one damaged file, as lines for programs. Nothing is kept between results.
namespace hxahost {

// A row for the machine, each incident, controller, logical drive and disk, with the same columns (RFC 4180).
void WriteCsvHeader(std::ostream& out);
void WriteCsvRows(std::ostream& out, const JudgedResult& judged);
void WriteCsvRow(std::ostream& out, const DamagedFile& file);

// The same rows as JSON lines, in the form of instances: "class" is "machine", "incident", "controller",
// "logicalDrive", "disk" or "damagedFile". Then the lines that "hxahost query --format jsonl" writes.
void WriteJsonRows(std::ostream& out, const JudgedResult& judged);
void WriteJsonRow(std::ostream& out, const DamagedFile& file);

}  // namespace hxahost
