#include "platform/os_version.h"

#include "platform/environment_answers.h"

OsVersion GetOsVersion() { return OsVersionFromEnvironment(); }
