#pragma once

#include "publish/publish_context.h"

// The event logs of the controllers and of the RAID management application.
void PublishSoftEvents(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishHardEvents(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishDddEvents(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);

// Reads the log to its end: a second call publishes only what was written since, which is nothing once a read has met
// the end.
void PublishRaidManagerEvents(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
