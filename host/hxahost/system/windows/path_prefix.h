#pragma once

#include <string>

namespace hxahost {

// "C:\tools" of "\\?\C:\tools", and "\\server\share" of "\\?\UNC\server\share"; other paths are unchanged.
std::wstring WithoutPrefix(const std::wstring& path);

}  // namespace hxahost
