#include "plugin/host_interface/assertion_failed.h"

#include <boost/assert.hpp>

// Boost asks each program for these two and calls them where it would otherwise assert. One copy is linked into
// every binary, because Boost declares them without saying which library they come from.
namespace boost {

void assertion_failed(char const* expression, char const* function, char const* file, long line) {
  NKVRHXA20::ReportBrokenInvariant(expression, function, file, line);
}

void assertion_failed_msg(char const* expression, char const* message, char const* function, char const* file,
                          long line) {
  NKVRHXA20::ReportBrokenInvariant((std::string(expression) + " (" + message + ")").c_str(), function, file, line);
}

}  // namespace boost
