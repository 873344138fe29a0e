#include "host/hxahost/system/windows/access_list.h"

#include <algorithm>

namespace hxahost {

namespace {

// Every user who may log on is a member of one of these.
constexpr WELL_KNOWN_SID_TYPE kOthers[] = {WinWorldSid, WinAuthenticatedUserSid, WinBuiltinUsersSid,
                                           WinBuiltinGuestsSid, WinInteractiveSid};

constexpr DWORD kExchanges = FILE_DELETE_CHILD | DELETE | WRITE_DAC | WRITE_OWNER;

// In a folder, FILE_WRITE_DATA creates files. FILE_APPEND_DATA is left out: it does not change a program, and in a
// folder the same bit creates folders, which Windows permits to everybody below the root of a drive.
constexpr DWORD kChanges = FILE_WRITE_DATA | kExchanges;

bool IsGroup(PSID sid, WELL_KNOWN_SID_TYPE group) { return IsWellKnownSid(sid, group) != 0; }

// The rights that the list gives a group: for each right, the first entry that names it decides. Rights denied to
// everyone are denied to the group.
DWORD RightsOf(WELL_KNOWN_SID_TYPE group, ACL& list) {
  GENERIC_MAPPING mapping{FILE_GENERIC_READ, FILE_GENERIC_WRITE, FILE_GENERIC_EXECUTE, FILE_ALL_ACCESS};
  DWORD allowed = 0;
  DWORD denied = 0;
  for (DWORD index = 0; index < list.AceCount; ++index) {
    void* entry = nullptr;
    if (GetAce(&list, index, &entry) == 0) continue;
    const auto& header = *static_cast<const ACE_HEADER*>(entry);
    const bool allows = header.AceType == ACCESS_ALLOWED_ACE_TYPE;
    const bool denies = header.AceType == ACCESS_DENIED_ACE_TYPE;
    if ((header.AceFlags & INHERIT_ONLY_ACE) != 0 || (!allows && !denies)) continue;
    // Allowing and denying entries have the same layout.
    auto& access = *static_cast<ACCESS_ALLOWED_ACE*>(entry);
    if (!IsGroup(&access.SidStart, group) && !(denies && IsGroup(&access.SidStart, WinWorldSid))) continue;
    DWORD rights = access.Mask;
    MapGenericMask(&rights, &mapping);
    if (allows) allowed |= rights & ~denied;
    if (denies) denied |= rights & ~allowed;
  }
  return allowed;
}

bool LetsOthers(DWORD rights, ACL* list) {
  return list == nullptr || std::ranges::any_of(kOthers, [&](WELL_KNOWN_SID_TYPE group) {
           return (RightsOf(group, *list) & rights) != 0;
         });
}

}  // namespace

bool LetsOthersWrite(ACL* list) { return LetsOthers(kChanges, list); }

bool LetsOthersExchange(ACL* list) { return LetsOthers(kExchanges, list); }

}  // namespace hxahost
