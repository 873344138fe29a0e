#pragma once

namespace hxahost {

// From here on the program ends when somebody asks it to, whatever its other threads do: it cleans up in a thread of its
// own, says so in one line on standard error, and ends with ExitStatus::kInterrupted (SIGINT, Ctrl-C), kTerminated
// (SIGTERM, log-off) or kHungUp (SIGHUP, a closed console). What its parent has it ignore stays ignored. To be called
// before other threads begin, which must not take the signals.
void EndWhenAsked(void (*cleanUp)());

}  // namespace hxahost
