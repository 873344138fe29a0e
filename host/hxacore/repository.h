#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>

#include "host/hxacore/schema.h"
#include "plugin/host_interface/cim.h"

namespace NKVRHXA20 {

// A property as it was set: with the name that the plug-in used, which may differ in case from the declared one.
struct PublishedProperty {
  std::string_view name;
  TCIMValue value;
};

// A committed instance, as the host's views read it.
class HXACORE_API TPublishedInstance {
 public:
  virtual ~TPublishedInstance();
  virtual const ClassDeclaration& Class() const = 0;
  // In the order of setting.
  virtual const std::vector<PublishedProperty>& Properties() const = 0;
  // The instance by its declared keys.
  virtual TCIMReference Reference() const = 0;
};

// The number of instances of a query that a repository keeps: a machine with 32,768 disks has 300,000.
inline constexpr std::size_t kMostInstances = 2'000'000;

// The host's namespace: its classes and their published instances. Names of classes and properties are compared without
// regard to case; an undeclared class or property throws THXAException. GetProperty returns an empty value for a
// declared property that was never set.
class HXACORE_API TRepository : public ICIMNamespace, public boost::enable_shared_from_this<TRepository> {
 public:
  // osType: the "OSType" of the one "KVRSG_OperatingSystem" instance; empty: there is no such instance.
  // machineName: the name of the one "KVRSG_ComputerSystem" instance, and a part of the paths of its objects.
  // Committing more instances than the limit throws THXAException.
  static boost::shared_ptr<TRepository> Make(std::optional<std::uint16_t> osType, const std::string& machineName = "",
                                             std::size_t most = kMostInstances);
  ~TRepository() override;

  // Begins a query of these classes: removes the instances of all of them that were published before.
  virtual void BeginQuery(const std::vector<boost::shared_ptr<ICIMClass>>& classes) = 0;

  // Called for each instance when it is committed; an instance is not kept if it returns false. By default all are
  // kept.
  using TKeeps = std::function<bool(const boost::shared_ptr<const TPublishedInstance>& committed)>;
  virtual void OnCommit(TKeeps keeps) = 0;

  // The instances committed since and kept, in order, with or without equal keys; not the host's own instances.
  virtual std::vector<boost::shared_ptr<const TPublishedInstance>> Published() const = 0;

  // The host's own "KVRSG_ComputerSystem" instance.
  virtual boost::shared_ptr<const TPublishedInstance> System() const = 0;
};

}  // namespace NKVRHXA20
