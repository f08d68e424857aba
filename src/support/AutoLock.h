#pragma once

class QMutex;

/// Has the shape of a scoped lock and does nothing: the library takes no lock, so nothing may rely on
/// this for mutual exclusion. Construction returns at once even when another thread holds the mutex.
class TQ_AutoLock
{
public:
    /// Neither locks `mutex` nor keeps it or `where`; both may be null.
    TQ_AutoLock(QMutex* /*mutex*/, char const* /*where*/) {}
};
