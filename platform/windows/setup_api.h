#pragma once

#include <string>

#include <windows.h>

#include <cfgmgr32.h>
#include <setupapi.h>

#include "collect/host_handle.h"

// The calls of Windows that LookupSlotDevice makes. Tests replace them, as no test machine has devices with slot
// numbers.
struct SetupApi {
  decltype(&SetupDiGetClassDevsA) getDevices = SetupDiGetClassDevsA;
  decltype(&SetupDiDestroyDeviceInfoList) destroyList = SetupDiDestroyDeviceInfoList;
  decltype(&SetupDiEnumDeviceInfo) enumerate = SetupDiEnumDeviceInfo;
  decltype(&SetupDiGetDeviceRegistryPropertyA) getProperty = SetupDiGetDeviceRegistryPropertyA;
  decltype(&CM_Get_Device_IDA) getIdentifier = CM_Get_Device_IDA;
};

// As LookupSlotDevice of device_setup.h, of the devices that these calls show.
std::string LookupSlotDevice(HostHandle host, unsigned slotNumber, const SetupApi& api);
