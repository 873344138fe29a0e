#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plugin/host_interface/value.h"

namespace NKVRHXA20 {

enum class ValueKind { kNone, kString, kUInt16, kUInt32, kDateTime, kReference, kArray };

// Reads a value for display. Do not call an accessor for another kind than the value's own.
class HXACORE_API TCIMValueReader {
 public:
  static ValueKind Kind(const TCIMValue& value);
  static const std::string& Text(const TCIMValue& value);
  static std::uint32_t Number(const TCIMValue& value);  // uint16 or uint32
  static std::string DateTime(const TCIMValue& value);  // its 25 characters
  static const TCIMReference& Reference(const TCIMValue& value);
  static ECIMType ElementType(const TCIMValue& array);
  static const std::vector<TCIMValue>& Elements(const TCIMValue& array);
};

// Makes references that name an instance, and reads them.
class HXACORE_API TCIMReferenceFactory {
 public:
  static TCIMReference Make(const boost::shared_ptr<ICIMNamespace>& nameSpace, const std::string& className,
                            const TPropertyMap& keys);
  static const std::string& ClassName(const TCIMReference& reference);  // "" if only keys were given
  static const TPropertyMap& Keys(const TCIMReference& reference);

  // The object path: Class.Key="value",..., keys in order of name, numbers without quotes, texts and references in
  // quotes with a \ before each \ and ".
  static std::string ObjectPath(const TCIMReference& reference);
};

}  // namespace NKVRHXA20
