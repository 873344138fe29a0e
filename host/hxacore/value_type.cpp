#include "host/hxacore/value_type.h"

#include <algorithm>
#include <iterator>

#include "host/hxacore/ignore_case.h"
#include "host/hxacore/value_reader.h"

namespace NKVRHXA20 {

namespace {

struct SingleType {
  ECIMType code;
  ValueKind kind;
  const char* name;
};

constexpr SingleType kSingleTypes[] = {
    {kCIMUInt16,    ValueKind::kUInt16,    "uint16"   },
    {kCIMUInt32,    ValueKind::kUInt32,    "uint32"   },
    {kCIMString,    ValueKind::kString,    "string"   },
    {kCIMDateTime,  ValueKind::kDateTime,  "datetime" },
    {kCIMReference, ValueKind::kReference, "reference"},
};

const SingleType& TypeOf(ECIMType type) { return *std::ranges::find(kSingleTypes, type, &SingleType::code); }

bool IsOfKind(const TCIMValue& value, ValueKind kind) {
  const ValueKind own = TCIMValueReader::Kind(value);
  return own == kind || own == ValueKind::kNone;
}

bool IsArrayOf(const TCIMValue& value, const SingleType& type) {
  return TCIMValueReader::ElementType(value) == type.code &&
         std::ranges::all_of(TCIMValueReader::Elements(value),
                             [&](const TCIMValue& element) { return IsOfKind(element, type.kind); });
}

bool RefersTo(const TCIMValue& value, std::string_view className) {
  const std::string& own = TCIMReferenceFactory::ClassName(TCIMValueReader::Reference(value));
  return own.empty() || EqualIgnoringCase(own, className);
}

}  // namespace

bool HasDeclaredType(const TCIMValue& value, const PropertyDeclaration& declared) {
  const ValueKind kind = TCIMValueReader::Kind(value);
  if (kind == ValueKind::kNone) return true;
  if (declared.isArray) return kind == ValueKind::kArray && IsArrayOf(value, TypeOf(declared.type));
  if (!IsOfKind(value, TypeOf(declared.type).kind)) return false;
  return kind != ValueKind::kReference || RefersTo(value, declared.referencedClass);
}

std::string TypeName(ECIMType type) { return TypeOf(type).name; }

std::string TypeText(const PropertyDeclaration& declared) {
  if (declared.type == kCIMReference) return "reference to " + std::string(declared.referencedClass);
  return TypeName(declared.type) + (declared.isArray ? "[]" : "");
}

}  // namespace NKVRHXA20
