#include <windows.h>

namespace {

using IsWow64ProcessFunction = BOOL(WINAPI*)(HANDLE, PBOOL);

// Looked up at load, as systems without 32-bit processes lack it. The 64-bit tools are run in any case, so nothing
// asks it yet.
[[maybe_unused]] const auto isWow64Process = reinterpret_cast<IsWow64ProcessFunction>(
    reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32"), "IsWow64Process")));

}  // namespace
