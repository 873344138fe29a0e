#pragma once

#include <memory>

#include <windows.h>

namespace NKVRHXA20 {

struct CloseThisHandle {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};

// An open handle, or none.
using UniqueHandle = std::unique_ptr<void, CloseThisHandle>;

// Some calls return null for no handle, others INVALID_HANDLE_VALUE.
inline UniqueHandle Owned(HANDLE handle) { return UniqueHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle); }

}  // namespace NKVRHXA20
