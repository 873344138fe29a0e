#pragma once

namespace hxahost {

// From now on a request to end the program ends it, whatever its other threads do: it cleans up in a thread of its own,
// writes one line to standard error, and ends with ExitStatus::kInterrupted (SIGINT, Ctrl-C) or kTerminated (SIGTERM,
// SIGHUP, log-off, a closed console). Signals that the parent process ignores stay ignored. Call it before other
// threads begin, because they must not receive the signals.
void EndWhenAsked(void (*cleanUp)());

}  // namespace hxahost
