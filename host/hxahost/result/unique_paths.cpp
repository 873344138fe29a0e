#include "host/hxahost/result/unique_paths.h"

#include <algorithm>

#include <boost/uuid/name_generator_sha1.hpp>
#include <boost/uuid/nil_generator.hpp>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/result/object_path.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/xml_text.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

using Digest = boost::uuids::uuid;

// The newest paths are sorted in when there are more of them than so many and this share of the others: rarely enough
// to cost little time.
constexpr std::size_t kFewest = 1000;
constexpr std::size_t kShare = 16;

// A digest of everything before and a text.
Digest With(const Digest& before, const std::string& text) { return boost::uuids::name_generator_sha1(before)(text); }

Digest With(const Digest& before, const TCIMValue& value) {
  const ValueKind kind = TCIMValueReader::Kind(value);
  Digest digest = With(before, std::to_string(static_cast<int>(kind)));
  if (kind != ValueKind::kArray) return With(digest, std::string(value));
  for (const TCIMValue& element : TCIMValueReader::Elements(value)) digest = With(digest, element);
  return digest;
}

Digest OfProperties(const TPublishedInstance& instance) {
  Digest digest = boost::uuids::nil_uuid();
  for (const PublishedProperty& property : instance.Properties()) {
    digest = With(With(digest, std::string(property.name)), property.value);
  }
  return digest;
}

}  // namespace

UniquePaths::Path UniquePaths::Add(const TPublishedInstance& instance) {
  // Paths that differ only in characters that a document cannot contain are the same path there.
  const Digest path = With(boost::uuids::nil_uuid(), LegalXmlText(ObjectPathText(instance.Reference())));
  const Digest properties = OfProperties(instance);
  const std::optional<Digest> first = Remember(path, properties);
  if (!first) return Path::kNew;
  return *first == properties ? Path::kEqual : Path::kTaken;
}

std::optional<Digest> UniquePaths::Remember(const Digest& path, const Digest& properties) {
  const auto old = std::ranges::lower_bound(sorted_, path, {}, &Entry::first);
  if (old != sorted_.end() && old->first == path) return old->second;
  const auto [first, isNew] = newest_.emplace(path, properties);
  if (!isNew) return first->second;
  if (newest_.size() > kFewest + sorted_.size() / kShare) SortIn();
  return std::nullopt;
}

void UniquePaths::SortIn() {
  const auto added = sorted_.insert(sorted_.end(), newest_.begin(), newest_.end());
  std::ranges::inplace_merge(sorted_, added);
  newest_.clear();
}

std::string LeftOutText(const TPublishedInstance& instance) {
  return "Left out, as another instance has its path: " + Printable(ObjectPathText(instance.Reference()));
}

}  // namespace hxahost
