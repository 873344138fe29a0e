#pragma once

#include <functional>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "collect/records.h"
#include "plugin/host_interface/cim.h"

// What every publication routine needs.

using InstanceList = std::vector<boost::shared_ptr<NKVRHXA20::ICIMInstance>>;

// The instances that the host holds of a class, in the order in which they were committed.
InstanceList InstancesOf(NKVRHXA20::ICIMNamespace& nameSpace, const std::string& className,
                         const NKVRHXA20::TPropertyMap& lookupContext);

// A property of an instance that the host holds, as text.
std::string TextOf(NKVRHXA20::ICIMInstance& instance, const std::string& property);

NKVRHXA20::TCIMValue StringArray(const std::vector<std::string>& texts);

// What read gives. If it throws, that is logged, and there are no controllers.
ControllerList ReadControllers(HostHandle host, const std::function<ControllerList()>& read);

// Logs a reason of the query, with the words that close each of them.
void LogReason(HostHandle host, const std::string& reason);
