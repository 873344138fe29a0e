#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>

#include "host/hxacore/schema.h"
#include "plugin/host_interface/cim.h"

namespace NKVRHXA20 {

// A property as it was set: under the name that the plug-in used, which may differ in case from the declared one.
struct PublishedProperty {
  std::string_view name;
  TCIMValue value;
};

// A committed instance, as the host's views read it.
class HXACORE_API TPublishedInstance {
 public:
  virtual ~TPublishedInstance();
  virtual const ClassDeclaration& Class() const = 0;
  // In the order in which they were set.
  virtual const std::vector<PublishedProperty>& Properties() const = 0;
  // Names the instance by its declared keys.
  virtual TCIMReference Reference() const = 0;
};

// The host's namespace: its classes and what was published of them. Class and property names are found without regard
// to case; a class or property that is not declared is THXAException. GetProperty of a declared property that was
// never set gives an empty value.
class HXACORE_API TRepository : public ICIMNamespace, public boost::enable_shared_from_this<TRepository> {
 public:
  // osType: what the one "KVRSG_OperatingSystem" instance has as "OSType"; nothing: there is no such instance.
  // machineName: the name of the one "KVRSG_ComputerSystem" instance, and a part of the paths of what belongs to it.
  static boost::shared_ptr<TRepository> Make(std::optional<std::uint16_t> osType, const std::string& machineName = "");
  ~TRepository() override;

  // A query that names these classes begins: what was published of them before is gone, of all of them at once.
  virtual void BeginQuery(const std::vector<boost::shared_ptr<ICIMClass>>& classes) = 0;

  // What was committed since, in order, equal keys or not; not the host's own instances.
  virtual std::vector<boost::shared_ptr<const TPublishedInstance>> Published() const = 0;

  // The host's own "KVRSG_ComputerSystem" instance.
  virtual boost::shared_ptr<const TPublishedInstance> System() const = 0;
};

}  // namespace NKVRHXA20
