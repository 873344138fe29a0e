#include <cstdio>
#include <exception>

#include "plugin/callbacks.h"

// The loader runs this library's initialisers: the one notification that there is here. An exception must not cross
// the loader; without it the host finds that nothing has registered, and says so.
namespace {

int Attach() {
  try {
    return OnLibraryNotification(kProcessAttach);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "zenx.pi: not registered: %s\n", failure.what());
    return 0;
  }
}

const int attached = Attach();

}  // namespace
