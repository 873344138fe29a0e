#include "host/hxahost/result/unique_paths.h"

#include <algorithm>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/result/object_path.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/xml_text.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

bool IsEqual(const TCIMValue& left, const TCIMValue& right) {
  const ValueKind kind = TCIMValueReader::Kind(left);
  if (kind != TCIMValueReader::Kind(right)) return false;
  if (kind != ValueKind::kArray) return std::string(left) == std::string(right);
  return std::ranges::equal(TCIMValueReader::Elements(left), TCIMValueReader::Elements(right), IsEqual);
}

bool HasSameProperties(const TPublishedInstance& left, const TPublishedInstance& right) {
  return std::ranges::equal(left.Properties(), right.Properties(), [](const auto& one, const auto& other) {
    return one.name == other.name && IsEqual(one.value, other.value);
  });
}

}  // namespace

QueryResult UniquePaths::Of(const QueryHeader& header, const QueryResult& result) {
  QueryResult unique = result;
  unique.instances.clear();
  const auto add = [&](const boost::shared_ptr<const TPublishedInstance>& instance) {
    // Paths that only differ in what a document has no place for are one path there.
    const auto [first, isNew] = first_.emplace(LegalXmlText(ObjectPathText(instance->Reference())), instance);
    if (isNew) {
      unique.instances.push_back(instance);
    } else if (!HasSameProperties(*first->second, *instance)) {
      unique.leftOut.push_back(instance);
    }
  };
  if (header.system) add(header.system);
  for (const auto& instance : result.instances) add(instance);
  return unique;
}

std::string LeftOutText(const TPublishedInstance& instance) {
  return "Left out, as another instance has its path: " + Printable(ObjectPathText(instance.Reference()));
}

}  // namespace hxahost
