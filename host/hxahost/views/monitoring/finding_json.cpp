#include "host/hxahost/views/monitoring/finding_json.h"

#include "host/hxahost/text/utf8.h"

namespace hxahost {

nlohmann::ordered_json FindingJson(const Finding& finding) {
  auto json = nlohmann::ordered_json::object();
  json["severity"] = SeverityWord(finding.severity);
  json["class"] = finding.className;
  json["identifier"] = AsUtf8(finding.identifier);
  json["name"] = AsUtf8(finding.name);
  json["property"] = finding.property;
  json["text"] = AsUtf8(finding.text);
  json["meaning"] = finding.meaning;
  return json;
}

}  // namespace hxahost
