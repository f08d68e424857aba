#pragma once
/// The exception family that the library exports to its hosts. The library itself throws none of them:
/// its own failures are bool results, log lines (Bsc::LOG_STRING) and Gandalf error entries.
///
/// Every class holds where a failure arose (source file and line), the operation it arose in (context)
/// and what went wrong (message). The classes differ only in the banner that starts their report.
/// Objects are plain values: copying copies the three strings and the line.

#include <exception>
#include <string>

class TQ_Exception : public std::exception {
public:
    /// Arguments in the order a host has them at a throw site: `__FILE__, __LINE__, context, message`.
    TQ_Exception(std::string file, int line, std::string context, std::string message);
    ~TQ_Exception() noexcept override;

    /// `message`, NUL-terminated; valid while the object lives. Throws nothing.
    char const* what() const noexcept override;

    /// The whole report: banner, "File:<file>:<line>:", "Context: <context>", "Message: <message>", an
    /// empty line, then one NUL. Prints nothing. All classes share one buffer, so the text stays valid
    /// only until the next Dump() of any exception, and two threads must not dump at once.
    virtual char const* Dump();

    std::string file;
    int line;
    std::string context;
    std::string message;

protected:
    /// Formats the report behind `banner` into the shared buffer and returns it.
    char const* pcDumpWithBanner(char const* banner) const;
};

/// One member of the family: a TQ_Exception with its own banner and nothing else of its own.
#define TQ_DECLARE_EXCEPTION_CLASS(Name)                                                                 \
    class Name : public TQ_Exception {                                                                   \
    public:                                                                                              \
        using TQ_Exception::TQ_Exception;                                                                \
        ~Name() noexcept override;                                                                       \
        char const* Dump() override;                                                                     \
    };

/// A failure that came out of code outside the library.
TQ_DECLARE_EXCEPTION_CLASS(TQ_ExternalException)
/// A failure reported by the Gandalf library.
TQ_DECLARE_EXCEPTION_CLASS(TQ_GandalfError)
/// An exception that violated a function's exception specification.
TQ_DECLARE_EXCEPTION_CLASS(TQ_UnexpectedException)
/// A path that does not exist yet.
TQ_DECLARE_EXCEPTION_CLASS(TQ_NotImplemented)
/// A file that cannot be used.
TQ_DECLARE_EXCEPTION_CLASS(TQ_BadFile)
/// An argument outside what the operation accepts.
TQ_DECLARE_EXCEPTION_CLASS(TQ_BadArgument)
/// An operation called in the wrong state.
TQ_DECLARE_EXCEPTION_CLASS(TQ_BadState)
/// An array or container of the wrong size.
TQ_DECLARE_EXCEPTION_CLASS(TQ_BadSize)
/// An index outside a container.
TQ_DECLARE_EXCEPTION_CLASS(TQ_OutOfRange)
/// Exhausted memory.
TQ_DECLARE_EXCEPTION_CLASS(TQ_BadAlloc)
/// An operation that ended without its result.
TQ_DECLARE_EXCEPTION_CLASS(TQ_OperationFailed)
/// An internal assertion.
TQ_DECLARE_EXCEPTION_CLASS(TQ_AssertionFailed)

#undef TQ_DECLARE_EXCEPTION_CLASS
