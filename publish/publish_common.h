#pragma once

#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "collect/host_handle.h"
#include "plugin/host_interface/cim.h"

// What every publication routine needs.

using InstanceList = std::vector<boost::shared_ptr<NKVRHXA20::ICIMInstance>>;

// The instances that the host holds of a class, in the order in which they were committed.
InstanceList InstancesOf(NKVRHXA20::ICIMNamespace& nameSpace, const std::string& className,
                         const NKVRHXA20::TPropertyMap& lookupContext);

// Logs a reason of the query, with the words that close each of them.
void LogReason(HostHandle host, const std::string& reason);
