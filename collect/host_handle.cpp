#include "collect/host_handle.h"

#include "plugin/host_interface/services.h"

void Log(HostHandle host, int level, const std::string& text) { host->Log(level, text); }
