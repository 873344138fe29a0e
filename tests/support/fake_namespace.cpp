#include "tests/support/fake_namespace.h"

#include <algorithm>

#include <boost/enable_shared_from_this.hpp>
#include <boost/make_shared.hpp>

#include "host/hxacore/value_reader.h"
#include "plugin/host_interface/exception.h"

using namespace NKVRHXA20;

namespace {

class FakeProperty final : public ICIMProperty {
 public:
  explicit FakeProperty(TCIMValue value) : value_(std::move(value)) {}
  TCIMValue GetValue(const TPropertyMap&) override { return value_; }

 private:
  TCIMValue value_;
};

std::string RenderedArray(const TCIMValue& array) {
  std::string text = TCIMValueReader::ElementType(array) == kCIMString ? "string[" : "uint32[";
  const char* separator = "";
  for (const TCIMValue& element : TCIMValueReader::Elements(array)) {
    text += separator + Rendered(element);
    separator = ", ";
  }
  return text + "]";
}

}  // namespace

// Not in an unnamed namespace, as FakeClass uses it.
class FakeInstance final : public ICIMInstance, public boost::enable_shared_from_this<FakeInstance> {
 public:
  using Extent = std::vector<boost::shared_ptr<FakeInstance>>;

  FakeInstance(std::string className, Extent& extent) : className_(std::move(className)), extent_(extent) {}

  void Commit(TPropertyMap) override {
    number_ = std::to_string(extent_.size());
    extent_.push_back(shared_from_this());
  }
  TCIMReference GetReference(const TPropertyMap&) override {
    const TPropertyMap keys = {
        {"Number", number_}
    };
    return TCIMReferenceFactory::Make(nullptr, className_, keys);
  }
  boost::shared_ptr<ICIMProperty> GetProperty(const std::string& name, const TPropertyMap&) override {
    const auto found = std::ranges::find(properties, name, &std::pair<std::string, TCIMValue>::first);
    if (found == properties.end()) throw THXAException(className_ + " has no property " + name);
    return boost::make_shared<FakeProperty>(found->second);
  }
  void SetProperty(const std::string& name, const TCIMValue& value, const TPropertyMap&) override {
    properties.emplace_back(name, value);
  }

  std::vector<std::pair<std::string, TCIMValue>> properties;

 private:
  std::string className_;
  std::string number_;
  Extent& extent_;
};

class FakeClass final : public ICIMClass {
 public:
  explicit FakeClass(std::string name) : name_(std::move(name)) {}

  std::string GetName(const TPropertyMap&) override { return name_; }
  boost::shared_ptr<ICIMInstance> CreateInstance(const TPropertyMap&) override {
    return boost::make_shared<FakeInstance>(name_, extent);
  }
  void EnumerateInstances(const TCallbackHolder<ICIMInstance>& callback, bool, const TPropertyMap&) override {
    for (const auto& instance : extent) callback.Call(instance);
  }

  FakeInstance::Extent extent;

 private:
  std::string name_;
};

FakeClass& FakeNamespace::Class(const std::string& name) {
  auto& known = classes_[name];
  if (!known) known = boost::make_shared<FakeClass>(name);
  return *known;
}

boost::shared_ptr<ICIMClass> FakeNamespace::GetClass(const std::string& name, const TPropertyMap&) {
  Class(name);
  return classes_[name];
}

void FakeNamespace::Add(const std::string& className, const std::vector<std::string>& namesAndValues) {
  const auto instance = GetClass(className, {})->CreateInstance({});
  for (std::size_t index = 0; index < namesAndValues.size(); index += 2) {
    instance->SetProperty(namesAndValues[index], namesAndValues[index + 1], {});
  }
  instance->Commit({});
}

std::vector<std::vector<std::string>> FakeNamespace::Published(const std::string& className) {
  std::vector<std::vector<std::string>> instances;
  for (const auto& instance : Class(className).extent) {
    std::vector<std::string>& properties = instances.emplace_back();
    for (const auto& [name, value] : instance->properties) properties.push_back(name + " = " + Rendered(value));
  }
  return instances;
}

std::vector<std::string> FakeNamespace::Published(const std::string& className, const std::string& property) {
  std::vector<std::string> values;
  for (const auto& instance : Class(className).extent) {
    values.push_back(instance->GetProperty(property, {})->GetValue({}));
  }
  return values;
}

std::string Rendered(const TCIMValue& value) {
  switch (TCIMValueReader::Kind(value)) {
    case ValueKind::kNone: return "nothing";
    case ValueKind::kString: return '"' + TCIMValueReader::Text(value) + '"';
    case ValueKind::kUInt16: return "uint16 " + std::string(value);
    case ValueKind::kUInt32: return "uint32 " + std::string(value);
    case ValueKind::kDateTime: return "datetime " + std::string(value);
    case ValueKind::kReference: return "reference " + std::string(value);
    case ValueKind::kArray: return RenderedArray(value);
  }
  return {};
}
