#include "platform/environment.h"

#include <windows.h>

// Asked of the system: the C library keeps a copy that programs which load this library do not change.
std::optional<std::string> EnvironmentVariable(const char* name) {
  SetLastError(ERROR_SUCCESS);
  std::string text(GetEnvironmentVariableA(name, nullptr, 0), '\0');
  if (GetLastError() == ERROR_ENVVAR_NOT_FOUND) return std::nullopt;
  text.resize(GetEnvironmentVariableA(name, text.data(), static_cast<DWORD>(text.size())));
  return text;
}
