#include <windows.h>

#include "plugin/callbacks.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) { return OnLibraryNotification(reason); }
