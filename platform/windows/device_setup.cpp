#include "platform/device_setup.h"

#include <new>
#include <string_view>
#include <vector>

#include <windows.h>

#include <cfgmgr32.h>
#include <setupapi.h>

#include "platform/recorded_system.h"

namespace {

// All present devices of all classes, for as long as it lives.
class PresentDevices {
 public:
  PresentDevices() : set_(SetupDiGetClassDevsA(nullptr, nullptr, nullptr, DIGCF_PRESENT | DIGCF_ALLCLASSES)) {}
  ~PresentDevices() {
    if (IsValid()) SetupDiDestroyDeviceInfoList(set_);
  }
  PresentDevices(const PresentDevices&) = delete;
  PresentDevices& operator=(const PresentDevices&) = delete;

  bool IsValid() const { return set_ != INVALID_HANDLE_VALUE; }
  HDEVINFO Set() const { return set_; }

 private:
  HDEVINFO set_;
};

bool StandsInSlot(HDEVINFO set, SP_DEVINFO_DATA& device, unsigned slotNumber) {
  DWORD uiNumber = 0;
  return SetupDiGetDeviceRegistryPropertyA(set, &device, SPDRP_UI_NUMBER, nullptr, reinterpret_cast<PBYTE>(&uiNumber),
                                           sizeof(uiNumber), nullptr) &&
         uiNumber == slotNumber;
}

// The list is one block: texts with their ends, one behind the other. Nothing uses it; what a log may show of it is
// that there was no memory for it, a sign of a machine in trouble.
std::vector<std::string> CompatibleIds(HDEVINFO set, SP_DEVINFO_DATA& device) {
  DWORD size = 0;
  SetupDiGetDeviceRegistryPropertyA(set, &device, SPDRP_COMPATIBLEIDS, nullptr, nullptr, 0, &size);
  std::vector<char> block(size);
  std::vector<std::string> ids;
  if (size == 0 || !SetupDiGetDeviceRegistryPropertyA(set, &device, SPDRP_COMPATIBLEIDS, nullptr,
                                                      reinterpret_cast<PBYTE>(block.data()), size, nullptr)) {
    return ids;
  }
  const std::string_view texts(block.data(), block.size());
  for (std::size_t begin = 0; begin < texts.size() && texts[begin] != '\0'; begin += ids.back().size() + 1) {
    ids.emplace_back(texts.substr(begin, texts.find('\0', begin) - begin));
  }
  return ids;
}

}  // namespace

std::string LookupSlotDevice(HostHandle host, unsigned slotNumber) {
  std::string found;
  if (AnswersInPlace() != nullptr) return found;  // the devices here are not those of the machine that answers
  const PresentDevices devices;
  if (!devices.IsValid()) {
    Log(host, kLogRoutine, "Error invalid handle for device info.");
    return found;
  }
  SP_DEVINFO_DATA device = {};
  device.cbSize = sizeof(device);
  for (DWORD index = 0; SetupDiEnumDeviceInfo(devices.Set(), index, &device); ++index) {
    if (!StandsInSlot(devices.Set(), device, slotNumber)) continue;
    try {
      CompatibleIds(devices.Set(), device);
    } catch (const std::bad_alloc&) {
      Log(host, kLogRoutine, "Error could not allocate memory.");
    }
    char identifier[100] = {};
    if (CM_Get_Device_IDA(device.DevInst, identifier, sizeof(identifier), 0) == CR_SUCCESS) {
      identifier[sizeof(identifier) - 1] = '\0';
      found = identifier;
    }
  }
  return found;
}
