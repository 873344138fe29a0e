#pragma once

#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "plugin/host_interface/cim.h"
#include "plugin/host_interface/export.h"

// The two interfaces that a plug-in offers to the host. The host calls the operations by position: the order is fixed.
// Positions are those of the Itanium C++ ABI, which GCC and Clang follow on Linux and, with mingw-w64, on Windows: a
// virtual destructor takes two entries of the table (destroys; destroys and frees), so that Unnamed1 is the third entry
// of the first table and Query the third of the second. A host that is built with another C++ ABI, such as that of
// Microsoft's compiler with its single destructor entry, cannot call these tables, nor share std::string with them:
// host and plug-in are built with the same family of compilers and the same standard library.
namespace NKVRHXA20 {

// Identity and lifetime of a plug-in. The host does not use the three unnamed operations.
class HXA_INTERFACE IPluginCallbacks {
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
class HXA_INTERFACE IPluginBasicQueryCallbacks {
 public:
  virtual ~IPluginBasicQueryCallbacks() = default;
  // Publishes the instances of the classes, in their order, by committing them to the host.
  virtual void Query(boost::shared_ptr<ICIMNamespace> nameSpace,
                     const std::vector<boost::shared_ptr<ICIMClass>>& classes) = 0;
};

}  // namespace NKVRHXA20
