#include "tools/qcmdrun/qcmdrun_data.h"

void QcmdrunData::Collect(unsigned firstControllerNumber) {
  static_cast<void>(firstControllerNumber);
  static_cast<void>(host_);
}
