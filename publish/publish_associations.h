#pragma once

#include "publish/publish_context.h"

// Links between instances that the host holds: those that were published before, by this query or an earlier one.

// From controllers to what belongs to them, controller by controller in the order of collection.
void PublishControllerToLogicalDisks(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishControllerToDiskDrives(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishControllerToDiskGroups(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishControllerToFirmware(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishControllerToBootBlock(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishControllerToBios(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);

// From drives to their firmware, drive by drive.
void PublishDiskDriveToFirmware(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);

// From disks and drives to their statistics, disk by disk.
void PublishDiskDriveToDeviceData(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishLogicalDiskToBadStripes(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
