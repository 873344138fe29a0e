#include "host/hxacore/instance.h"

#include <algorithm>
#include <mutex>
#include <set>
#include <utility>

#include <fmt/core.h>
#include <boost/make_shared.hpp>

#include "host/hxacore/ignore_case.h"
#include "host/hxacore/value_reader.h"
#include "host/hxacore/value_type.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

namespace {

// The value of the property at the time of the call.
class TProperty final : public ICIMProperty {
 public:
  explicit TProperty(TCIMValue value) : value_(std::move(value)) {}
  TCIMValue GetValue(const TPropertyMap&) override { return value_; }

 private:
  TCIMValue value_;
};

// A name as it was set, without a copy for every instance. Spellings other than the declared one are rare, and are kept
// until the process ends.
std::string_view Spelling(std::string_view declared, const std::string& asSet) {
  if (asSet == declared) return declared;
  static std::mutex mutex;
  static auto* const others = new std::set<std::string>;
  const std::lock_guard lock(mutex);
  return *others->insert(asSet).first;
}

const PropertyDeclaration& Declared(const ClassDeclaration& declaration, const std::string& name) {
  const PropertyDeclaration* const property = FindProperty(declaration, name);
  if (!property) throw THXAException(fmt::format("The class \"{}\" has no property \"{}\".", declaration.name, name));
  return *property;
}

std::string Place(const ClassDeclaration& declaration, const PropertyDeclaration& property) {
  return fmt::format("\"{}.{}\"", declaration.name, property.name);
}

}  // namespace

TPublishedInstance::~TPublishedInstance() = default;

TInstance::TInstance(const ClassDeclaration& declaration, TSystemKeys systemKeys, TKeep keep)
    : declaration_(declaration), systemKeys_(std::move(systemKeys)), keep_(std::move(keep)) {
  properties_.reserve(declaration.properties.size());
}

void TInstance::Commit(TPropertyMap) {
  if (!keep_) throw THXAException(fmt::format("An instance of \"{}\" is committed already.", declaration_.name));
  std::exchange(keep_, nullptr)(shared_from_this());
}

TCIMReference TInstance::GetReference(const TPropertyMap&) { return Reference(); }

boost::shared_ptr<ICIMProperty> TInstance::GetProperty(const std::string& name, const TPropertyMap&) {
  const PublishedProperty* const property = Find(Declared(declaration_, name).name);
  return boost::make_shared<TProperty>(property ? property->value : TCIMValue());
}

void TInstance::SetProperty(const std::string& name, const TCIMValue& value, const TPropertyMap&) {
  const PropertyDeclaration& declared = Declared(declaration_, name);
  if (!keep_) throw THXAException(Place(declaration_, declared) + " cannot be set: the instance is committed already.");
  if (!HasDeclaredType(value, declared)) {
    throw THXAException(
        fmt::format("{} is {}, which the value set is not.", Place(declaration_, declared), TypeText(declared)));
  }
  const auto isSame = [&](const PublishedProperty& property) { return EqualIgnoringCase(property.name, name); };
  const auto found = std::ranges::find_if(properties_, isSame);
  if (found == properties_.end()) {
    properties_.push_back({Spelling(declared.name, name), value});
  } else {
    *found = {Spelling(declared.name, name), value};
  }
}

// The reference contains no namespace: with one, a link that the repository keeps would keep the repository. A key
// without a value is left out. All references to a committed instance share their keys.
TCIMReference TInstance::Reference() const {
  if (reference_) return *reference_;
  TPropertyMap keys;
  for (const PropertyDeclaration& declared : declaration_.properties) {
    const PublishedProperty* const property = declared.isKey ? Find(declared.name) : nullptr;
    if (!property || TCIMValueReader::Kind(property->value) == ValueKind::kNone) continue;
    keys.emplace(declared.name, property->value);
  }
  for (const PropertyDeclaration& declared : declaration_.systemKeys) {
    const std::string name(declared.name);
    keys.emplace(name, systemKeys_->at(name));
  }
  TCIMReference reference = TCIMReferenceFactory::Make(nullptr, std::string(declaration_.name), keys);
  if (!keep_) reference_ = std::make_unique<const TCIMReference>(reference);
  return reference;
}

const PublishedProperty* TInstance::Find(std::string_view name) const {
  const auto found = std::ranges::find_if(
      properties_, [&](const PublishedProperty& property) { return EqualIgnoringCase(property.name, name); });
  return found == properties_.end() ? nullptr : &*found;
}

}  // namespace NKVRHXA20
