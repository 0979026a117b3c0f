#pragma once

/// After this, the first SIGINT, SIGTERM or SIGHUP only lets the program finish and report what was
/// done. Another one ends it as usual, unless it comes within a second: ending a program and its
/// process group sends two. Signals ignored at the start, as with nohup, stay ignored. Not to be
/// called before all input is read, which nothing else would end. May be called again.
void WatchSignals();

/// The signal that was received, or 0. Any thread.
int ReceivedSignal();
