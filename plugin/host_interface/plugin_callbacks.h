#pragma once

#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "plugin/host_interface/cim.h"

// The two faces that a plug-in shows to the host. The host calls the operations by position: the order is fixed.
namespace NKVRHXA20 {

// Identity and lifetime of a plug-in. The host does not use the three unnamed operations.
class IPluginCallbacks {
 public:
  virtual ~IPluginCallbacks() = default;
  virtual int Unnamed1() = 0;
  virtual std::string GetPluginName() = 0;
  virtual std::string GetVersion() = 0;
  virtual std::string GetSecondVersion() = 0;
  // Deletes the object.
  virtual void Release() = 0;
  virtual void Unnamed6() = 0;
  virtual void Unnamed7() = 0;
};

// The query.
class IPluginBasicQueryCallbacks {
 public:
  virtual ~IPluginBasicQueryCallbacks() = default;
  // Publishes the instances of the classes, in their order, by committing them to the host.
  virtual void Query(boost::shared_ptr<ICIMNamespace> nameSpace,
                     const std::vector<boost::shared_ptr<ICIMClass>>& classes) = 0;
};

}  // namespace NKVRHXA20
