#include "publish/publish_devices.h"

void PublishControllers(const PublishContext&, NKVRHXA20::ICIMClass&) {}
void PublishLogicalDisks(const PublishContext&, NKVRHXA20::ICIMClass&) {}
void PublishDiskGroups(const PublishContext&, NKVRHXA20::ICIMClass&) {}
void PublishDiskDrives(const PublishContext&, NKVRHXA20::ICIMClass&) {}
