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
  std::string_view referencedClass;  // of a reference; "" otherwise
  std::string_view description;
  std::string_view origin = {};  // where the value comes from, in words; "" where the labels of the tools say it all
};

// One class of the repository.
struct ClassDeclaration {
  std::string_view name;
  std::string_view description;
  bool isAssociation;
  std::span<const PropertyDeclaration> properties;      // that the plug-in publishes
  std::span<const PropertyDeclaration> systemKeys = {};  // that the host adds: the machine, where no property is it
};

// The classes that the plug-in publishes, in the order of its catalogue.
HXACORE_API std::span<const ClassDeclaration> PublishedClasses();

// Those classes and the machine's own, which exports have one instance of.
HXACORE_API std::span<const ClassDeclaration> ExportedClasses();

// Any class that the repository knows, found without regard to case; null where there is none.
HXACORE_API const ClassDeclaration* FindClass(std::string_view name);

// A property of a class, none of its system keys, found without regard to case; null where there is none.
HXACORE_API const PropertyDeclaration* FindProperty(const ClassDeclaration& declaration, std::string_view name);

}  // namespace NKVRHXA20
