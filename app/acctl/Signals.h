#pragma once

/// From now on the first SIGINT, SIGTERM or SIGHUP lets the work tell what was done. What whoever
/// started the program wants ignored, as nohup does, stays so. A further one ends the program as
/// usual, but not within a second: who ends a program and its process group sends two.
void WatchSignals();

/// The signal that came; 0 as long as none has. Any thread.
int ReceivedSignal();
