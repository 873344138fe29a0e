#include "host/hxacore/repository.h"

#include <map>
#include <utility>

#include <fmt/core.h>
#include <boost/make_shared.hpp>

#include "host/hxacore/instance.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

namespace {

constexpr const char* kOperatingSystem = "KVRSG_OperatingSystem";

// What the repository holds. Classes and instances that are not committed yet share it.
struct Contents {
  std::map<const ClassDeclaration*, std::vector<boost::shared_ptr<TInstance>>> instances;
  std::vector<boost::shared_ptr<const TPublishedInstance>> published;  // by the query, over all classes
};

const ClassDeclaration& Known(const std::string& name) {
  const ClassDeclaration* const declaration = FindClass(name);
  if (!declaration) throw THXAException(fmt::format("There is no class \"{}\".", name));
  return *declaration;
}

class TClass final : public ICIMClass {
 public:
  TClass(const ClassDeclaration& declaration, boost::shared_ptr<Contents> contents)
      : declaration_(declaration), contents_(std::move(contents)) {}

  std::string GetName(const TPropertyMap&) override { return std::string(declaration_.name); }

  boost::shared_ptr<ICIMInstance> CreateInstance(const TPropertyMap&) override {
    if (declaration_.name == kOperatingSystem) {
      throw THXAException(fmt::format("Only the host makes instances of \"{}\".", kOperatingSystem));
    }
    return boost::make_shared<TInstance>(declaration_,
                                         [contents = contents_](const boost::shared_ptr<TInstance>& committed) {
                                           contents->instances[&committed->Class()].push_back(committed);
                                           contents->published.push_back(committed);
                                         });
  }

  // Over a copy of the list: the callback may commit further instances, which are not part of this enumeration.
  void EnumerateInstances(const TCallbackHolder<ICIMInstance>& callback, bool, const TPropertyMap&) override {
    const auto instances = contents_->instances[&declaration_];
    for (const auto& instance : instances) callback.Call(instance);
  }

 private:
  const ClassDeclaration& declaration_;
  boost::shared_ptr<Contents> contents_;
};

class TRepositoryOfInstances final : public TRepository {
 public:
  explicit TRepositoryOfInstances(std::optional<std::uint16_t> osType) {
    if (!osType) return;
    const auto keep = [this](const boost::shared_ptr<TInstance>& own) { contents_->instances[&own->Class()] = {own}; };
    const auto own = boost::make_shared<TInstance>(Known(kOperatingSystem), keep);
    own->SetProperty("Name", "Operating system", {});
    own->SetProperty("OSType", *osType, {});
    own->Commit({});
  }

  boost::shared_ptr<ICIMClass> GetClass(const std::string& name, const TPropertyMap&) override {
    return boost::make_shared<TClass>(Known(name), contents_);
  }

  void BeginQuery(const std::vector<boost::shared_ptr<ICIMClass>>& classes) override {
    contents_->published.clear();
    for (const auto& named : classes) {
      const ClassDeclaration& declaration = Known(named->GetName({}));
      if (declaration.name != kOperatingSystem) contents_->instances.erase(&declaration);
    }
  }

  std::vector<boost::shared_ptr<const TPublishedInstance>> Published() const override { return contents_->published; }

 private:
  boost::shared_ptr<Contents> contents_ = boost::make_shared<Contents>();
};

}  // namespace

boost::shared_ptr<TRepository> TRepository::Make(std::optional<std::uint16_t> osType) {
  return boost::make_shared<TRepositoryOfInstances>(osType);
}

TRepository::~TRepository() = default;

}  // namespace NKVRHXA20
