#pragma once

#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "plugin/host_interface/export.h"
#include "plugin/host_interface/value.h"

// The operations stand in slot order: a plug-in that was built against them calls them by position.
// A host that refuses an operation throws THXAException.
namespace NKVRHXA20 {

class HXA_INTERFACE ICIMProperty {
 public:
  virtual ~ICIMProperty() = default;
  virtual TCIMValue GetValue(const TPropertyMap& context) = 0;
};

class HXA_INTERFACE ICIMInstance {
 public:
  virtual ~ICIMInstance() = default;
  // Hands the finished instance to the host.
  virtual void Commit(TPropertyMap context) = 0;
  // A reference that names this instance.
  virtual TCIMReference GetReference(const TPropertyMap& context) = 0;
  virtual boost::shared_ptr<ICIMProperty> GetProperty(const std::string& name, const TPropertyMap& context) = 0;
  virtual void SetProperty(const std::string& name, const TCIMValue& value, const TPropertyMap& context) = 0;
};

// What the host calls once per item of an enumeration.
template <class TItem>
class HXA_INTERFACE ICallback {
 public:
  virtual ~ICallback() = default;
  virtual void Call(const boost::shared_ptr<TItem>& item) = 0;
};

// Appends every item to a vector, which must outlive it.
template <class TItem>
class HXA_INTERFACE TAddToVectorCallback : public ICallback<TItem> {
 public:
  explicit TAddToVectorCallback(std::vector<boost::shared_ptr<TItem>>& items) : items_(items) {}
  void Call(const boost::shared_ptr<TItem>& item) override { items_.push_back(item); }

 private:
  std::vector<boost::shared_ptr<TItem>>& items_;
};

// Holds a callback for the length of one enumeration.
template <class TItem>
class HXA_INTERFACE TCallbackHolder {
 public:
  explicit TCallbackHolder(const boost::shared_ptr<ICallback<TItem>>& callback) : callback_(callback) {}
  void Call(const boost::shared_ptr<TItem>& item) const { callback_->Call(item); }

 private:
  boost::shared_ptr<ICallback<TItem>> callback_;
};

class HXA_INTERFACE ICIMClass {
 public:
  virtual ~ICIMClass() = default;
  // The name as the class declares it.
  virtual std::string GetName(const TPropertyMap& context) = 0;
  virtual boost::shared_ptr<ICIMInstance> CreateInstance(const TPropertyMap& context) = 0;
  // Calls back once per existing instance, in the order in which they were committed.
  virtual void EnumerateInstances(const TCallbackHolder<ICIMInstance>& callback, bool deep,
                                  const TPropertyMap& context) = 0;
};

class HXA_INTERFACE ICIMNamespace {
 public:
  virtual ~ICIMNamespace() = default;
  // Looks a class up without regard to case. Throws THXAException for a class that the namespace does not know.
  virtual boost::shared_ptr<ICIMClass> GetClass(const std::string& name, const TPropertyMap& context) = 0;
};

}  // namespace NKVRHXA20
