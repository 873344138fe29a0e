#include "host/hxahost/result/json_instances.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string>

#include "plugin/host_interface/exception.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

std::optional<TCIMValue> DateTimeValue(const std::string& text) {
  try {
    return TCIMDateTime(text);
  } catch (const THXAException&) {
    return std::nullopt;
  }
}

template <class Number>
std::optional<TCIMValue> NumberValue(const Json& json) {
  if (!json.is_number_unsigned() || json.get<std::uint64_t>() > std::numeric_limits<Number>::max()) return std::nullopt;
  return TCIMValue(json.get<Number>());
}

std::optional<TCIMValue> ValueOfJson(const Json& json, ECIMType type) {
  switch (type) {
    case kCIMString: return json.is_string() ? std::optional<TCIMValue>(json.get<std::string>()) : std::nullopt;
    case kCIMDateTime: return json.is_string() ? DateTimeValue(json.get<std::string>()) : std::nullopt;
    case kCIMUInt16: return NumberValue<unsigned short>(json);
    case kCIMUInt32: return NumberValue<unsigned int>(json);
    case kCIMEmpty:
    case kCIMReference: break;
  }
  return std::nullopt;
}

std::optional<TCIMValue> ValueAsDeclared(const Json& json, const PropertyDeclaration& declared) {
  if (!declared.isArray) return ValueOfJson(json, declared.type);
  if (!json.is_array()) return std::nullopt;
  std::vector<TCIMValue> elements;
  for (const Json& each : json) {
    const auto element = ValueOfJson(each, declared.type);
    if (!element) return std::nullopt;
    elements.push_back(*element);
  }
  return TCIMValue(declared.type, static_cast<unsigned int>(elements.size()), std::move(elements));
}

void Publish(ICIMNamespace& nameSpace, const ClassDeclaration& declaration, const ResultInstance& read) {
  const auto instance = nameSpace.GetClass(read.className, {})->CreateInstance({});
  for (const auto& [name, json] : read.properties.items()) {
    const PropertyDeclaration* const declared = FindProperty(declaration, name);
    const auto value = declared == nullptr ? std::nullopt : ValueAsDeclared(json, *declared);
    if (value) instance->SetProperty(name, *value, {});
  }
  instance->Commit({});
}

}  // namespace

JsonInstances MakeInstances(const JsonResult& result, std::span<const std::string_view> classes) {
  const auto repository = TRepository::Make(std::nullopt);
  JsonInstances made;
  for (std::size_t place = 0; place < result.instances.size(); ++place) {
    const ResultInstance& read = result.instances[place];
    const ClassDeclaration* const declaration = FindClass(read.className);
    if (declaration == nullptr || std::ranges::find(classes, declaration->name) == classes.end()) continue;
    Publish(*repository, *declaration, read);
    made.places.push_back(place);
  }
  made.instances = repository->Published();
  return made;
}

}  // namespace hxahost
