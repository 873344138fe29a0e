#pragma once

#include "publish/publish_context.h"

// The software that runs on controllers and drives. What has no version text is left out.
void PublishFirmwareVersions(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishBootBlockVersions(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishBiosVersions(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishDiskDriveVersions(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
