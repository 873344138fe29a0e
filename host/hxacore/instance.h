#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>

#include "host/hxacore/repository.h"

namespace NKVRHXA20 {

// An instance, from its creation on. Committing passes it to the host and makes it immutable: a second commit, or
// setting a property later, throws THXAException.
class TInstance final : public ICIMInstance,
                        public TPublishedInstance,
                        public boost::enable_shared_from_this<TInstance> {
 public:
  // Receives the instance when it is committed.
  using TKeep = std::function<void(const boost::shared_ptr<TInstance>&)>;

  // The values of the keys that the host adds. All instances of a repository share them.
  using TSystemKeys = std::shared_ptr<const TPropertyMap>;

  // The declaration must outlive the instance.
  TInstance(const ClassDeclaration& declaration, TSystemKeys systemKeys, TKeep keep);

  void Commit(TPropertyMap context) override;
  TCIMReference GetReference(const TPropertyMap& context) override;
  boost::shared_ptr<ICIMProperty> GetProperty(const std::string& name, const TPropertyMap& context) override;
  void SetProperty(const std::string& name, const TCIMValue& value, const TPropertyMap& context) override;

  const ClassDeclaration& Class() const override { return declaration_; }
  const std::vector<PublishedProperty>& Properties() const override { return properties_; }
  TCIMReference Reference() const override;

 private:
  const PublishedProperty* Find(std::string_view name) const;

  const ClassDeclaration& declaration_;
  TSystemKeys systemKeys_;
  TKeep keep_;  // empty once committed, which also releases the host's lists
  std::vector<PublishedProperty> properties_;
  mutable std::unique_ptr<const TCIMReference> reference_;  // made at the first call after the commit
};

}  // namespace NKVRHXA20
