#include "host/hxahost/system/private_file.h"

#include <windows.h>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/this_program.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

// The system deletes it with its last handle, also when the program is ended by force: what opens it has to share
// deleting.
PrivateFile::PrivateFile(std::string_view bytes) {
  std::error_code error;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
  auto file = INVALID_HANDLE_VALUE;
  for (unsigned number = 0; number < 1000 && file == INVALID_HANDLE_VALUE; ++number) {
    path_ = folder / ("hxahost-" + std::to_string(ProcessId()) + "-" + std::to_string(number) + ".log");
    file = CreateFileW(path_.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                       nullptr, CREATE_NEW, FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  }
  DWORD written = 0;
  if (file == INVALID_HANDLE_VALUE ||
      WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) == 0 ||
      written != bytes.size()) {
    if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
    throw ProgramError(ExitStatus::kQueryFailed, "The log of the bundle cannot be put into " +
                                                     Printable(Utf8FromPath(folder)) +
                                                     ": see whether there is room, and whether you may write there.");
  }
  handle_ = reinterpret_cast<std::intptr_t>(file);
}

PrivateFile::~PrivateFile() { CloseHandle(reinterpret_cast<HANDLE>(handle_)); }

}  // namespace hxahost
