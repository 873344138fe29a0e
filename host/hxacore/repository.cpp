#include "host/hxacore/repository.h"

#include <map>
#include <memory>
#include <utility>

#include <fmt/core.h>
#include <boost/make_shared.hpp>

#include "host/hxacore/instance.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

namespace {

constexpr const char* kComputerSystem = "KVRSG_ComputerSystem";
constexpr const char* kOperatingSystem = "KVRSG_OperatingSystem";

// The contents of the repository, shared with its classes and uncommitted instances.
struct Contents {
  std::map<const ClassDeclaration*, std::vector<boost::shared_ptr<TInstance>>> instances;
  std::vector<boost::shared_ptr<const TPublishedInstance>> published;  // by the query, over all classes
  TInstance::TSystemKeys systemKeys;
  TRepository::TKeeps keeps;
  std::size_t most = kMostInstances;

  void Keep(const boost::shared_ptr<TInstance>& committed) {
    if (keeps && !keeps(committed)) return;
    if (published.size() == most) {
      throw THXAException(
          fmt::format("more than {} objects were published: a tool lists the same object too often", most));
    }
    instances[&committed->Class()].push_back(committed);
    published.push_back(committed);
  }
};

bool IsOfHost(const ClassDeclaration& declaration) {
  return declaration.name == kComputerSystem || declaration.name == kOperatingSystem;
}

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
    if (IsOfHost(declaration_)) {
      throw THXAException(fmt::format("Only the host makes instances of \"{}\".", declaration_.name));
    }
    return boost::make_shared<TInstance>(declaration_, contents_->systemKeys,
                                         [contents = contents_](const auto& committed) { contents->Keep(committed); });
  }

  // Uses a copy of the list: the callback may commit further instances, which are not part of this enumeration.
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
  TRepositoryOfInstances(std::optional<std::uint16_t> osType, const std::string& machineName, std::size_t most) {
    contents_->most = most;
    contents_->systemKeys = std::make_shared<const TPropertyMap>(TPropertyMap{
        {"SystemCreationClassName", kComputerSystem},
        {"SystemName",              machineName    }
    });
    Keep(kComputerSystem, {
                              {"CreationClassName", kComputerSystem},
                              {"Name",              machineName    }
    });
    if (osType)
      Keep(kOperatingSystem, {
                                 {"Name",   "Operating system"},
                                 {"OSType", *osType           }
      });
  }

  boost::shared_ptr<ICIMClass> GetClass(const std::string& name, const TPropertyMap&) override {
    return boost::make_shared<TClass>(Known(name), contents_);
  }

  void BeginQuery(const std::vector<boost::shared_ptr<ICIMClass>>& classes) override {
    contents_->published.clear();
    for (const auto& named : classes) {
      const ClassDeclaration& declaration = Known(named->GetName({}));
      if (!IsOfHost(declaration)) contents_->instances.erase(&declaration);
    }
  }

  void OnCommit(TKeeps keeps) override { contents_->keeps = std::move(keeps); }

  std::vector<boost::shared_ptr<const TPublishedInstance>> Published() const override { return contents_->published; }

  boost::shared_ptr<const TPublishedInstance> System() const override {
    return contents_->instances.at(&Known(kComputerSystem)).front();
  }

 private:
  // Makes the only instance of a class of the host.
  void Keep(const char* className, const TPropertyMap& properties) {
    const auto keep = [this](const boost::shared_ptr<TInstance>& own) { contents_->instances[&own->Class()] = {own}; };
    const auto own = boost::make_shared<TInstance>(Known(className), contents_->systemKeys, keep);
    for (const auto& [name, value] : properties) own->SetProperty(name, value, {});
    own->Commit({});
  }

  boost::shared_ptr<Contents> contents_ = boost::make_shared<Contents>();
};

}  // namespace

boost::shared_ptr<TRepository> TRepository::Make(std::optional<std::uint16_t> osType, const std::string& machineName,
                                                 std::size_t most) {
  return boost::make_shared<TRepositoryOfInstances>(osType, machineName, most);
}

TRepository::~TRepository() = default;

}  // namespace NKVRHXA20
