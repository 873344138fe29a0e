#include "host/hxahost/views/report/level_marks.h"

#include <algorithm>

namespace hxahost {

namespace {

constexpr LevelMark kMarks[] = {
    {Level::kCritical, "\u2715", "critical"       },
    {Level::kWarning,  "!",      "needs attention"},
    {Level::kUnknown,  "?",      "state not known"},
    {Level::kBusy,     "\u21bb", "at work"        },
    {Level::kIdle,     "\u25cb", "spare or unused"},
    {Level::kUnsaid,   "\u2013", "state not said" },
    {Level::kFine,     "\u2713", "in order"       },
};

}  // namespace

std::span<const LevelMark> LevelMarks() { return kMarks; }

const LevelMark& MarkOf(Level level) { return *std::ranges::find(kMarks, level, &LevelMark::level); }

}  // namespace hxahost
