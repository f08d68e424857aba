#pragma once
/// The error trace: a per-thread list of error entries that failing functions leave for their caller.
/// A function that fails "in the Gandalf manner" flushes the trace, registers one entry and returns false.

#ifdef __cplusplus
extern "C" {
#endif

/// Error codes used by this library.
enum { GAN_ERROR_FAILURE = 1, GAN_ERROR_ILLEGAL_ARGUMENT = 12, GAN_ERROR_SINGULAR_MATRIX = 16 };

/// Empties the calling thread's trace.
void gan_err_flush_trace(void);

/// Appends an entry to the calling thread's trace. The strings are copied; null strings are kept as
/// empty ones.
void gan_err_register_fileline(char const* funcName, int code, char const* fileName, int line,
                               char const* message, int number);

/// Number of entries in the calling thread's trace.
int gan_err_get_error_count(void);

/// Reads entry `n` (0 is the oldest) into the non-null out-arguments. The strings stay valid until the
/// trace is next changed on this thread. Returns 0 when there is no such entry, 1 otherwise.
int gan_err_get_error(int n, char const** funcName, int* code, char const** fileName, int* line,
                      char const** message, int* number);

#ifdef __cplusplus
}
#endif
