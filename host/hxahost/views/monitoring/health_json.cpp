#include <string>

#include <nlohmann/json.hpp>

#include "host/hxahost/text/json_output.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/monitoring/finding_json.h"
#include "host/hxahost/views/monitoring/health_report.h"

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

}  // namespace

void WriteHealthJson(std::ostream& out, const HealthReport& report) {
  Json json = Json::object();
  json["format"] = 1;
  json["machine"] = AsUtf8(report.header.machine);
  json["time"] = report.header.time.ToString();
  json["status"] = SeverityWord(WorstOf(report.machine.findings));
  json["findings"] = Json::array();
  for (const Finding& finding : report.machine.findings) json["findings"].push_back(FindingJson(finding));
  out << JsonText(json, 2) << '\n';
}

}  // namespace hxahost
