#include "bsc/FSPercentEscapedString.h"
#include "bsc/Hash.h"
#include "bsc/IsNear.h"
#include "bsc/Logger.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

TEST(Logger, SinkTakesTheTextWithNothingAdded)
{
    std::vector<std::string> lines;
    Bsc::Logger::instance().setSink([&](std::string const& line) { lines.push_back(line); });
    Bsc::LOG_STRING(QString::fromUtf8("Parameter: 'x' \xc3\xa9"));
    Bsc::LOG_STRING(QString());
    Bsc::Logger::instance().setSink({});
    Bsc::LOG_STRING("to standard error");
    EXPECT_EQ(lines, (std::vector<std::string>{"Parameter: 'x' \xc3\xa9", ""}));
}

TEST(Hash, EqualityFollowsTheBytesFedAndSurvivesComparison)
{
    Bsc::Hash a, b;
    float const f = 1.5f;
    double const d = 2.25;
    // Comparing finishes a digest; further bytes must still count.
    for (auto const& [bytes, size] : {std::pair<void const*, std::size_t>{&f, sizeof f}, {&d, sizeof d}}) {
        EXPECT_TRUE(a == b);
        a.update(bytes, size);
        EXPECT_FALSE(a == b);
        b.update(bytes, size);
    }
    EXPECT_TRUE(a == b);
    Bsc::Hash c = a;
    c.update(&f, sizeof f);
    EXPECT_TRUE(c != a);

    // The digest of "abc" is the published SHA-1 test vector.
    Bsc::Hash abc;
    abc.update("abc", 3);
    EXPECT_EQ(QByteArray(reinterpret_cast<char const*>(abc.digest().data()), 20).toHex(),
              "a9993e364706816aba3e25717850c26c9cd0d89d");
}

TEST(IsNear, IsStrictAndSinglePrecision)
{
    EXPECT_TRUE(Bsc::isNear(1.0f, 1.0005f, 0.001f));
    EXPECT_FALSE(Bsc::isNear(1.0f, 1.0f, 0.0f));
    EXPECT_FALSE(Bsc::isNear(0.0f, 0.5f, 0.5f));
    EXPECT_TRUE(Bsc::isNear(-2.0f, -2.25f, 0.2500001f));
    EXPECT_FALSE(Bsc::isNear(NAN, NAN, 1.0f));
}

TEST(FSPercentEscapedString, EscapesReservedCharactersAndRoundTrips)
{
    Bsc::FSPercentEscapedString s(QString::fromUtf8("shot:01/a%b?\xc3\xa9"));
    EXPECT_EQ(s.escaped(), QString::fromUtf8("shot%3A01%2Fa%25b%3F\xc3\xa9"));
    EXPECT_EQ(Bsc::FSPercentEscapedString::fromEscaped(s.escaped()), s);
    EXPECT_EQ(Bsc::FSPercentEscapedString::fromEscaped("50%").string(), QString("50%"));
    EXPECT_EQ(Bsc::FSPercentEscapedString::fromEscaped("%zz%4").string(), QString("%zz%4"));
    s.string() = "plain";
    EXPECT_EQ(s.escaped(), QString("plain"));
}
