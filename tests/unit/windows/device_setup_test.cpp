#include "platform/windows/setup_api.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <vector>

#include "tests/support/recording_log.h"

namespace {

struct Device {
  std::optional<DWORD> slot;
  std::string identifier;
};

// The data of the calls below, which have no parameter for it.
std::vector<Device> devices;
DWORD idSize = 0;
int openLists = 0;

HDEVINFO WINAPI GetDevices(const GUID* setupClass, PCSTR enumerator, HWND parent, DWORD flags) {
  EXPECT_TRUE(setupClass == nullptr && enumerator == nullptr && parent == nullptr);
  EXPECT_EQ(flags, static_cast<DWORD>(DIGCF_PRESENT | DIGCF_ALLCLASSES));
  ++openLists;
  return &devices;
}

WINBOOL WINAPI DestroyList(HDEVINFO set) {
  EXPECT_EQ(set, &devices);
  --openLists;
  return TRUE;
}

WINBOOL WINAPI Enumerate(HDEVINFO, DWORD index, PSP_DEVINFO_DATA device) {
  device->DevInst = index;
  return index < devices.size();
}

WINBOOL WINAPI GetProperty(HDEVINFO, PSP_DEVINFO_DATA device, DWORD property, PDWORD, PBYTE buffer, DWORD size,
                           PDWORD) {
  const std::optional<DWORD>& slot = devices.at(device->DevInst).slot;
  if (property != SPDRP_UI_NUMBER || !slot || size != sizeof(*slot)) return FALSE;
  std::memcpy(buffer, &*slot, size);
  return TRUE;
}

// If the identifier is longer, fills the buffer up to its last character.
CONFIGRET WINAPI GetIdentifier(DEVINST device, PSTR buffer, ULONG size, ULONG) {
  idSize = size;
  const std::string& identifier = devices.at(device).identifier;
  if (identifier.empty()) return CR_FAILURE;
  std::memcpy(buffer, identifier.c_str(), std::min<std::size_t>(identifier.size() + 1, size));
  return CR_SUCCESS;
}

const SetupApi kFake = {GetDevices, DestroyList, Enumerate, GetProperty, GetIdentifier};

class SlotLookup : public testing::Test {
 protected:
  ~SlotLookup() override { EXPECT_EQ(openLists, 0); }

  std::string Find(unsigned slot, std::vector<Device> present, const SetupApi& api = kFake) {
    devices = std::move(present);
    return LookupSlotDevice(&log_, slot, api);
  }

  RecordingLog log_;
};

TEST_F(SlotLookup, FindsTheDeviceWithTheNumber) {
  EXPECT_EQ(Find(3,
                 {
                     {2, "PCI\\A"},
                     {3, "PCI\\B"},
                     {4, "PCI\\C"}
  }),
            "PCI\\B");
  EXPECT_EQ(idSize, 100U);
}

TEST_F(SlotLookup, TakesTheLastOfTwoDevicesWithTheSameNumber) {
  EXPECT_EQ(Find(3,
                 {
                     {3, "PCI\\A"},
                     {3, "PCI\\B"},
                     {4, "PCI\\C"}
  }),
            "PCI\\B");
}

TEST_F(SlotLookup, KeepsTheEarlierDeviceWhereTheLaterOneHasNoIdentifier) {
  EXPECT_EQ(Find(3,
                 {
                     {3, "PCI\\A"},
                     {3, ""      }
  }),
            "PCI\\A");
}

TEST_F(SlotLookup, PassesOverDevicesWithoutANumber) {
  EXPECT_EQ(Find(0,
                 {
                     {std::nullopt, "PCI\\A"},
                     {0,            "PCI\\B"},
                     {std::nullopt, "PCI\\C"}
  }),
            "PCI\\B");
  EXPECT_EQ(Find(3,
                 {
                     {std::nullopt, "PCI\\A"}
  }),
            "");
}

TEST_F(SlotLookup, TakesAtMost99Characters) {
  EXPECT_EQ(Find(1,
                 {
                     {1, std::string(99, 'x')}
  }),
            std::string(99, 'x'));
  EXPECT_EQ(Find(1,
                 {
                     {1, std::string(150, 'x')}
  }),
            std::string(99, 'x'));
}

TEST_F(SlotLookup, LogsThatTheDevicesCannotBeListed) {
  SetupApi api = kFake;
  api.getDevices = [](const GUID*, PCSTR, HWND, DWORD) -> HDEVINFO { return INVALID_HANDLE_VALUE; };
  EXPECT_EQ(Find(3,
                 {
                     {3, "PCI\\A"}
  },
                 api),
            "");
  EXPECT_EQ(log_.entries, (std::vector<LogEntry>{
                              {3, "Error invalid handle for device info."}
  }));
}

}  // namespace
