#include "platform/device_setup.h"

#include <new>
#include <vector>

#include "platform/recorded_system.h"
#include "platform/windows/setup_api.h"

namespace {

// All present devices of all classes, for as long as it lives.
class PresentDevices {
 public:
  explicit PresentDevices(const SetupApi& api)
      : api_(api), set_(api.getDevices(nullptr, nullptr, nullptr, DIGCF_PRESENT | DIGCF_ALLCLASSES)) {}
  ~PresentDevices() {
    if (IsValid()) api_.destroyList(set_);
  }
  PresentDevices(const PresentDevices&) = delete;
  PresentDevices& operator=(const PresentDevices&) = delete;

  bool IsValid() const { return set_ != INVALID_HANDLE_VALUE; }
  bool Get(DWORD index, SP_DEVINFO_DATA& device) const { return api_.enumerate(set_, index, &device); }
  bool Property(SP_DEVINFO_DATA& device, DWORD property, void* buffer, DWORD size, DWORD* needed = nullptr) const {
    return api_.getProperty(set_, &device, property, nullptr, static_cast<PBYTE>(buffer), size, needed);
  }

 private:
  const SetupApi& api_;
  HDEVINFO set_;
};

bool IsInSlot(const PresentDevices& devices, SP_DEVINFO_DATA& device, unsigned slotNumber) {
  DWORD uiNumber = 0;
  return devices.Property(device, SPDRP_UI_NUMBER, &uiNumber, sizeof(uiNumber)) && uiNumber == slotNumber;
}

// Nothing uses the list. What a log may show of it is that there was no memory for it, a sign of a machine in trouble.
void ReadCompatibleIds(const PresentDevices& devices, SP_DEVINFO_DATA& device) {
  DWORD size = 0;
  devices.Property(device, SPDRP_COMPATIBLEIDS, nullptr, 0, &size);
  std::vector<char> texts(size);
  if (size > 0) devices.Property(device, SPDRP_COMPATIBLEIDS, texts.data(), size);
}

}  // namespace

std::string LookupSlotDevice(HostHandle host, unsigned slotNumber, const SetupApi& api) {
  std::string found;
  const PresentDevices devices(api);
  if (!devices.IsValid()) {
    Log(host, kLogRoutine, "Error invalid handle for device info.");
    return found;
  }
  SP_DEVINFO_DATA device = {};
  device.cbSize = sizeof(device);
  for (DWORD index = 0; devices.Get(index, device); ++index) {
    if (!IsInSlot(devices, device, slotNumber)) continue;
    try {
      ReadCompatibleIds(devices, device);
    } catch (const std::bad_alloc&) {
      Log(host, kLogRoutine, "Error could not allocate memory.");
    }
    char identifier[100] = {};
    if (api.getIdentifier(device.DevInst, identifier, sizeof(identifier), 0) == CR_SUCCESS) {
      identifier[sizeof(identifier) - 1] = '\0';
      found = identifier;
    }
  }
  return found;
}

std::string LookupSlotDevice(HostHandle host, unsigned slotNumber) {
  if (AnswersInPlace() != nullptr) return {};  // the devices here are not those of the machine that answers
  return LookupSlotDevice(host, slotNumber, SetupApi());
}
