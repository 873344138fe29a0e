#include "tools/arcconf/arcconf_data.h"

void ArcconfData::Collect(unsigned firstControllerNumber) {
  static_cast<void>(firstControllerNumber);
  static_cast<void>(host_);
}
