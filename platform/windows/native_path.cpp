#include "platform/native_path.h"

std::string NativePath(const std::string& windowsPath) { return windowsPath; }

bool HaveStreamsTextMode() { return true; }
