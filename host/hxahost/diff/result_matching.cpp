#include "host/hxahost/diff/result_matching.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <iterator>
#include <map>
#include <span>
#include <string_view>
#include <unordered_map>

#include "host/hxacore/schema.h"
#include "host/hxahost/schema/class_names.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

using Instances = std::vector<const ResultInstance*>;
using Key = std::function<std::string(const ResultInstance&)>;  // "" if there is none

// The properties that identify an object of its class wherever it is found. The first must not be empty.
struct InstanceIdentity {
  std::string_view className;
  std::string_view properties[3];
};

constexpr InstanceIdentity kIdentities[] = {
    {kControllerClass,           {"SerialNum"}                },
    {kDiskDriveClass,            {"DeviceSerialNum", "Model"} },
    {kLogicalDiskClass,          {"LogicalDriveName"}         },
    {"KVRSG_zxFirmwareVersion",  {"Name", "SoftwareElementID"}},
    {"KVRSG_zxBootBlockVersion", {"Name", "SoftwareElementID"}},
    {"KVRSG_zxBiosVersion",      {"Name", "SoftwareElementID"}},
    {"KVRSG_zxDiskDriveVersion", {"SoftwareElementID", "Name"}},
};

constexpr std::string_view kLinkProperties[] = {"Antecedent", "Dependent", "ManagedElement", "Stats"};

// Separates the parts of a key; no path contains it.
constexpr char kApart = '\x1f';

std::string IdentityKey(const ResultInstance& instance) {
  const auto* const identity = std::ranges::find(kIdentities, instance.className, &InstanceIdentity::className);
  if (identity == std::end(kIdentities) || ResultText(instance, std::string(identity->properties[0])).empty())
    return "";
  std::string key = instance.className;
  for (const std::string_view property : identity->properties) {
    if (!property.empty()) key += kApart + ResultText(instance, std::string(property));
  }
  return key;
}

std::unordered_map<std::string, std::deque<const ResultInstance*>> ByKey(const Instances& instances, const Key& key) {
  std::unordered_map<std::string, std::deque<const ResultInstance*>> found;
  for (const ResultInstance* const instance : instances) {
    if (const std::string text = key(*instance); !text.empty()) found[text].push_back(instance);
  }
  return found;
}

// Moves instances with equal keys from the two rests to the pairs.
void Match(MatchedInstances& matched, const Key& oldKey, const Key& newKey, bool isUniqueOnly) {
  auto oldByKey = ByKey(matched.onlyOld, oldKey);
  auto newByKey = ByKey(matched.onlyNew, newKey);
  std::unordered_map<const ResultInstance*, bool> taken;
  for (const ResultInstance* const instance : matched.onlyOld) {
    const std::string key = oldKey(*instance);
    const auto candidates = newByKey.find(key);
    if (key.empty() || candidates == newByKey.end() || candidates->second.empty()) continue;
    if (isUniqueOnly && (oldByKey[key].size() != 1 || candidates->second.size() != 1)) continue;
    matched.pairs.emplace_back(instance, candidates->second.front());
    taken[instance] = taken[candidates->second.front()] = true;
    candidates->second.pop_front();
  }
  const auto isTaken = [&taken](const ResultInstance* instance) { return taken.contains(instance); };
  std::erase_if(matched.onlyOld, isTaken);
  std::erase_if(matched.onlyNew, isTaken);
}

// A key that identifies an object within its machine. The machine itself is left out, as it may be renamed.
bool IsOwnKey(const PropertyDeclaration& declared) { return declared.isKey && !declared.name.starts_with("System"); }

// Identifies an object by its class and its own keys, as they were published: earlier versions made paths of other
// keys. Returns the path for a link, and if a key was not published.
std::string ObjectKey(const ResultInstance& instance) {
  const ClassDeclaration* const declaration = FindClass(instance.className);
  if (declaration == nullptr || declaration->isAssociation) return instance.path;
  std::map<std::string_view, std::string> values;
  for (const auto& property : instance.properties.items()) {
    const PropertyDeclaration* const declared = FindProperty(*declaration, property.key());
    if (declared != nullptr && IsOwnKey(*declared)) values.emplace(declared->name, property.value().dump());
  }
  if (std::ssize(values) != std::ranges::count_if(declaration->properties, IsOwnKey)) return instance.path;
  std::string key = instance.className;
  for (const auto& [name, value] : values) key += kApart + value;
  return key;
}

std::string LinkKey(const ResultInstance& link, const std::map<std::string, std::string>& newPaths) {
  if (!IsLink(link)) return "";
  std::string key = link.className;
  for (const std::string_view property : kLinkProperties) {
    std::string path = ResultText(link, std::string(property));
    const auto moved = newPaths.find(path);
    key += kApart + (moved == newPaths.end() ? path : moved->second);
  }
  return key;
}

Instances Compared(const JsonResult& result) {
  Instances instances;
  for (const ResultInstance& instance : result.instances) {
    if (!IsRawText(instance)) instances.push_back(&instance);
  }
  return instances;
}

}  // namespace

bool IsRawText(const ResultInstance& instance) {
  return instance.className == kRawDataClass || instance.className == kManagerRawDataClass;
}

bool IsLink(const ResultInstance& instance) {
  return !instance.properties.empty() && std::ranges::all_of(instance.properties.items(), [](const auto& property) {
    return std::ranges::find(kLinkProperties, property.key()) != std::end(kLinkProperties);
  });
}

MatchedInstances MatchInstances(const JsonResult& before, const JsonResult& after) {
  MatchedInstances matched{{}, Compared(before), Compared(after)};
  Match(matched, ObjectKey, ObjectKey, false);
  Match(matched, IdentityKey, IdentityKey, true);
  std::map<std::string, std::string> newPaths;
  for (const auto& [old, now] : matched.pairs) newPaths[old->path] = now->path;
  Match(
      matched, [&newPaths](const ResultInstance& link) { return LinkKey(link, newPaths); },
      [](const ResultInstance& link) { return LinkKey(link, {}); }, false);
  return matched;
}

}  // namespace hxahost
