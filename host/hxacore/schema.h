#pragma once

#include <span>
#include <string_view>

#include "plugin/host_interface/export.h"
#include "plugin/host_interface/value.h"

namespace NKVRHXA20 {

// One property of a class.
struct PropertyDeclaration {
  std::string_view name;
  ECIMType type;
  bool isArray;
  bool isKey;
  std::string_view referencedClass;  // for references; otherwise ""
  std::string_view description;
  std::string_view origin =
      {};  // the source of the value in words; "" if the labels of the tools explain it completely
};

// One class of the repository.
struct ClassDeclaration {
  std::string_view name;
  std::string_view description;
  bool isAssociation;
  std::span<const PropertyDeclaration> properties;       // published by the plug-in
  std::span<const PropertyDeclaration> systemKeys = {};  // added by the host: the machine, if no property identifies it
};

// The classes that the plug-in publishes, in the order of its catalogue.
HXACORE_API std::span<const ClassDeclaration> PublishedClasses();

// Those classes and the machine's own, of which exports contain one instance.
HXACORE_API std::span<const ClassDeclaration> ExportedClasses();

// Any class of the repository, found without regard to case; null if there is none.
HXACORE_API const ClassDeclaration* FindClass(std::string_view name);

// A property of a class except its system keys, found without regard to case; null if there is none.
HXACORE_API const PropertyDeclaration* FindProperty(const ClassDeclaration& declaration, std::string_view name);

}  // namespace NKVRHXA20
