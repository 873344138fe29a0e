#pragma once

#include "publish/publish_context.h"

// Counters of the controllers and their devices.
void PublishSubStats(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishDeviceData(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);

// A controller that lists no bad stripes has none: each of its logical disks, as the host holds them, is published
// with 0. Bad stripes anywhere are reported to the person at the machine.
void PublishBadStripes(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
