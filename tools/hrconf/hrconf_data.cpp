#include "tools/hrconf/hrconf_data.h"

void HrconfData::Collect(unsigned firstControllerNumber) {
  static_cast<void>(firstControllerNumber);
  static_cast<void>(host_);
}
