#pragma once
/// How a function of the library fails in the Gandalf manner: the caller's Gandalf error trace is emptied,
/// then holds exactly one entry describing the failure, and the function returns false.

/// Flushes the calling thread's Gandalf error trace, registers one entry with these arguments (strings
/// are copied; null is kept as empty) and returns false, so a failing function can end with
/// `return bGandalfFailure(...)`.
bool bGandalfFailure(char const* functionName, int code, char const* fileName, int line, char const* message,
                     int number);
