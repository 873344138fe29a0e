#pragma once

#include <string>

#include "collect/records.h"

// The records of the controllers, one on each line, line ends cut:
//   5 SERIAL
//    drive 1| 100 MB
//    order 5LogicalDrv1 0,0 0,1
//    device Controller: Device #0|Hard drive| Online
std::string Summary(const ControllerList& controllers);
