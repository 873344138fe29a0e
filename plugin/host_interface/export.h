#pragma once

// Which side of a library boundary a declaration stands on. Only Windows asks: elsewhere every symbol is visible.
// HXACORE_BUILD and PLUGIN_NSP_BUILD are set while the library of that name is built.
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
#else
#define HXACORE_API
#define PLUGIN_NSP_API
#endif
