#pragma once

#include "publish/publish_context.h"

// The tools' own words beside what was made of them. That there are none is logged.
void PublishRawData(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
void PublishManagerRawData(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
