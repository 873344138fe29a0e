#include "host/hxahost/result/object_path.h"

#include "host/hxahost/text/utf8.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

TCIMReference InUtf8(const TCIMReference& reference);

TCIMValue InUtf8(const TCIMValue& value) {
  switch (TCIMValueReader::Kind(value)) {
    case ValueKind::kString: return AsUtf8(TCIMValueReader::Text(value));
    case ValueKind::kReference: return InUtf8(TCIMValueReader::Reference(value));
    case ValueKind::kNone:
    case ValueKind::kUInt16:
    case ValueKind::kUInt32:
    case ValueKind::kDateTime:
    case ValueKind::kArray: break;
  }
  return value;
}

TCIMReference InUtf8(const TCIMReference& reference) {
  TPropertyMap keys;
  for (const auto& [name, value] : TCIMReferenceFactory::Keys(reference)) keys.emplace(name, InUtf8(value));
  return TCIMReferenceFactory::Make(nullptr, TCIMReferenceFactory::ClassName(reference), keys);
}

}  // namespace

std::string ObjectPathText(const TCIMReference& reference) {
  return TCIMReferenceFactory::ObjectPath(InUtf8(reference));
}

}  // namespace hxahost
