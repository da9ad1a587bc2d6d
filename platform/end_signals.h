#pragma once

namespace zeugnis {

/// From now on the signals that end a program (SIGTERM, SIGINT, SIGHUP) come as bytes from the
/// handle that is returned, instead of ending it; -1 where the system has none. For one place in a
/// program.
int watchEndSignals();

/// They end the program again.
void unwatchEndSignals();

} // namespace zeugnis
