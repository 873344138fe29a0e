#include <nlohmann/json.hpp>

#include "host/hxahost/text/json_output.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/monitoring/finding_json.h"
#include "host/hxahost/views/monitoring/health_report.h"

namespace hxahost {

void WriteHealthJson(std::ostream& out, const HealthReport& report) {
  nlohmann::ordered_json json = {
      {"format",   1                                             },
      {"machine",  AsUtf8(report.header.machine)                 },
      {"time",     report.header.time.ToString()                 },
      {"status",   SeverityWord(WorstOf(report.machine.findings))},
      {"findings", nlohmann::ordered_json::array()               },
  };
  if (report.header.isReplayed) json["replayed"] = true;
  if (report.header.isMasked) json["masked"] = true;
  for (const Finding& finding : report.machine.findings) json["findings"].push_back(FindingJson(finding));
  out << JsonText(json, 2) << '\n';
}

}  // namespace hxahost
