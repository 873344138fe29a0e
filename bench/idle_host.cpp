#include "bench/idle_host.h"

#include <utility>

#include <boost/make_shared.hpp>

using namespace NKVRHXA20;

namespace {

class IdleInstance final : public ICIMInstance {
 public:
  explicit IdleInstance(std::size_t& committed) : committed_(committed) {}
  void Commit(TPropertyMap) override { ++committed_; }
  TCIMReference GetReference(const TPropertyMap&) override { return {}; }
  boost::shared_ptr<ICIMProperty> GetProperty(const std::string&, const TPropertyMap&) override { return nullptr; }
  void SetProperty(const std::string&, const TCIMValue&, const TPropertyMap&) override {}

 private:
  std::size_t& committed_;
};

class IdleClass final : public ICIMClass {
 public:
  IdleClass(std::string name, std::size_t& committed) : name_(std::move(name)), committed_(committed) {}
  std::string GetName(const TPropertyMap&) override { return name_; }
  boost::shared_ptr<ICIMInstance> CreateInstance(const TPropertyMap&) override {
    return boost::make_shared<IdleInstance>(committed_);
  }
  void EnumerateInstances(const TCallbackHolder<ICIMInstance>&, bool, const TPropertyMap&) override {}

 private:
  std::string name_;
  std::size_t& committed_;
};

}  // namespace

boost::shared_ptr<ICIMClass> IdleHost::GetClass(const std::string& name, const TPropertyMap&) {
  return boost::make_shared<IdleClass>(name, committed_);
}
