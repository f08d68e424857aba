#include "support/Exception.h"

#include <sstream>
#include <utility>

namespace {

// Shared by every report, set up when the library loads. The returned text lives in gDumpText until the
// next Dump(), since the stream hands out its contents only as a copy.
std::ostringstream gDumpStream(std::ios_base::out);
std::string gDumpText;

} // namespace

TQ_Exception::TQ_Exception(std::string file, int line, std::string context, std::string message)
    : file(std::move(file)), line(line), context(std::move(context)), message(std::move(message))
{
}

TQ_Exception::~TQ_Exception() noexcept = default;

char const* TQ_Exception::what() const noexcept
{
    return message.c_str();
}

char const* TQ_Exception::Dump()
{
    return pcDumpWithBanner("===> TQ_Exception\n");
}

char const* TQ_Exception::pcDumpWithBanner(char const* banner) const
{
    gDumpStream.str(std::string());
    gDumpStream.clear();
    gDumpStream << banner << "File:" << file << ":" << line << ":\n"
                << "Context: " << context << "\n"
                << "Message: " << message << "\n\n"
                << std::ends;
    gDumpText = gDumpStream.str();
    return gDumpText.c_str();
}

#define TQ_DEFINE_EXCEPTION_CLASS(Name, banner)                                                          \
    Name::~Name() noexcept = default;                                                                    \
    char const* Name::Dump()                                                                             \
    {                                                                                                    \
        return pcDumpWithBanner(banner);                                                                 \
    }

// The trailing blanks of some banners belong to the report text.
TQ_DEFINE_EXCEPTION_CLASS(TQ_ExternalException, "===> External exception thrown.\n")
TQ_DEFINE_EXCEPTION_CLASS(TQ_GandalfError, "===> Gandalf library error.\n")
TQ_DEFINE_EXCEPTION_CLASS(TQ_UnexpectedException, "===> Exception specification violated. \n")
TQ_DEFINE_EXCEPTION_CLASS(TQ_NotImplemented, "===> Not implemented (sorry)\n")
TQ_DEFINE_EXCEPTION_CLASS(TQ_BadFile, "===> Bad file provided \n")
TQ_DEFINE_EXCEPTION_CLASS(TQ_BadArgument, "===> Bad argument provided \n")
TQ_DEFINE_EXCEPTION_CLASS(TQ_BadState, "===> Bad state \n")
TQ_DEFINE_EXCEPTION_CLASS(TQ_BadSize, "===> Bad array(container) size \n")
TQ_DEFINE_EXCEPTION_CLASS(TQ_OutOfRange, "===> Index out of range\n")
TQ_DEFINE_EXCEPTION_CLASS(TQ_BadAlloc, "===> Memory allocation failed\n")
TQ_DEFINE_EXCEPTION_CLASS(TQ_OperationFailed, "===> Operation Failed\n")
TQ_DEFINE_EXCEPTION_CLASS(TQ_AssertionFailed, "===> Assertion Failed\n")
