#pragma once

#include <map>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "plugin/host_interface/cim.h"

class FakeClass;

// A host's namespace that accepts every class name, in exact case, and keeps committed instances. A reference names an
// instance by its class and its place in it: Class.Number="2".
class FakeNamespace final : public NKVRHXA20::ICIMNamespace {
 public:
  boost::shared_ptr<NKVRHXA20::ICIMClass> GetClass(const std::string& name,
                                                   const NKVRHXA20::TPropertyMap& context) override;

  // Commits an instance of another program: properties, each a name and a value, one after the other.
  void Add(const std::string& className, const std::vector<std::string>& namesAndValues);

  // The committed instances of a class, each as its properties in the order in which they were set: Name = value.
  std::vector<std::vector<std::string>> Published(const std::string& className);

  // One property of each committed instance of a class.
  std::vector<std::string> Published(const std::string& className, const std::string& property);

 private:
  FakeClass& Class(const std::string& name);

  std::map<std::string, boost::shared_ptr<FakeClass>> classes_;
};

// A value for a test to compare: "text", uint16 3, uint32 5, datetime 2026..., reference Class.Number="1" or
// string["a", "b"].
std::string Rendered(const NKVRHXA20::TCIMValue& value);
