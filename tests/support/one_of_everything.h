#pragma once

#include <string>

#include "collect/records.h"

// A controller with one record of every kind and a version in every text, so that every class and every association
// has an instance.
std::shared_ptr<ZenxController> ControllerWithEverything(HostHandle host, const std::string& number);
