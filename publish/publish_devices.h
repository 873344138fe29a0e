#pragma once

#include "publish/publish_context.h"

// Controllers and what hangs on them.
void PublishControllers(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishLogicalDisks(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishDiskGroups(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishDiskDrives(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
