#pragma once

// Which library a declaration belongs to. HXACORE_BUILD and PLUGIN_NSP_BUILD are set while the library of that name is
// built. HXA_INTERFACE marks what no library defines alone: its type is the same one in all of them, whatever each of
// them hides.
#if defined(_WIN32)
#if defined(HXACORE_BUILD)
#define HXACORE_API __declspec(dllexport)
#else
#define HXACORE_API __declspec(dllimport)
#endif
#if defined(PLUGIN_NSP_BUILD)
#define PLUGIN_NSP_API __declspec(dllexport)
#else
#define PLUGIN_NSP_API __declspec(dllimport)
#endif
#define HXA_INTERFACE
#else
#define HXACORE_API [[gnu::visibility("default")]]
#define PLUGIN_NSP_API [[gnu::visibility("default")]]
#define HXA_INTERFACE [[gnu::visibility("default")]]
#endif
