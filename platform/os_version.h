#pragma once

// What the operating system says of its version. All zero: not a Windows NT system.
struct OsVersion {
  bool isWindowsNt = false;
  unsigned major = 0;
  unsigned minor = 0;
};

// Windows: GetVersionExA, asked again with the basic record when it refuses the extended one. Elsewhere the
// environment's ZENX_OS_VERSION, for example "6.1"; unset or empty, it is not a Windows NT system.
OsVersion GetOsVersion();
