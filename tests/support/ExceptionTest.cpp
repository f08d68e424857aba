#include "support/Exception.h"
#include "support/XMLErrorHandler.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

// The report as a std::string, including the trailing NUL that std::ends puts into it.
std::string dumpOf(TQ_Exception& exception)
{
    char const* text = exception.Dump();
    std::string report(text);
    return report + '\0';
}

std::string expectedReport(std::string const& banner, std::string const& file, int line,
                           std::string const& context, std::string const& message)
{
    return banner + "File:" + file + ":" + std::to_string(line) + ":\nContext: " + context +
           "\nMessage: " + message + "\n\n" + '\0';
}

} // namespace

TEST(Exception, EachClassDumpsItsBannerThenTheFields)
{
    struct Case {
        std::unique_ptr<TQ_Exception> exception;
        char const* banner;
    };
    std::vector<Case> cases;
    auto add = [&cases](TQ_Exception* exception, char const* banner) {
        cases.push_back(Case{std::unique_ptr<TQ_Exception>(exception), banner});
    };
    add(new TQ_Exception("a", 7, "b", "c"), "===> TQ_Exception\n");
    add(new TQ_ExternalException("a", 7, "b", "c"), "===> External exception thrown.\n");
    add(new TQ_GandalfError("a", 7, "b", "c"), "===> Gandalf library error.\n");
    add(new TQ_UnexpectedException("a", 7, "b", "c"), "===> Exception specification violated. \n");
    add(new TQ_NotImplemented("a", 7, "b", "c"), "===> Not implemented (sorry)\n");
    add(new TQ_BadFile("a", 7, "b", "c"), "===> Bad file provided \n");
    add(new TQ_BadArgument("a", 7, "b", "c"), "===> Bad argument provided \n");
    add(new TQ_BadState("a", 7, "b", "c"), "===> Bad state \n");
    add(new TQ_BadSize("a", 7, "b", "c"), "===> Bad array(container) size \n");
    add(new TQ_OutOfRange("a", 7, "b", "c"), "===> Index out of range\n");
    add(new TQ_BadAlloc("a", 7, "b", "c"), "===> Memory allocation failed\n");
    add(new TQ_OperationFailed("a", 7, "b", "c"), "===> Operation Failed\n");
    add(new TQ_AssertionFailed("a", 7, "b", "c"), "===> Assertion Failed\n");

    for (Case& c : cases) {
        // Through the base reference: the banner must come from the dynamic type.
        EXPECT_EQ(dumpOf(*c.exception), expectedReport(c.banner, "a", 7, "b", "c")) << c.banner;
        EXPECT_STREQ(c.exception->what(), "c");
    }
}

TEST(Exception, DumpResetsTheSharedStreamAndKeepsEmptyFields)
{
    TQ_BadFile badFile("src/x.cpp", 42, "vLoad", "no such file");
    std::string const first = dumpOf(badFile);
    EXPECT_EQ(dumpOf(badFile), first);

    TQ_Exception empty("", 0, "", "");
    EXPECT_EQ(dumpOf(empty), std::string("===> TQ_Exception\nFile::0:\nContext: \nMessage: \n\n") + '\0');
    EXPECT_STREQ(empty.what(), "");

    // A later dump of another object replaces the text; a shorter one leaves nothing of the longer.
    EXPECT_EQ(dumpOf(badFile), first);
}

TEST(Exception, CopiesAndCatchesAsAFamily)
{
    TQ_OutOfRange original("f", -3, "ctx", "index 9 of 4");
    TQ_OutOfRange copy(original);
    EXPECT_EQ(copy.file, "f");
    EXPECT_EQ(copy.line, -3);
    EXPECT_EQ(copy.context, "ctx");
    EXPECT_EQ(copy.message, "index 9 of 4");

    try {
        throw copy;
    } catch (std::exception const& caught) {
        EXPECT_STREQ(caught.what(), "index 9 of 4");
    }
    try {
        throw TQ_GandalfError("g", 1, "c", "m");
    } catch (TQ_Exception& caught) {
        EXPECT_EQ(std::string(caught.Dump()).rfind("===> Gandalf library error.\nFile:g:1:\n", 0), 0u);
    }
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

TEST(XMLErrorHandler, KeepsTheLastComplaintAndDecidesWhetherParsingGoesOn)
{
    std::ostringstream printed;
    TQ_XMLErrorHandler handler(printed);
    EXPECT_TRUE(handler.errorString().isEmpty());

    EXPECT_TRUE(handler.warning(QXmlParseException(QStringLiteral("odd"), 3, 4)));
    EXPECT_EQ(handler.errorString(), QStringLiteral("odd"));
    EXPECT_FALSE(handler.error(QXmlParseException(QString::fromUtf8("bad \xc3\xa9"), 5, 6)));
    EXPECT_EQ(handler.errorString(), QString::fromUtf8("bad \xc3\xa9"));
    EXPECT_FALSE(handler.fatalError(QXmlParseException(QStringLiteral("worse"))));
    EXPECT_EQ(handler.errorString(), QStringLiteral("worse"));

    // Line and column are not printed; the message goes out as UTF-8.
    EXPECT_EQ(printed.str(), "Warning: odd\nError: bad \xc3\xa9\nFatal Error: worse\n");
}

TEST(XMLErrorHandler, AWarningLetsAParseFinishAnErrorStopsIt)
{
    std::ostringstream printed;
    TQ_XMLErrorHandler handler(printed);
    QXmlSimpleReader reader;
    reader.setErrorHandler(&handler);

    QXmlInputSource good;
    good.setData(QStringLiteral("<a><b/></a>"));
    EXPECT_TRUE(reader.parse(&good));
    EXPECT_TRUE(handler.errorString().isEmpty());

    QXmlInputSource broken;
    broken.setData(QStringLiteral("<a><b></a>"));
    EXPECT_FALSE(reader.parse(&broken));
    EXPECT_FALSE(handler.errorString().isEmpty());
    EXPECT_EQ(printed.str().rfind("Fatal Error: ", 0), 0u);
}

QT_WARNING_POP
