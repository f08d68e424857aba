#include "support/Exception.h"
#include "support/GandalfFailure.h"
#include "support/XMLErrorHandler.h"

#include "gandalf/Error.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <tuple>

namespace {

// The report as a std::string, including the trailing NUL that std::ends puts into it.
std::string dumpOf(TQ_Exception& exception)
{
    return std::string(exception.Dump()) + '\0';
}

template <typename T>
std::unique_ptr<TQ_Exception> make()
{
    return std::make_unique<T>("a", 7, "b", "c");
}

} // namespace

TEST(Exception, EachClassDumpsItsBannerThenTheFieldsRepeatably)
{
    struct { std::unique_ptr<TQ_Exception> (*make)(); char const* banner; } const cases[] = {
        {make<TQ_Exception>, "===> TQ_Exception\n"},
        {make<TQ_ExternalException>, "===> External exception thrown.\n"},
        {make<TQ_GandalfError>, "===> Gandalf library error.\n"},
        {make<TQ_UnexpectedException>, "===> Exception specification violated. \n"},
        {make<TQ_NotImplemented>, "===> Not implemented (sorry)\n"},
        {make<TQ_BadFile>, "===> Bad file provided \n"}, {make<TQ_BadArgument>, "===> Bad argument provided \n"},
        {make<TQ_BadState>, "===> Bad state \n"}, {make<TQ_BadSize>, "===> Bad array(container) size \n"},
        {make<TQ_OutOfRange>, "===> Index out of range\n"}, {make<TQ_BadAlloc>, "===> Memory allocation failed\n"},
        {make<TQ_OperationFailed>, "===> Operation Failed\n"}, {make<TQ_AssertionFailed>, "===> Assertion Failed\n"}};
    for (auto const& c : cases) {
        std::unique_ptr<TQ_Exception> const exception = c.make();
        // Through the base reference: the banner must come from the dynamic type.
        EXPECT_EQ(dumpOf(*exception), c.banner + std::string("File:a:7:\nContext: b\nMessage: c\n\n") + '\0');
        EXPECT_STREQ(exception->what(), "c");
    }
    // A later dump of a shorter text leaves nothing of the longer one behind; dumps repeat.
    TQ_BadFile badFile("src/x.cpp", 42, "vLoad", "no such file");
    std::string const first = dumpOf(badFile);
    TQ_Exception empty("", 0, "", "");
    EXPECT_EQ(dumpOf(empty), std::string("===> TQ_Exception\nFile::0:\nContext: \nMessage: \n\n") + '\0');
    EXPECT_EQ(dumpOf(badFile), first);
}

TEST(GandalfFailure, LeavesExactlyOneEntryAndReturnsFalse)
{
    gan_err_register_fileline("earlier", 1, "e.cpp", 1, "stale", 0);
    EXPECT_FALSE(bGandalfFailure("vFill", GAN_ERROR_ILLEGAL_ARGUMENT, "lut.cpp", 31, "size 0", 5));
    ASSERT_EQ(gan_err_get_error_count(), 1);
    char const *function = nullptr, *file = nullptr, *message = nullptr;
    int code = 0, line = 0, number = 0;
    ASSERT_EQ(gan_err_get_error(0, &function, &code, &file, &line, &message, &number), 1);
    EXPECT_EQ(std::make_tuple(std::string(function), code, std::string(file), line, std::string(message), number),
              std::make_tuple(std::string("vFill"), int(GAN_ERROR_ILLEGAL_ARGUMENT), std::string("lut.cpp"), 31,
                              std::string("size 0"), 5));
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

TEST(XMLErrorHandler, KeepsTheLastComplaintAndStopsTheParseOnAnError)
{
    std::ostringstream printed;
    TQ_XMLErrorHandler handler(printed);
    EXPECT_TRUE(handler.warning(QXmlParseException(QStringLiteral("odd"), 3, 4)));
    EXPECT_EQ(handler.errorString(), QStringLiteral("odd"));
    EXPECT_FALSE(handler.error(QXmlParseException(QString::fromUtf8("bad \xc3\xa9"), 5, 6)));
    EXPECT_FALSE(handler.fatalError(QXmlParseException(QStringLiteral("worse"))));
    EXPECT_EQ(handler.errorString(), QStringLiteral("worse"));
    // Line and column are not printed; the message goes out as UTF-8.
    EXPECT_EQ(printed.str(), "Warning: odd\nError: bad \xc3\xa9\nFatal Error: worse\n");

    // Through a reader: a good document parses, a broken one stops with a fatal error.
    QXmlSimpleReader reader;
    reader.setErrorHandler(&handler);
    for (bool const bGood : {true, false}) {
        QXmlInputSource source;
        source.setData(bGood ? QStringLiteral("<a><b/></a>") : QStringLiteral("<a><b></a>"));
        EXPECT_EQ(bGood, reader.parse(&source));
    }
    EXPECT_NE(printed.str().find("\nFatal Error: ", 40), std::string::npos);
}

QT_WARNING_POP
