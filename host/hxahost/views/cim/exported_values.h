#pragma once

#include <string>
#include <string_view>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/result/query_result.h"

// The parts of an instance that CIM-XML and MOF contain.
namespace hxahost {

// The namespace that the instances belong to, part by part.
inline constexpr std::string_view kNamespaceParts[] = {"root", "cimv2"};

// Calls back with each property of an instance and its declaration: the keys that the host adds, then the properties as
// they were published.
template <class Call>
void ForEachExported(const NKVRHXA20::TPublishedInstance& instance, const Call& call) {
  const NKVRHXA20::TCIMReference reference = instance.Reference();
  for (const NKVRHXA20::PropertyDeclaration& declared : instance.Class().systemKeys) {
    const auto& keys = NKVRHXA20::TCIMReferenceFactory::Keys(reference);
    call(NKVRHXA20::PublishedProperty{declared.name, keys.at(std::string(declared.name))}, declared);
  }
  for (const NKVRHXA20::PublishedProperty& property : instance.Properties()) {
    call(property, *NKVRHXA20::FindProperty(instance.Class(), property.name));
  }
}

// The text of an impossible date and time, such as month 0 or year 123456, which readers of CIM reject. "" for every
// other value.
std::string ImpossibleTime(const NKVRHXA20::TCIMValue& value);

}  // namespace hxahost
