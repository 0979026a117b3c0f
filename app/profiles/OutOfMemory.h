#pragma once

/// From now on a failed allocation ends the program with exit code 1 and the line "PROGRAM: out of
/// memory" on standard error. The program cannot continue, because the interrupted code, for
/// example in Qt, may still hold locks. `program` must live as long as the process.
void EndWhenOutOfMemory(const char* program);

/// The same for a program without windows. Call it before the application object exists: GLib,
/// which ends a program in its own way, is then not used.
void EndConsoleProgramWhenOutOfMemory(const char* program);

/// Ends the program in that way. To be called by code that catches `std::bad_alloc`: some
/// allocations inside Qt throw without calling the new-handler. Any thread.
[[noreturn]] void EndOutOfMemory();
