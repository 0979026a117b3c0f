#pragma once

/// From now on a failed allocation ends the program, with one line on standard error behind
/// `program` and exit code 1. Nobody goes on after it: what threw in mid-work, the toolkit
/// included, may have left locks held. `program` must live as long as the process.
void EndWhenOutOfMemory(const char* program);

/// The same for a program without windows, before it has an application object: it does without
/// GLib, which would end it in another way.
void EndConsoleProgramWhenOutOfMemory(const char* program);

/// Ends the program in that way. Where an allocation of the toolkit's own failed, the exception
/// comes first, and whoever catches it calls this.
[[noreturn]] void EndOutOfMemory();
