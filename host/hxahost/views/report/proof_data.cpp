#include "host/hxahost/views/report/proof_data.h"

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "host/hxahost/proof/proof.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/json_output.h"

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

// null if no line is concerned.
Json InstanceJson(std::size_t instance, const std::vector<Proof>& proofs) {
  Json json = {
      {"instance", instance      },
      {"lines",    Json::object()}
  };
  for (const Proof& proof : proofs) {
    const std::string property(proof.property);
    if (proof.evidence == Evidence::kDiffers) json["differs"].push_back(property);
    if (proof.evidence == Evidence::kNoLine) json["noLine"].push_back(property);
    if (proof.lines.empty()) continue;
    Json& place = json["lines"][property] = Json::array({proof.text});
    for (const std::size_t line : proof.lines) place.push_back(line);
  }
  return json["lines"].empty() && !json.contains("noLine") ? Json() : json;
}

}  // namespace

// Writes one instance at a time: a machine has thousands.
void WriteProofData(std::ostream& out, const QueryHeader& header, const QueryResult& result, const Machine& machine) {
  if (!IsAskedFor(header, kRawDataClass)) {
    out << "null";
    return;
  }
  Proofs proofs(machine, result.instances);
  const char* separator = "[\n";
  for (std::size_t instance = 0; instance < result.instances.size(); ++instance) {
    const Json json = InstanceJson(instance, proofs.Of(instance));
    if (json.is_null()) continue;
    out << separator << JsonText(json);
    separator = ",\n";
  }
  out << (*separator == '[' ? "[]" : "\n]");
}

}  // namespace hxahost
